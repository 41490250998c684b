#include "transfer/speed_calculator.h"

#include <algorithm>
#include <chrono>

namespace tarnel {
namespace {

double secondsBetween(TimePoint from, TimePoint to) {
    return std::chrono::duration<double>(to - from).count();
}

}  // namespace

void SpeedCalculator::addSample(std::int64_t bytes) {
    const TimePoint now = clock_.now();
    std::lock_guard lock(mutex_);
    if (samples_.size() >= 2 && now - samples_.back().timestamp < sampleSpacing)
        samples_.back() = {now, bytes};
    else
        samples_.push_back({now, bytes});
    // Oldest first: the samples out of the window are at the front.
    while (!samples_.empty() && secondsBetween(samples_.front().timestamp, now) > windowSize)
        samples_.pop_front();
}

double SpeedCalculator::currentSpeed() const {
    std::lock_guard lock(mutex_);
    if (samples_.size() < 2) {
        return 0;
    }
    const Sample& first = samples_.front();
    const Sample& last = samples_.back();
    const double elapsed = secondsBetween(first.timestamp, last.timestamp);
    if (elapsed <= 0.1) {
        return 0;
    }
    return std::max(0.0, static_cast<double>(last.bytes - first.bytes) / elapsed);
}

}  // namespace tarnel
