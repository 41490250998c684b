#include "app/app_paths.h"

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>

namespace tarnel {

namespace {
// $NAME if set to an absolute path, else $HOME/fallback, as the XDG base directories say.
std::filesystem::path baseDirectory(const char* name, const char* fallback) {
    if (const char* value = std::getenv(name); value && value[0] == '/') return value;
    const char* home = std::getenv("HOME");
    return std::filesystem::path(home ? home : "/tmp") / fallback;
}

// FNV-1a: a stable name for a set of stores, the same in every build. Short, because a local
// socket's whole path must fit in 107 bytes.
std::string storesKey(const std::string& stores) {
    std::uint64_t hash = 14695981039346656037ull;
    for (unsigned char c : stores) hash = (hash ^ c) * 1099511628211ull;
    char text[13];
    std::snprintf(text, sizeof text, "%012llx", static_cast<unsigned long long>(hash >> 16));
    return text;
}
}  // namespace

AppPaths AppPaths::fromEnvironment() {
    const auto config = baseDirectory("XDG_CONFIG_HOME", ".config");
    const auto data = baseDirectory("XDG_DATA_HOME", ".local/share") / "Tarnel";
    const auto state = baseDirectory("XDG_STATE_HOME", ".local/state") / "Tarnel";
    AppPaths paths{config / "Tarnel" / "Tarnel.conf", config / "autostart" / "tarnel.desktop",
                   data / "history.json",             data / "partials.json",
                   data / "known_hosts",              state / "Tarnel.log",
                   {config / "Tarnel" / "tarnel.lock", data / "tarnel.lock"}, {}};
    const char* runtime = std::getenv("XDG_RUNTIME_DIR");
    const std::filesystem::path runFolder =
        runtime && runtime[0] == '/' ? std::filesystem::path(runtime) : state / "run";
    const auto key = "tarnel" + storesKey(paths.settingsFile.string() + "\n" +
                                           data.string() + "\n" + paths.logFile.string());
    paths.instanceSocket = runFolder / (key + ".sock");
    return paths;
}

}  // namespace tarnel
