#include <gtest/gtest.h>

#include "shell/popover/popover_texts.h"

namespace tarnel {
namespace {

TEST(PopoverHeader, DiskThenNetworkThenPauseThenTheCountOfEnabledConnections) {
    EXPECT_EQ(headerStatusText({true, true, true, 3}), "Low disk");
    EXPECT_EQ(headerStatusText({false, true, true, 3}), "No network");
    EXPECT_EQ(headerStatusText({false, false, true, 3}), "Paused");
    EXPECT_EQ(headerStatusText({false, false, false, 0}), "No connections");
    // The count's words, in each language's forms, are the language test's.
    EXPECT_EQ(headerStatusText({false, false, false, 4}), "4 active connections");
}

TEST(PopoverBanner, FirstRuleThatHoldsWithItsIconAndColour) {
    auto banner = bannerFor({.pausedForNetwork = true, .onHotspot = true, .pausedForDiskSpace = true});
    ASSERT_TRUE(banner);
    EXPECT_EQ(banner->text, "Paused — mobile hotspot detected");
    EXPECT_STREQ(banner->icon, "wifi.slash");
    EXPECT_EQ(banner->tone, Tone::orange);

    banner = bannerFor({.pausedForNetwork = true, .pausedForDiskSpace = true});
    EXPECT_EQ(banner->text, "Paused — no internet connection");
    // A hotspot that has not paused anything says nothing.
    banner = bannerFor({.onHotspot = true, .pausedForDiskSpace = true});
    EXPECT_EQ(banner->text, "Paused — low disk space");
    EXPECT_STREQ(banner->icon, "externaldrive.badge.exclamationmark");

    banner = bannerFor({.preventSleepDuringDownloads = true, .preventingSleep = true});
    EXPECT_EQ(banner->text, "Preventing sleep — downloading");
    EXPECT_EQ(banner->tone, Tone::blue);
    banner = bannerFor({.preventSleepDuringDownloads = true});
    EXPECT_EQ(banner->text, "Sleep prevention enabled");
    EXPECT_EQ(banner->tone, Tone::secondary);
    // Sleep held off for another reason, with the setting off: no banner.
    EXPECT_FALSE(bannerFor({.preventingSleep = true}));
}

std::vector<DownloadProgress> downloads(int n) {
    std::vector<DownloadProgress> out(n);
    for (int i = 0; i < n; ++i) out[i].fileName = "d" + std::to_string(i);
    return out;
}

std::vector<TrackedFileSnapshot> waiting(int n) {
    std::vector<TrackedFileSnapshot> out(n);
    for (int i = 0; i < n; ++i) out[i].name = "w" + std::to_string(i);
    return out;
}

TEST(PopoverActivity, ThreeRowsGoToDownloadsFirstThenWaitingFiles) {
    EXPECT_TRUE(planActivity({}, {}).monitoring());

    auto plan = planActivity(downloads(1), waiting(4));
    EXPECT_EQ(plan.downloads.size(), 1u);
    EXPECT_EQ(plan.waiting.size(), 2u);
    EXPECT_EQ(plan.moreWaiting, 2);

    // Exactly two downloads: no "more downloading" line, one row left for a waiting file.
    plan = planActivity(downloads(2), waiting(1));
    EXPECT_EQ(plan.downloads.size(), 2u);
    EXPECT_EQ(plan.moreDownloading, 0);
    ASSERT_EQ(plan.waiting.size(), 1u);
    EXPECT_EQ(plan.waiting[0].name, "w0");
    EXPECT_EQ(plan.moreWaiting, 0);

    // Three downloads and four waiting: two download rows, one more downloading, one waiting
    // row and three waiting for stability.
    plan = planActivity(downloads(3), waiting(4));
    EXPECT_EQ(plan.downloads.size(), 2u);
    EXPECT_EQ(plan.downloads[1].fileName, "d1");
    EXPECT_EQ(plan.moreDownloading, 1);
    EXPECT_EQ(plan.waiting.size(), 1u);
    EXPECT_EQ(plan.moreWaiting, 3);

    plan = planActivity({}, waiting(3));
    EXPECT_EQ(plan.waiting.size(), 3u);
    EXPECT_EQ(plan.moreWaiting, 0);
}

TEST(PopoverRows, StatusWordDiskColourAndFigures) {
    ConnectionConfig config;
    config.enabled = false;
    EXPECT_EQ(connectionStatusWord(config, EngineStatus{ConnectionState::syncing, "x"}), "Disabled");
    config.enabled = true;
    EXPECT_EQ(connectionStatusWord(config, std::nullopt), "Stopped");
    config.autoConnectOnLaunch = false;
    EXPECT_EQ(connectionStatusWord(config, std::nullopt), "Manual");
    EXPECT_EQ(connectionStatusWord(config, EngineStatus{ConnectionState::syncing, "Listing"}), "Connected");
    EXPECT_EQ(connectionStatusWord(config, EngineStatus{ConnectionState::error, "Login failed"}),
              "Login failed");

    EXPECT_EQ(diskTone(5.0), Tone::secondary);
    EXPECT_EQ(diskTone(4.99), Tone::orange);
    EXPECT_EQ(diskTone(2.0), Tone::orange);
    EXPECT_EQ(diskTone(1.99), Tone::red);

    EXPECT_EQ(pollIntervalText(2), "2 seconds");
    EXPECT_EQ(pollIntervalText(60), "1 minute");
    EXPECT_EQ(pollIntervalText(90), "90 seconds");
    EXPECT_EQ(pollIntervalText(300), "5 minutes");

    DownloadProgress progress;
    EXPECT_EQ(progressPercentText(progress), "…");
    progress.totalBytes = 3000;
    progress.downloadedBytes = 1999;
    EXPECT_EQ(progressPercentText(progress), "66%");
}

}  // namespace
}  // namespace tarnel
