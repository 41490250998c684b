#pragma once

#include <chrono>
#include <cstdint>
#include <deque>
#include <mutex>

#include "platform/clock.h"

namespace tarnel {

// The speed of one transfer: the mean rate over the samples of the last five seconds. Samples
// arrive on the transfer's thread while the main thread reads the figure, hence the mutex.
class SpeedCalculator {
public:
    static constexpr double windowSize = 5.0;  // seconds
    // A sample this close to the one before replaces it. libcurl may report progress hundreds
    // of times for one small file (over SFTP it calls back while it waits for the server), and
    // each sample kept would be looked at again by every later one.
    static constexpr std::chrono::milliseconds sampleSpacing{10};

    explicit SpeedCalculator(const Clock& clock) : clock_(clock) {}

    // Records `bytes` so far (whole-file count) at the present moment.
    void addSample(std::int64_t bytes);
    // Bytes per second; 0 with fewer than two samples or within the first tenth of a second.
    double currentSpeed() const;

private:
    struct Sample {
        TimePoint timestamp;
        std::int64_t bytes;
    };

    const Clock& clock_;
    mutable std::mutex mutex_;
    std::deque<Sample> samples_;  // oldest first
};

}  // namespace tarnel
