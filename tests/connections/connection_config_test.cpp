#include "connections/connection_config.h"

#include <gtest/gtest.h>

#include "platform/testing/virtual_loop.h"

namespace tarnel {
namespace {

TEST(ConnectionSchedule, EndHourIsInclusiveAndWindowsMayWrapMidnight) {
    VirtualLoop clock;
    ConnectionConfig c;
    c.scheduleEnabled = true;  // 8 to 20
    auto insideAt = [&](int hour, int minute) {
        clock.setLocalTime(2024, 3, 7, hour, minute);  // a Thursday
        return c.isWithinSchedule(clock);
    };
    EXPECT_FALSE(insideAt(7, 59));
    EXPECT_TRUE(insideAt(8, 0));
    EXPECT_TRUE(insideAt(20, 59));
    EXPECT_FALSE(insideAt(21, 0));
    EXPECT_EQ(c.scheduleStatusText(clock), "Scheduled 8:00\u201320:00");

    c.scheduleStartHour = 22;
    c.scheduleEndHour = 6;
    EXPECT_TRUE(insideAt(23, 0));
    EXPECT_TRUE(insideAt(6, 30));
    EXPECT_FALSE(insideAt(7, 0));
    EXPECT_FALSE(insideAt(21, 59));

    c.scheduleStartHour = c.scheduleEndHour = 0;  // one hour, not none
    EXPECT_TRUE(insideAt(0, 45));
    EXPECT_FALSE(insideAt(1, 0));
    EXPECT_EQ(c.scheduleStatusText(clock), "Scheduled 0:00\u20130:00");
    c.scheduleEnabled = false;
    EXPECT_TRUE(c.isWithinSchedule(clock));
    EXPECT_EQ(c.scheduleStatusText(clock), std::nullopt);
}

TEST(ConnectionSchedule, DaysCountFromMondayOnTheLocalPresentDay) {
    // Local time runs two hours ahead of UTC, so the local day differs from the UTC day.
    VirtualLoop clock(nullptr, VirtualLoop::defaultStart(), std::chrono::hours(2));
    ConnectionConfig c;
    c.scheduleEnabled = true;
    c.scheduleStartHour = 22;
    c.scheduleEndHour = 6;
    c.scheduleDays = {true, true, true, true, true, false, false};  // Monday to Friday
    clock.setLocalTime(2024, 3, 9, 1, 0);  // Saturday 01:00: Friday night's window, Saturday's day
    EXPECT_FALSE(c.isWithinSchedule(clock));
    clock.setLocalTime(2024, 3, 8, 23, 0);  // Friday 23:00 local, 21:00 UTC
    EXPECT_TRUE(c.isWithinSchedule(clock));
    clock.setLocalTime(2024, 3, 11, 0, 30);  // Monday
    EXPECT_TRUE(c.isWithinSchedule(clock));
    c.scheduleDays = {false, true, true, true, true, true, true};
    EXPECT_FALSE(c.isWithinSchedule(clock));
    clock.setLocalTime(2024, 3, 10, 23, 0);  // Sunday is the last index
    c.scheduleDays = {true, true, true, true, true, true, false};
    EXPECT_FALSE(c.isWithinSchedule(clock));

    c.scheduleDays = {false, false, false, false, false, false};  // six entries: no day test
    EXPECT_TRUE(c.isWithinSchedule(clock));
}

TEST(ExtensionFilter, ExclusionFirstThenInclusionThenTheDefault) {
    ConnectionConfig c;
    c.extensionFilter = "jpg";
    c.excludedExtensions = "jpg";
    EXPECT_FALSE(c.shouldDownload("a.JPG"));

    c.extensionFilter = ".JPG, PNG";
    c.excludedExtensions = defaultExcludedExtensions;
    c.downloadUnspecifiedExtensions = false;
    EXPECT_TRUE(c.shouldDownload("a.jpg"));
    EXPECT_TRUE(c.shouldDownload("b.png"));
    EXPECT_FALSE(c.shouldDownload("x.part"));
    EXPECT_FALSE(c.shouldDownload("Thumbs.db"));  // whole name; its extension "db" is in no list
    EXPECT_FALSE(c.shouldDownload(".jpg"));       // a leading dot is no extension

    c.extensionFilter = "txt, makefile";
    EXPECT_FALSE(c.shouldDownload("README"));
    EXPECT_TRUE(c.shouldDownload("Makefile"));
    c.downloadUnspecifiedExtensions = true;
    EXPECT_TRUE(c.shouldDownload("README"));
    // The whole-name test sees ".ds_store", the entry lost its dot: the limit stands.
    EXPECT_TRUE(c.shouldDownload(".DS_Store"));

    c.extensionFilter = ", ,";
    c.excludedExtensions = "";
    c.downloadUnspecifiedExtensions = false;
    EXPECT_FALSE(c.shouldDownload("a.jpg"));
}

}  // namespace
}  // namespace tarnel
