#pragma once

#include <filesystem>
#include <vector>

namespace tarnel {

// Where the program keeps its stores, after the XDG base directories, so that setting
// XDG_CONFIG_HOME, XDG_DATA_HOME and XDG_STATE_HOME isolates a run completely.
struct AppPaths {
    std::filesystem::path settingsFile;    // $XDG_CONFIG_HOME/Tarnel/Tarnel.conf
    std::filesystem::path autostartFile;   // $XDG_CONFIG_HOME/autostart/tarnel.desktop
    std::filesystem::path historyFile;     // $XDG_DATA_HOME/Tarnel/history.json
    std::filesystem::path partialsFile;    // $XDG_DATA_HOME/Tarnel/partials.json
    std::filesystem::path knownHostsFile;  // $XDG_DATA_HOME/Tarnel/known_hosts
    std::filesystem::path logFile;         // $XDG_STATE_HOME/Tarnel/Tarnel.log
    // One running fleet per set of stores: a lock file beside the settings and beside the data
    // stores, whatever the environment of the process, and the socket later launches talk to,
    // in $XDG_RUNTIME_DIR (or a private folder under the state folder when that is unset),
    // named after the stores. The lock's holder writes the socket's path into the lock files.
    std::vector<std::filesystem::path> instanceLockFiles;
    std::filesystem::path instanceSocket;

    static AppPaths fromEnvironment();
};

}  // namespace tarnel
