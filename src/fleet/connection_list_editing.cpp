// Editing the list of connections, the import of the legacy flat keys, and the sweep of
// partial files that no record claims.
#include <set>

#include "connections/connection_config_json.h"
#include "connections/routing_rule.h"
#include "fleet/connections_manager.h"
#include "platform/localized.h"
#include "records/download_tracker.h"
#include "records/log_service.h"
#include "records/partial_download_tracker.h"

namespace tarnel {

namespace {
bool canRun(const ConnectionConfig& c) {
    return c.enabled && !c.host.empty();
}
}  // namespace

void ConnectionsManager::addConnection(const ConnectionConfig& config) {
    auto list = connections_();
    list.push_back(config);
    connections_.set(std::move(list));
    saveConnections();
    if (canRun(config)) createEngine(config, false);
}

void ConnectionsManager::updateConnection(const ConnectionConfig& config, Password password) {
    auto list = connections_();
    auto it = std::find_if(list.begin(), list.end(), [&](auto& c) { return c.id == config.id; });
    if (it == list.end()) return;
    // The record's password is the one read from the keyring, or "" while it is unread, which
    // storing takes for no change.
    std::string kept = std::move(it->password);
    *it = config;
    if (password == Password::keep) it->password = std::move(kept);
    const ConnectionConfig updated = *it;
    connections_.set(std::move(list));
    saveConnections();
    // Every edit restarts the engine, unpaused, whatever field it touched.
    awaitingPassword_.erase(updated.id);
    if (auto engine = engines_.find(updated.id); engine != engines_.end()) {
        engine->second->stop();
        engines_.erase(engine);
    }
    if (canRun(updated))
        createEngine(updated, false);
    else
        recomputeAggregates();  // no engine of its own will
}

void ConnectionsManager::removeConnection(const Uuid& id) {
    awaitingPassword_.erase(id);
    if (auto engine = engines_.find(id); engine != engines_.end()) {
        engine->second->stop();
        engines_.erase(engine);
        recomputeAggregates();
    }
    // The grants end first, then their stored folders go.
    auto& store = services_.settingsStore;
    activeBookmarks_.erase(id);
    store.remove(BookmarkManager::bookmarkKey(id));
    activeFallbackBookmarks_.erase(id);
    store.remove(BookmarkManager::fallbackBookmarkKey(id));
    if (const auto* config = findConnection(id))
        for (const auto& rule : config->routingRules) {
            activeRuleBookmarks_.erase(rule.id);
            store.remove(BookmarkManager::ruleBookmarkKey(rule.id));
        }
    downloadTrackers_.erase(id);
    DownloadTracker::forgetConnection(*partialTracker_->journal(), id.toString());
    partialTracker_->removeConnection(id.toString());
    auto list = connections_();
    std::erase_if(list, [&](auto& c) { return c.id == id; });
    connections_.set(std::move(list));
    saveConnections();
}

void ConnectionsManager::addSelectedRemotePaths(const std::vector<std::string>& paths,
                                                const Uuid& connectionId) {
    auto list = connections_();
    auto it = std::find_if(list.begin(), list.end(), [&](auto& c) { return c.id == connectionId; });
    if (it == list.end()) return;
    std::vector<std::string> added;
    for (const auto& p : paths)
        if (std::find(it->selectedRemotePaths.begin(), it->selectedRemotePaths.end(), p) ==
                it->selectedRemotePaths.end() &&
            std::find(added.begin(), added.end(), p) == added.end())
            added.push_back(p);
    if (added.empty()) return;
    it->selectedRemotePaths.insert(it->selectedRemotePaths.end(), added.begin(), added.end());
    connections_.set(std::move(list));
    saveConnections();
}

void ConnectionsManager::migrateLegacyConnection() {
    const auto& store = services_.settingsStore;
    const auto host = store.stringValue("ftp_host").value_or("");
    if (host.empty()) return;
    ConnectionConfig c;
    c.host = host;
    c.name = host;
    const auto port = store.intValue("ftp_port").value_or(0);
    c.port = port == 0 ? 21 : static_cast<int>(port);
    c.username = store.stringValue("ftp_username").value_or("");
    c.password = store.stringValue("ftp_password").value_or("");
    c.remotePath = store.stringValue("ftp_remote_path").value_or("/");
    c.localPath = store.stringValue("local_path").value_or("");
    const auto interval = store.doubleValue("poll_interval").value_or(0.0);
    c.pollInterval = interval == 0.0 ? 30.0 : interval;
    const auto checks = store.intValue("stable_checks").value_or(0);
    c.requiredStableChecks = checks == 0 ? 2 : static_cast<int>(checks);
    if (auto filter = store.stringValue("extension_filter")) c.extensionFilter = *filter;
    c.extensionFilterExclude = store.boolValue("extension_filter_exclude").value_or(false);
    c.deleteAfterDownload = store.boolValue("delete_after_download").value_or(true);
    // The old keys stay: an emptied list brings this connection back at the next launch.
    auto list = connections_();
    list.push_back(c);
    connections_.set(std::move(list));
    saveConnections();
    services_.logService.log("Migrated legacy connection: " + host, LogLevel::info);
}

void ConnectionsManager::sweepOrphanedPartials() {
    std::set<std::string> folders;
    for (const auto& c : connections_())
        if (!c.localPath.empty()) folders.insert(c.localPath);
    for (const auto& folder : folders) {
        for (const auto& file : partialTracker_->orphanedFiles(folder)) {
            std::error_code ec;
            std::filesystem::remove(file, ec);
            if (ec)
                services_.logService.log("Could not remove orphaned partial " +
                                             file.filename().string() + ": " + ec.message(),
                                         LogLevel::warning);
            else
                services_.logService.log("Removed orphaned partial: " + file.filename().string(),
                                         LogLevel::info);
        }
    }
}

std::vector<std::pair<std::string, std::filesystem::path>> ConnectionsManager::destinationFolders(
    const Uuid& connectionId) const {
    std::vector<std::pair<std::string, std::filesystem::path>> out;
    const auto* config = findConnection(connectionId);
    if (!config) return out;
    auto add = [&](const std::string& label, const std::filesystem::path& folder) {
        for (const auto& [l, f] : out)
            if (f == folder) return;
        out.emplace_back(label, folder);
    };
    if (auto main = activeBookmarks_.find(connectionId); main != activeBookmarks_.end())
        add(localized("Main folder"), main->second);
    for (const auto& rule : config->routingRules) {
        if (!rule.isEnabled || !rule.destinationPath) continue;
        if (auto it = activeRuleBookmarks_.find(rule.id); it != activeRuleBookmarks_.end())
            add(rule.displaySummary(), it->second);
    }
    if (config->fallbackBehavior == FallbackBehavior::useSpecificFolder)
        if (auto it = activeFallbackBookmarks_.find(connectionId); it != activeFallbackBookmarks_.end())
            add(localized("Other files"), it->second);
    return out;
}

}  // namespace tarnel
