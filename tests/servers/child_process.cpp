#include "servers/child_process.h"

#include <fcntl.h>
#include <spawn.h>

#include <cstring>
#include <stdexcept>

extern char** environ;

namespace tarnel::testing {

std::vector<std::string> environmentWithout(std::initializer_list<std::string_view> prefixes) {
    std::vector<std::string> env;
    for (char** e = environ; *e; ++e) {
        const std::string_view v(*e);
        bool dropped = false;
        for (auto prefix : prefixes) dropped = dropped || v.starts_with(prefix);
        if (!dropped) env.emplace_back(v);
    }
    return env;
}

pid_t spawnChild(const std::vector<std::string>& argv, const std::vector<std::string>& env,
                 const std::filesystem::path& in, const std::filesystem::path& out,
                 const std::filesystem::path& err) {
    std::vector<std::string> args = argv, vars = env;
    std::vector<char*> cargv, cenv;
    for (auto& a : args) cargv.push_back(a.data());
    cargv.push_back(nullptr);
    for (auto& e : vars) cenv.push_back(e.data());
    cenv.push_back(nullptr);

    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, 0, in.c_str(), O_RDONLY, 0);
    posix_spawn_file_actions_addopen(&actions, 1, out.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0644);
    if (err == out)
        posix_spawn_file_actions_adddup2(&actions, 1, 2);
    else
        posix_spawn_file_actions_addopen(&actions, 2, err.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0644);
    pid_t pid = -1;
    const int rc = posix_spawn(&pid, args[0].c_str(), &actions, nullptr, cargv.data(), cenv.data());
    posix_spawn_file_actions_destroy(&actions);
    if (rc != 0) throw std::runtime_error("cannot start " + args[0] + ": " + std::strerror(rc));
    return pid;
}

}  // namespace tarnel::testing
