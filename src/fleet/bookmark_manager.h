#pragma once

#include <filesystem>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "connections/connection_config.h"
#include "platform/settings_store.h"
#include "platform/uuid.h"

namespace tarnel {

// Running folder grants by owner id: a connection's or a routing rule's.
using FolderGrants = std::map<Uuid, std::filesystem::path>;

// Keeps the folders the user chose reachable across restarts, for three uses: a connection's
// local folder, a routing rule's folder and a connection's fallback folder. There is no sandbox
// here, so a bookmark is the chosen path itself, stored under the owner's key; it resolves, and
// grants access, while the path exists. Holds no state of its own. Faults go to `report`
// (standard error in the program), never to the program's log.
class BookmarkManager {
public:
    using Report = std::function<void(const std::string&)>;

    static constexpr const char* bookmarkPrefix = "tarnel_bookmark_";
    static constexpr const char* ruleBookmarkPrefix = "tarnel_rule_bm_";
    static constexpr const char* fallbackBookmarkPrefix = "tarnel_fback_bm_";

    explicit BookmarkManager(SettingsStore& store, Report report = {});

    // Records the chosen path; one that cannot be bookmarked leaves the stored one in place.
    void saveBookmark(const std::filesystem::path& url, const Uuid& connectionId) const;
    void saveRuleBookmark(const std::filesystem::path& url, const Uuid& ruleId) const;
    void saveFallbackBookmark(const std::filesystem::path& url, const Uuid& connectionId) const;

    // The stored folder, in access, or nothing. A folder that is missing keeps its bookmark, for
    // a disk or share that comes back; one that can never resolve is dropped for good.
    std::optional<std::filesystem::path> restoreBookmark(const Uuid& connectionId) const;
    std::optional<std::filesystem::path> restoreRuleBookmark(const Uuid& ruleId) const;
    std::optional<std::filesystem::path> restoreFallbackBookmark(const Uuid& connectionId) const;

    // The grants of every connection with a local folder; of every rule with a folder, enabled
    // or not, so the grant is there when it is enabled again; of every connection that sends
    // other files to a folder of their own. Each folder that is missing is reported.
    FolderGrants restoreAll(const std::vector<ConnectionConfig>& connections) const;
    FolderGrants restoreAllRules(const std::vector<ConnectionConfig>& connections) const;
    FolderGrants restoreAllFallbacks(const std::vector<ConnectionConfig>& connections) const;

    // A local-folder bookmark is stored; it is not resolved.
    bool hasBookmark(const Uuid& connectionId) const;

    // Starts access to a resolved or newly chosen folder: granted while the path exists. A
    // path holds nothing open, so there is nothing to give back when a grant ends.
    static bool startAccessing(const std::filesystem::path& url);

    static std::string bookmarkKey(const Uuid& connectionId);
    static std::string ruleBookmarkKey(const Uuid& ruleId);
    static std::string fallbackBookmarkKey(const Uuid& connectionId);

private:
    void save(const std::string& key, const std::filesystem::path& url,
              const std::function<std::string(const std::string&)>& failureLine) const;
    // `loud`: reports resolution and access faults (start-up, and the local folder always).
    std::optional<std::filesystem::path> restore(const std::string& key, bool loud) const;

    SettingsStore& store_;
    Report report_;
};

}  // namespace tarnel
