#pragma once

#include <optional>
#include <string>

namespace tarnel {

struct CommandLine {
    bool headless = false;
    bool help = false;
    bool list = false;
    bool status = false;
    bool json = false;  // --status as one JSON document
    std::optional<std::string> importFile;
    std::optional<std::string> error;  // a word we do not know, or --import without a file

    static CommandLine parse(int argc, char** argv);
    static std::string helpText();
};

}  // namespace tarnel
