#include "app/app_paths.h"

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
}  // namespace

AppPaths AppPaths::fromEnvironment() {
    const auto config = baseDirectory("XDG_CONFIG_HOME", ".config");
    const auto data = baseDirectory("XDG_DATA_HOME", ".local/share") / "Tarnel";
    const auto state = baseDirectory("XDG_STATE_HOME", ".local/state") / "Tarnel";
    return {config / "Tarnel" / "Tarnel.conf",     config / "autostart" / "tarnel.desktop",
            data / "history.json",                  data / "partials.json",
            data / "known_hosts",                   state / "Tarnel.log"};
}

}  // namespace tarnel
