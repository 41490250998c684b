#include "fleet/bookmark_manager.h"

#include <cstdio>
#include <system_error>

namespace tarnel {

namespace fs = std::filesystem;

namespace {

// Why `url` can be neither bookmarked nor resolved, when it can't.
std::optional<std::string> unreachable(const fs::path& url) {
    if (!url.is_absolute())
        return "not an absolute path";
    std::error_code ec;
    if (fs::exists(url, ec))
        return std::nullopt;
    if (!ec)
        ec = std::make_error_code(std::errc::no_such_file_or_directory);
    return ec.message();
}

void reportToStandardError(const std::string& line) {
    std::fprintf(stderr, "%s\n", line.c_str());
}

}  // namespace

BookmarkManager::BookmarkManager(SettingsStore& store, Report report)
    : store_(store), report_(report ? std::move(report) : reportToStandardError) {}

std::string BookmarkManager::bookmarkKey(const Uuid& connectionId) {
    return bookmarkPrefix + connectionId.toString();
}

std::string BookmarkManager::ruleBookmarkKey(const Uuid& ruleId) {
    return ruleBookmarkPrefix + ruleId.toString();
}

std::string BookmarkManager::fallbackBookmarkKey(const Uuid& connectionId) {
    return fallbackBookmarkPrefix + connectionId.toString();
}

void BookmarkManager::save(
    const std::string& key, const fs::path& url,
    const std::function<std::string(const std::string&)>& failureLine) const {
    if (auto problem = unreachable(url)) {
        report_(failureLine(*problem));
        return;
    }
    store_.setValue(key, url.string());
}

void BookmarkManager::saveBookmark(const fs::path& url, const Uuid& connectionId) const {
    save(bookmarkKey(connectionId), url, [&](const std::string& error) {
        return "[BookmarkManager] Failed to save bookmark for " + url.string() + ": " + error;
    });
}

void BookmarkManager::saveRuleBookmark(const fs::path& url, const Uuid& ruleId) const {
    save(ruleBookmarkKey(ruleId), url, [&](const std::string& error) {
        return "[BookmarkManager] Failed to save rule bookmark: " + url.string() + ": " + error;
    });
}

void BookmarkManager::saveFallbackBookmark(const fs::path& url, const Uuid& connectionId) const {
    save(fallbackBookmarkKey(connectionId), url, [&](const std::string& error) {
        return "[BookmarkManager] Failed to save fallback bookmark: " + url.string() + ": " + error;
    });
}

std::optional<fs::path> BookmarkManager::restore(const std::string& key, bool loud) const {
    auto data = store_.stringValue(key);
    if (!data)
        return std::nullopt;
    const fs::path url(*data);
    if (!url.is_absolute()) {
        if (loud)
            report_("[BookmarkManager] Failed to restore bookmark: " + *data +
                    ": not an absolute path");
        store_.remove(key);
        return std::nullopt;
    }
    if (auto problem = unreachable(url)) {
        // A disk not mounted yet or a share not up: the grant stays, to be used once it is back.
        if (loud)
            report_("[BookmarkManager] Folder missing, its bookmark is kept until it is back: " +
                    *data + ": " + *problem);
        return std::nullopt;
    }
    // A path never goes stale, so there is nothing to write back before access starts.
    if (!startAccessing(url)) {
        if (loud)
            report_("[BookmarkManager] Failed to start accessing: " + url.string());
        return std::nullopt;
    }
    return url;
}

std::optional<fs::path> BookmarkManager::restoreBookmark(const Uuid& connectionId) const {
    return restore(bookmarkKey(connectionId), true);
}

std::optional<fs::path> BookmarkManager::restoreRuleBookmark(const Uuid& ruleId) const {
    return restore(ruleBookmarkKey(ruleId), false);
}

std::optional<fs::path> BookmarkManager::restoreFallbackBookmark(const Uuid& connectionId) const {
    return restore(fallbackBookmarkKey(connectionId), false);
}

FolderGrants BookmarkManager::restoreAll(const std::vector<ConnectionConfig>& connections) const {
    FolderGrants grants;
    for (const auto& c : connections)
        if (!c.localPath.empty())
            if (auto url = restoreBookmark(c.id))
                grants[c.id] = *url;
    return grants;
}

FolderGrants BookmarkManager::restoreAllRules(
    const std::vector<ConnectionConfig>& connections) const {
    FolderGrants grants;
    for (const auto& c : connections)
        for (const auto& rule : c.routingRules)
            if (rule.destinationPath)
                if (auto url = restore(ruleBookmarkKey(rule.id), true))
                    grants[rule.id] = *url;
    return grants;
}

FolderGrants BookmarkManager::restoreAllFallbacks(
    const std::vector<ConnectionConfig>& connections) const {
    FolderGrants grants;
    for (const auto& c : connections)
        if (c.fallbackBehavior == FallbackBehavior::useSpecificFolder && !c.fallbackPath.empty())
            if (auto url = restore(fallbackBookmarkKey(c.id), true))
                grants[c.id] = *url;
    return grants;
}

bool BookmarkManager::hasBookmark(const Uuid& connectionId) const {
    auto data = store_.stringValue(bookmarkKey(connectionId));
    return data && !data->empty();
}

bool BookmarkManager::startAccessing(const fs::path& url) {
    std::error_code ec;
    return fs::exists(url, ec);
}

}  // namespace tarnel
