#pragma once

#include <cstdint>
#include <mutex>
#include <vector>

#include "platform/clock.h"

namespace tarnel {

// The speed of one transfer: the mean rate over the samples of the last five seconds. Samples
// arrive on the transfer's thread while the main thread reads the figure, hence the mutex.
class SpeedCalculator {
public:
    static constexpr double windowSize = 5.0;  // seconds

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
    std::vector<Sample> samples_;  // oldest first
};

}  // namespace tarnel
