// Which remote folders a connection watches as the server changes: new top-level folders join
// the selection, folders emptied by downloads are removed.
#include <unordered_set>

#include "engine/sync_engine.h"
#include "platform/foundation_path.h"
#include "records/notification_service.h"

namespace tarnel {

Task<void> SyncEngine::checkForNewFolders() {
    std::vector<FTPFileEntry> listing;
    std::optional<std::string> error;
    try {
        listing = co_await ftpService_->listFilesAtPath(config_.remotePath);
    } catch (const FTPError& e) {
        error = e.errorDescription();
    }
    if (error) {
        // The poll's own listing goes on and will usually fail by itself.
        log("Could not check for new folders: " + *error, LogLevel::warning);
        co_return;
    }

    // A selected "clients/acme" makes the whole of "clients" seen.
    std::unordered_set<std::string> known;
    for (const auto& p : dynamicSelectedPaths_)
        known.insert(p.substr(0, p.find('/')));
    std::vector<std::string> added;
    for (const auto& entry : listing)
        if (entry.isDirectory && !known.contains(entry.name))
            added.push_back(entry.name);
    if (added.empty())
        co_return;

    std::string joined;
    for (const auto& name : added) {
        dynamicSelectedPaths_.push_back(name);
        log("Auto-monitoring new folder: " + name);
        joined += (joined.empty() ? "" : ", ") + name;
    }
    services_.notifications.notifyNewFolder(config_.name, joined);
    // The stored record learns them for the next start; this engine goes on with its own list.
    if (auto manager = connectionsManager_.lock())
        manager->addSelectedRemotePaths(added, config_.id);
}

Task<void> SyncEngine::removeEmptyRemoteFolders(std::string path) {
    // Every failure ends the walk quietly: the transfer it follows has succeeded.
    std::string dir = stringByDeletingLastPathComponent(path);
    while (!dir.empty() && dir != "." && dir != "/") {
        std::string full = config_.remotePath;
        if (!full.ends_with('/'))
            full += '/';
        full += dir;
        try {
            // Hidden names are not listed, so a folder holding only those is tried anyway and
            // the server's refusal keeps it.
            if (!(co_await ftpService_->listFilesAtPath(full)).empty())
                co_return;
            co_await ftpService_->deleteDirectory(full);
        } catch (const FTPError&) {
            co_return;
        }
        log("Deleted empty remote folder: " + dir);
        dir = stringByDeletingLastPathComponent(dir);
    }
}

}  // namespace tarnel
