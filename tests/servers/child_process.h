#pragma once

#include <sys/types.h>

#include <filesystem>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

namespace tarnel::testing {

// This process's environment without the variables whose names start with one of `prefixes`.
std::vector<std::string> environmentWithout(std::initializer_list<std::string_view> prefixes);

// Starts `argv` (a program's path first) with exactly `env`, its standard input read from `in`
// and its output and errors written to `out` and `err`, which may be the same file. Throws
// std::runtime_error when it cannot be started.
pid_t spawnChild(const std::vector<std::string>& argv, const std::vector<std::string>& env,
                 const std::filesystem::path& in, const std::filesystem::path& out,
                 const std::filesystem::path& err);

}  // namespace tarnel::testing
