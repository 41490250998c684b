#include "platform/posix/process_launcher.h"

#include <cerrno>
#include <cstring>
#include <thread>

#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

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

    // The child starts as from a shell, not as this process stands: no signal blocked (we block
    // SIGTERM and SIGINT for our own stop descriptor), none ignored, so that `kill` and a
    // service manager's stop end it; and no descriptor but the standard three, so that it holds
    // no lock, socket or file of ours open.
    posix_spawnattr_t attributes;
    posix_spawnattr_init(&attributes);
    sigset_t signals;
    sigemptyset(&signals);
    posix_spawnattr_setsigmask(&attributes, &signals);
    sigfillset(&signals);
    posix_spawnattr_setsigdefault(&attributes, &signals);
    posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF);
    posix_spawn_file_actions_t files;
    posix_spawn_file_actions_init(&files);
    posix_spawn_file_actions_addclosefrom_np(&files, STDERR_FILENO + 1);

    // glibc reports a failed exec (missing or non-executable program) as the result here.
    pid_t pid = -1;
    const int error =
        lookup == ProgramLookup::searchPath
            ? ::posix_spawnp(&pid, program.c_str(), &files, &attributes, argv.data(), environ)
            : ::posix_spawn(&pid, program.c_str(), &files, &attributes, argv.data(), environ);
    posix_spawn_file_actions_destroy(&files);
    posix_spawnattr_destroy(&attributes);
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
