#include "records/byte_count_format.h"

#include <limits>

#include <gtest/gtest.h>

namespace tarnel {
namespace {

TEST(FormatFileByteCount, UnitsDigitsAndRounding) {
    const std::pair<std::int64_t, const char*> cases[] = {
        {0, "Zero KB"},
        {1, "1 byte"},
        {532, "532 bytes"},
        {1000, "1 KB"},
        {1'500'000, "1.5 MB"},
        {123'456'789, "123.5 MB"},
        {2'350'000'000, "2.35 GB"},
        // A count that would round to 1,000 of a unit moves to the next one.
        {999'499, "999 KB"},
        {999'500, "1 MB"},
        {999'949'999, "999.9 MB"},
        {999'950'000, "1 GB"},
        {999'995'000'000, "1 TB"},
        // Halves go to the even digit, as the platform's number formatter rounds.
        {2500, "2 KB"},
        {1'250'000, "1.2 MB"},
        {1'350'000, "1.4 MB"},
        {1'005'000'000, "1 GB"},
        {-1, "-1 byte"},
        {-12'345'678'987, "-12.35 GB"},
        {std::numeric_limits<std::int64_t>::min(), "-9.22 EB"}};
    for (auto [bytes, text] : cases)
        EXPECT_EQ(formatFileByteCount(bytes), text) << bytes;
}

}  // namespace
}  // namespace tarnel
