#pragma once

#include <optional>
#include <string>
#include <vector>

namespace tarnel {

// How the program to launch is found.
enum class ProgramLookup {
    asGiven,     // the path as it stands (relative to the working folder if not absolute)
    searchPath,  // a bare name is looked up in PATH, as a shell would
};

// Starts `program` with `arguments` (not counting the program itself) and returns at once,
// without a shell: no word is split, quoted or expanded. The child inherits the environment,
// the working folder and the standard streams, and nothing else: no other descriptor, no
// blocked or ignored signal. Nobody waits for it; it is reaped in the
// background when it ends. Returns what went wrong when it could not be started.
std::optional<std::string> launchProcess(const std::string& program,
                                         const std::vector<std::string>& arguments,
                                         ProgramLookup lookup = ProgramLookup::asGiven);

}  // namespace tarnel
