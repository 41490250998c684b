#include "records/stats_service.h"

#include <cmath>

#include <gtest/gtest.h>

#include "platform/testing/virtual_loop.h"

namespace tarnel {
namespace {

using std::chrono::hours;

// Local time is UTC+2 here, so the day turns at 22:00 UTC.
TEST(StatsService, DaysRollOverAtLocalMidnightAndAfterIdleDays) {
    MemorySettingsStore store;
    VirtualLoop clock(nullptr, VirtualLoop::defaultStart(), hours(2));
    clock.setLocalTime(2024, 3, 7, 23, 50);
    {
        StatsService stats(store, clock);
        EXPECT_FALSE(stats.lastActivityText());
        stats.recordDownload(1024);
        clock.advance(std::chrono::minutes(20));  // 00:10 on the 8th
        stats.recordDownload(2048);
        EXPECT_EQ(stats.yesterdayBytes(), 1024);
        EXPECT_EQ(stats.todaySummary(), "1 file (2.0 KB)");
        EXPECT_EQ(stats.totalSummary(), "2 files (3.0 KB)");
    }
    clock.advance(hours(72));  // three idle days, then a restart
    StatsService stats(store, clock);
    EXPECT_EQ(stats.currentDay(), "2024-03-11");
    EXPECT_EQ(stats.yesterdayBytes(), 2048);  // the last day that had been current
    EXPECT_EQ(stats.todaySummary(), "0 files (0 B)");
    EXPECT_EQ(stats.totalFiles(), 2);
    EXPECT_EQ(stats.lastActivityText(), "3d ago");
}

TEST(StatsService, LastActivityText) {
    MemorySettingsStore store;
    VirtualLoop clock;
    StatsService stats(store, clock);
    stats.recordDownload(1);
    const std::pair<int, const char*> cases[] = {
        {4, "just now"}, {5, "5s ago"}, {60, "1 min ago"}, {3599, "59 min ago"}, {3600, "1h ago"}};
    int elapsed = 0;
    for (auto [at, text] : cases) {
        clock.advance(std::chrono::seconds(at - elapsed));
        elapsed = at;
        EXPECT_EQ(stats.lastActivityText(), text) << at;
    }
}

TEST(StatsService, FormatBytesAtUnitEdgesAndBadStoredCounters) {
    EXPECT_EQ(StatsService::formatBytes(1023), "1023 B");
    EXPECT_EQ(StatsService::formatBytes(1024), "1.0 KB");
    EXPECT_EQ(StatsService::formatBytes(1048576), "1.0 MB");
    EXPECT_EQ(StatsService::formatBytes(1073741824), "1.00 GB");

    MemorySettingsStore store;
    store.setValue("stats_total_bytes", std::nan(""));
    store.setValue("stats_today_bytes", 1e300);
    VirtualLoop clock;
    StatsService stats(store, clock);
    EXPECT_EQ(stats.totalBytes(), 0);
    EXPECT_EQ(stats.todayBytes(), 0);
}

}  // namespace
}  // namespace tarnel
