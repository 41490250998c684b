#pragma once

#include <chrono>
#include <ctime>
#include <string>

namespace tarnel {

using TimePoint = std::chrono::system_clock::time_point;

// The present time and the local calendar. Injected everywhere so that tests move time by hand.
class Clock {
public:
    virtual ~Clock() = default;
    virtual TimePoint now() const = 0;
    // Broken-down local time of `t` in the clock's time zone.
    virtual std::tm localTime(TimePoint t) const = 0;
};

// Wall-clock time in the process's time zone.
class SystemClock final : public Clock {
public:
    TimePoint now() const override { return std::chrono::system_clock::now(); }
    std::tm localTime(TimePoint t) const override;
};

// Seconds since 2001-01-01 00:00:00 UTC, the form dates take in stored JSON.
double toReferenceSeconds(TimePoint t);
TimePoint fromReferenceSeconds(double seconds);

// "yyyy-MM-dd HH:mm:ss" of `t` in the clock's time zone.
std::string formatLocalTimestamp(const Clock& clock, TimePoint t);

}  // namespace tarnel
