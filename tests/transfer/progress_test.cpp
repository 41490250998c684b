#include <gtest/gtest.h>

#include "platform/testing/virtual_loop.h"
#include "transfer/download_progress.h"
#include "transfer/progress_text.h"
#include "transfer/speed_calculator.h"

namespace tarnel {
namespace {

using namespace std::chrono_literals;

TEST(SpeedCalculator, meanRateOverTheLastFiveSeconds) {
    VirtualLoop loop;
    SpeedCalculator speed(loop);
    // A resume starts at its offset, so only new bytes count.
    speed.addSample(1'000'000);
    EXPECT_EQ(speed.currentSpeed(), 0);  // one sample
    loop.advance(100ms);
    speed.addSample(1'900'000);
    EXPECT_EQ(speed.currentSpeed(), 0);  // the first tenth of a second shows nothing
    loop.advance(900ms);
    speed.addSample(2'000'000);
    EXPECT_DOUBLE_EQ(speed.currentSpeed(), 1'000'000);

    // A stalled transfer keeps its figure: old samples go only when the next one arrives.
    loop.advance(7s);
    EXPECT_DOUBLE_EQ(speed.currentSpeed(), 1'000'000);
    speed.addSample(2'000'000);
    EXPECT_EQ(speed.currentSpeed(), 0);
    loop.advance(2s);
    speed.addSample(3'000'000);
    EXPECT_DOUBLE_EQ(speed.currentSpeed(), 500'000);
    // A count that steps back (a restarted transfer) never shows a negative speed.
    loop.advance(1s);
    speed.addSample(0);
    EXPECT_EQ(speed.currentSpeed(), 0);
}

TEST(ProgressText, unitsAndThresholds) {
    EXPECT_EQ(formatSize(999), "999 B");
    EXPECT_EQ(formatSize(1'000), "1 KB");
    EXPECT_EQ(formatSize(1'500'000), "1.5 MB");
    EXPECT_EQ(formatSize(2'350'000'000), "2.4 GB");
    EXPECT_EQ(speedText(1'000), "1000 B/s");
    EXPECT_EQ(speedText(999'999), "1000 KB/s");
    EXPECT_EQ(speedText(1'000'001), "1.0 MB/s");
    DownloadProgress row;
    row.speed = 2'500'000;
    EXPECT_EQ(row.speedText(), "2.5 MB/s");
    EXPECT_EQ(stabilityText(true, 0, 3), "growing...");
    EXPECT_EQ(stabilityText(false, 2, 3), "stable 2/3");
    EXPECT_EQ(stabilityText(false, 3, 3), "stable 3/3 \u2713");
}

}  // namespace
}  // namespace tarnel
