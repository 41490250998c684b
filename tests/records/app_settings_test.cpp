#include "records/app_settings.h"

#include <gtest/gtest.h>

#include "records/atomic_file.h"
#include "test_dir.h"

namespace tarnel {
namespace {

TEST(AppSettings, DefaultsThenStoredValuesAcrossARestart) {
    MemorySettingsStore store;
    {
        AppSettings settings(store, "/x/tarnel.desktop");
        EXPECT_FALSE(settings.notificationsEnabled());
        EXPECT_TRUE(settings.pauseOnNoInternet());
        EXPECT_EQ(settings.soundName(), "Glass");
        settings.setPauseOnNoInternet(false);
        settings.setDiskSpaceThresholdGB(20);
        settings.setPreferredLanguage("pt-PT");
    }
    AppSettings settings(store, "/x/tarnel.desktop");
    EXPECT_FALSE(settings.pauseOnNoInternet());  // a stored false beats a default of true
    EXPECT_EQ(settings.diskSpaceThresholdGB(), 20);
    EXPECT_EQ(AppSettings::startupLanguage(store), "pt-PT");
    settings.setPreferredLanguage("system");
    EXPECT_FALSE(store.contains("AppleLanguages"));
}

TEST(AppSettings, OldSleepChoiceAndMinimumFileCountOnLoading) {
    MemorySettingsStore store;
    store.setValue("sleep_behavior", std::string("preventSleep"));
    store.setValue("notify_min_file_count", std::int64_t{0});
    EXPECT_TRUE(AppSettings(store, "/x").preventSleepDuringDownloads());
    EXPECT_EQ(AppSettings(store, "/x").notifyMinFileCount(), 1);
    store.setValue("prevent_sleep_downloads", false);  // the current key wins
    EXPECT_FALSE(AppSettings(store, "/x").preventSleepDuringDownloads());
    store.remove("prevent_sleep_downloads");
    store.setValue("sleep_behavior", std::string("pauseOnSleep"));
    EXPECT_FALSE(AppSettings(store, "/x").preventSleepDuringDownloads());
}

TEST(AppSettings, LaunchAtLoginWritesAndRemovesTheAutostartEntry) {
    TestDir dir("autostart");
    MemorySettingsStore store;
    const auto entry = dir / "autostart/tarnel.desktop";
    AppSettings settings(store, entry);
    settings.applyLaunchAtLogin(true);
    EXPECT_NE(readWholeFile(entry).value_or("").find("\nExec=/"), std::string::npos);
    settings.applyLaunchAtLogin(false);
    EXPECT_FALSE(std::filesystem::exists(entry));

    // A non-empty folder where the entry should be cannot be removed: told on standard error.
    std::filesystem::create_directories(dir / "blocked/x");
    testing::internal::CaptureStderr();
    AppSettings(store, dir / "blocked").applyLaunchAtLogin(false);
    EXPECT_NE(testing::internal::GetCapturedStderr().find(
                  "[LaunchAtLogin] Failed to unregister login item: "),
              std::string::npos);
}

}  // namespace
}  // namespace tarnel
