#include "platform/clock.h"

#include <cstdio>

namespace tarnel {

namespace {
constexpr double referenceEpochOffset = 978307200.0;  // 2001-01-01 in Unix seconds
}

std::tm SystemClock::localTime(TimePoint t) const {
    std::time_t seconds = std::chrono::system_clock::to_time_t(t);
    std::tm out{};
    localtime_r(&seconds, &out);
    return out;
}

double toReferenceSeconds(TimePoint t) {
    using namespace std::chrono;
    return duration<double>(t.time_since_epoch()).count() - referenceEpochOffset;
}

TimePoint fromReferenceSeconds(double seconds) {
    using namespace std::chrono;
    return TimePoint(duration_cast<system_clock::duration>(
        duration<double>(seconds + referenceEpochOffset)));
}

std::string formatLocalTimestamp(const Clock& clock, TimePoint t) {
    std::tm tm = clock.localTime(t);
    char buffer[64];
    std::snprintf(buffer, sizeof buffer, "%04d-%02d-%02d %02d:%02d:%02d", tm.tm_year + 1900,
                  tm.tm_mon + 1, tm.tm_mday, tm.tm_hour, tm.tm_min, tm.tm_sec);
    return buffer;
}

}  // namespace tarnel
