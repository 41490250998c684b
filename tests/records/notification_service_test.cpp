#include "records/notification_service.h"

#include <gtest/gtest.h>

namespace tarnel {
namespace {

struct Posted {
    std::string identifier, title, body;
    bool withSound;
};

class NotificationServiceTest : public testing::Test, public Notifier {
protected:
    void post(const std::string& identifier, const std::string& title, const std::string& body,
              bool withSound) override {
        posted.push_back({identifier, title, body, withSound});
    }
    void downloaded(int n) {
        std::vector<std::string> names;
        for (int i = 1; i <= n; ++i)
            names.push_back("f" + std::to_string(i));
        service.notifyDownloaded(names, 1'500'000, "Shop");
    }
    MemorySettingsStore store;
    AppSettings settings{store, "/x/tarnel.desktop"};
    NotificationService service{settings, *this};
    std::vector<Posted> posted;
};

TEST_F(NotificationServiceTest, DownloadsCountRuleAndGrouping) {
    downloaded(20);  // notifications start switched off
    settings.setNotificationsEnabled(true);
    downloaded(9);
    EXPECT_TRUE(posted.empty());
    downloaded(10);
    settings.setNotifyMinFileCount(1);
    settings.setPlaySoundOnDownload(false);
    downloaded(1);  // a single file is listed even when grouping
    ASSERT_EQ(posted.size(), 2u);
    EXPECT_EQ(posted[0].title, "Tarnel: 10 files downloaded");
    EXPECT_EQ(posted[0].body, "[Shop] 10 files (1.5 MB)");
    EXPECT_TRUE(posted[0].withSound);
    EXPECT_EQ(posted[1].title, "Tarnel: 1 file downloaded");
    EXPECT_EQ(posted[1].body, "[Shop] f1");
    EXPECT_FALSE(posted[1].withSound);
    EXPECT_NE(posted[0].identifier, posted[1].identifier);
}

TEST_F(NotificationServiceTest, UngroupedListsFiveNamesThenACount) {
    settings.setNotificationsEnabled(true);
    settings.setNotifyMinFileCount(1);
    settings.setGroupNotifications(false);
    downloaded(5);
    downloaded(7);
    EXPECT_EQ(posted[0].body, "[Shop] f1\nf2\nf3\nf4\nf5");
    EXPECT_EQ(posted[1].body, "[Shop] f1\nf2\nf3\nf4\nf5\n...and 2 more");
}

TEST_F(NotificationServiceTest, ErrorsFollowTheirSwitchAndCarryAFixedIdentifier) {
    settings.setNotificationsEnabled(true);
    settings.setNotifyErrors(false);
    service.notifyConnectionError("Shop", "Login denied");
    service.notifyTransferFailed("Shop", "a.zip", 3);
    settings.setNotifyErrors(true);
    service.notifyConnectionError("Shop", "Login denied");
    service.notifyLocalFolderProblem("Shop", "Folder missing");
    ASSERT_EQ(posted.size(), 3u);
    EXPECT_EQ(posted[0].body, "[Shop] a.zip failed after 3 attempts");
    EXPECT_EQ(posted[1].identifier, "error-Shop");
    EXPECT_EQ(posted[2].identifier, "folder-Shop");
}

}  // namespace
}  // namespace tarnel
