#include "fleet/bookmark_manager.h"

#include <gtest/gtest.h>

#include "fleet_fixture.h"

namespace tarnel::testing {
namespace {

namespace fs = std::filesystem;
using namespace std::chrono_literals;

struct BookmarkTest : FleetFixture {
    std::vector<std::string> reports;
    BookmarkManager bookmarks{settingsStore,
                              [this](const std::string& l) { reports.push_back(l); }};

    std::string folder(const std::string& name) {
        fs::create_directories(dir / name);
        return (dir / name).string();
    }
    RoutingRule rule(const std::string& ext, std::optional<std::string> destination) {
        RoutingRule r;
        r.matchType = RuleMatchType::fileType;
        r.matchValue = ext;
        r.destinationPath = std::move(destination);
        return r;
    }
};

TEST_F(BookmarkTest, RestoreAllTakesOnlyFoldersInUseAndKeepsOnesThatAreMissing) {
    auto kept = connection("Kept", "h"), noFolder = connection("NoFolder", "h"),
         gone = connection("Gone", "h"), local = connection("Local", "h");
    kept.localPath = folder("kept");
    noFolder.localPath.clear();
    gone.localPath = folder("gone");
    auto disabled = rule("jpg", folder("photos")), unset = rule("pdf", std::nullopt);
    disabled.isEnabled = false;
    kept.routingRules = {disabled, unset};
    kept.fallbackBehavior = FallbackBehavior::useSpecificFolder;
    kept.fallbackPath = local.fallbackPath = folder("other");  // Local keeps its main folder
    bookmarks.saveBookmark(kept.localPath, kept.id);
    bookmarks.saveBookmark(kept.localPath, noFolder.id);  // left from a folder since cleared
    bookmarks.saveBookmark(gone.localPath, gone.id);
    for (const auto& r : {disabled, unset})
        bookmarks.saveRuleBookmark(dir / "photos", r.id);
    for (const auto& c : {kept, local})
        bookmarks.saveFallbackBookmark(dir / "other", c.id);
    fs::remove(gone.localPath);

    const std::vector<ConnectionConfig> list{kept, noFolder, gone, local};
    EXPECT_EQ(bookmarks.restoreAll(list), (FolderGrants{{kept.id, kept.localPath}}));
    EXPECT_EQ(reports, std::vector<std::string>{
                           "[BookmarkManager] Folder missing, its bookmark is kept until it is "
                           "back: " +
                           gone.localPath + ": No such file or directory"});
    EXPECT_TRUE(bookmarks.hasBookmark(gone.id));  // a disk not mounted yet
    EXPECT_TRUE(bookmarks.hasBookmark(noFolder.id));
    fs::create_directories(gone.localPath);
    EXPECT_EQ(bookmarks.restoreAll(list).size(), 2u);
    EXPECT_EQ(reports.size(), 1u);
    EXPECT_EQ(bookmarks.restoreAllRules(list), (FolderGrants{{disabled.id, dir / "photos"}}));
    EXPECT_EQ(bookmarks.restoreAllFallbacks(list), (FolderGrants{{kept.id, dir / "other"}}));

    // Saving what can't be reached keeps the stored folder and says why.
    bookmarks.saveBookmark(dir / "missing", kept.id);
    bookmarks.saveRuleBookmark("docs", disabled.id);
    EXPECT_EQ(reports.at(1), "[BookmarkManager] Failed to save bookmark for " +
                                 (dir / "missing").string() + ": No such file or directory");
    EXPECT_EQ(reports.at(2),
              "[BookmarkManager] Failed to save rule bookmark: docs: not an "
              "absolute path");
    EXPECT_EQ(bookmarks.restoreBookmark(kept.id), kept.localPath);
    EXPECT_EQ(bookmarks.restoreRuleBookmark(disabled.id), dir / "photos");
}

TEST_F(BookmarkTest, GrantsSurviveARestartRouteFilesAndEndWithTheirConnection) {
    auto shop = connection("Shop", "shop"), gone = connection("Gone", "gone");
    shop.localPath = folder("in");
    gone.localPath = folder("gone");
    auto photos = rule("jpg", folder("photos"));
    auto docs = rule("pdf", "docs");  // inside the main folder
    auto lost = rule("txt", folder("lost"));
    shop.routingRules = {photos, docs, lost};
    shop.fallbackBehavior = FallbackBehavior::useSpecificFolder;
    shop.fallbackPath = folder("other");
    {
        // As the editor does it: the folders are chosen, then the record is applied.
        auto manager = makeManager();
        manager->updateBookmark(shop.localPath, shop.id);
        manager->updateRuleBookmark(dir / "photos", photos.id);
        manager->updateRuleBookmark(dir / "lost", lost.id);
        manager->updateFallbackBookmark(dir / "other", shop.id);
        manager->updateBookmark(gone.localPath, gone.id);
        manager->addConnection(shop);
        manager->addConnection(gone);
        manager->stopAll();
    }
    fs::remove(gone.localPath);
    fs::remove(dir / "lost");  // a share not up yet: its files go to the main folder meanwhile
    auto manager = makeManager();
    EXPECT_TRUE(hasLogLine("INFO Restored 1 folder bookmark(s)"));
    EXPECT_TRUE(hasLogLine("WARN [Gone] Local folder missing: " + gone.localPath +
                           " \u2014 its bookmark is kept until it is back"));
    EXPECT_TRUE(hasLogLine("WARN [Shop] Rule folder missing: " + (dir / "lost").string() +
                           " \u2014 its bookmark is kept until it is back"));

    manager->startAll();
    servers.at("shop")->files = {
        {"a.jpg", "jpeg"}, {"b.pdf", "pdf"}, {"c.txt", "text"}, {"d.zip", "zip"}};
    loop.advance(100s);
    EXPECT_TRUE(fs::exists(dir / "photos" / "a.jpg"));
    EXPECT_TRUE(fs::exists(dir / "in" / "docs" / "b.pdf"));
    EXPECT_TRUE(fs::exists(dir / "in" / "c.txt"));
    EXPECT_TRUE(fs::exists(dir / "other" / "d.zip"));

    // The share is back: its rule routes into it again, without a restart.
    fs::create_directories(dir / "lost");
    servers.at("shop")->files["e.txt"] = "back";
    loop.advance(100s);
    EXPECT_TRUE(fs::exists(dir / "lost" / "e.txt"));

    manager->removeConnection(shop.id);
    EXPECT_TRUE(manager->activeRuleBookmarks().empty());
    EXPECT_TRUE(manager->activeFallbackBookmarks().empty());
    for (const auto& key :
         {BookmarkManager::bookmarkKey(shop.id), BookmarkManager::fallbackBookmarkKey(shop.id),
          BookmarkManager::ruleBookmarkKey(photos.id)})
        EXPECT_FALSE(settingsStore.contains(key)) << key;
}

}  // namespace
}  // namespace tarnel::testing
