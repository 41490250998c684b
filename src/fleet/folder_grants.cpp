// The manager's running folder grants: restored at start-up, replaced when the user chooses a
// folder.
#include "fleet/connections_manager.h"
#include "records/log_service.h"

namespace tarnel {

void ConnectionsManager::restoreFolderGrants() {
    const auto& list = connections_();
    activeBookmarks_ = bookmarks_.restoreAll(list);
    if (!activeBookmarks_.empty())
        services_.logService.log(
            "Restored " + std::to_string(activeBookmarks_.size()) + " folder bookmark(s)",
            LogLevel::info);
    activeRuleBookmarks_ = bookmarks_.restoreAllRules(list);
    activeFallbackBookmarks_ = bookmarks_.restoreAllFallbacks(list);
    // Rule and fallback folders that are missing keep their bookmarks; routing uses them again
    // once they are back.
    const auto& store = services_.settingsStore;
    const auto sayMissing = [&](const ConnectionConfig& c, const std::string& what,
                                const std::string& key) {
        if (auto path = store.stringValue(key))
            services_.logService.log("[" + c.name + "] " + what + " missing: " + *path +
                                         " \u2014 its bookmark is kept until it is back",
                                     LogLevel::warning);
    };
    for (const auto& c : list) {
        for (const auto& rule : c.routingRules)
            if (rule.destinationPath && !activeRuleBookmarks_.contains(rule.id))
                sayMissing(c, "Rule folder", BookmarkManager::ruleBookmarkKey(rule.id));
        if (c.fallbackBehavior == FallbackBehavior::useSpecificFolder &&
            !activeFallbackBookmarks_.contains(c.id))
            sayMissing(c, "Fallback folder", BookmarkManager::fallbackBookmarkKey(c.id));
    }
    for (const auto& c : list) {
        if (c.localPath.empty() || activeBookmarks_.contains(c.id)) continue;
        if (bookmarks_.hasBookmark(c.id))
            sayMissing(c, "Local folder", BookmarkManager::bookmarkKey(c.id));
        else
            services_.logService.log("[" + c.name +
                                         "] Folder bookmark missing or invalid \u2014 user must "
                                         "re-select the local folder in Settings.",
                                     LogLevel::warning);
    }
}

namespace {

using Save = void (BookmarkManager::*)(const std::filesystem::path&, const Uuid&) const;

// The old grant goes, the new folder is recorded, and it is granted if it can be reached.
void replaceGrant(FolderGrants& grants, const BookmarkManager& bookmarks, Save save,
                  const std::filesystem::path& url, const Uuid& id) {
    grants.erase(id);
    (bookmarks.*save)(url, id);
    if (BookmarkManager::startAccessing(url))
        grants[id] = url;
}

}  // namespace

void ConnectionsManager::updateBookmark(const std::filesystem::path& url,
                                        const Uuid& connectionId) {
    replaceGrant(activeBookmarks_, bookmarks_, &BookmarkManager::saveBookmark, url, connectionId);
}

void ConnectionsManager::updateRuleBookmark(const std::filesystem::path& url, const Uuid& ruleId) {
    replaceGrant(activeRuleBookmarks_, bookmarks_, &BookmarkManager::saveRuleBookmark, url, ruleId);
}

void ConnectionsManager::updateFallbackBookmark(const std::filesystem::path& url,
                                                const Uuid& connectionId) {
    replaceGrant(activeFallbackBookmarks_, bookmarks_, &BookmarkManager::saveFallbackBookmark, url,
                 connectionId);
}

}  // namespace tarnel
