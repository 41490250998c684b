#include "platform/posix/process_launcher.h"

#include <cerrno>
#include <cstring>
#include <thread>

#include <spawn.h>
#include <sys/wait.h>

extern char** environ;

namespace tarnel {

std::optional<std::string> launchProcess(const std::string& program,
                                         const std::vector<std::string>& arguments,
                                         ProgramLookup lookup) {
    std::vector<char*> argv;
    argv.reserve(arguments.size() + 2);
    argv.push_back(const_cast<char*>(program.c_str()));
    for (const auto& a : arguments)
        argv.push_back(const_cast<char*>(a.c_str()));
    argv.push_back(nullptr);

    // glibc reports a failed exec (missing or non-executable program) as the result here.
    pid_t pid = -1;
    const int error =
        lookup == ProgramLookup::searchPath
            ? ::posix_spawnp(&pid, program.c_str(), nullptr, nullptr, argv.data(), environ)
            : ::posix_spawn(&pid, program.c_str(), nullptr, nullptr, argv.data(), environ);
    if (error != 0)
        return "Could not launch '" + program + "': " + std::strerror(error);

    // The child is never waited for by the caller; this only keeps it from lingering as a zombie.
    std::thread([pid] {
        int status = 0;
        while (::waitpid(pid, &status, 0) < 0 && errno == EINTR) {
        }
    }).detach();
    return std::nullopt;
}

}  // namespace tarnel
