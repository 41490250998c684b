#include "platform/testing/virtual_loop.h"

#include <ctime>

namespace tarnel {

class VirtualLoop::VirtualTimer final : public Timer {
public:
    VirtualTimer(VirtualLoop* loop, std::uint64_t id, std::weak_ptr<bool> alive)
        : loop_(loop), id_(id), alive_(std::move(alive)) {}
    ~VirtualTimer() override {
        if (alive_.lock()) loop_->timers_.erase(id_);
    }

private:
    VirtualLoop* loop_;
    std::uint64_t id_;
    std::weak_ptr<bool> alive_;
};

VirtualLoop::VirtualLoop(WorkerPool* workers, TimePoint start, std::chrono::seconds utcOffset)
    : workers_(workers), now_(start), utcOffset_(utcOffset) {}

VirtualLoop::~VirtualLoop() {
    alive_.reset();
    {
        std::lock_guard lock(mutex_);
        queue_.clear();
    }
    timers_.clear();
    destroyDetached();
}

TimePoint VirtualLoop::defaultStart() {
    return TimePoint(std::chrono::seconds{1709802000});
}

void VirtualLoop::post(std::function<void()> fn) {
    {
        std::lock_guard lock(mutex_);
        queue_.push_back(std::move(fn));
    }
    posted_.notify_all();
}

std::unique_ptr<Timer> VirtualLoop::startTimer(Duration interval, bool repeats,
                                               std::function<void()> fire) {
    auto id = nextTimerId_++;
    timers_[id] = TimerEntry{now_ + interval, interval, repeats,
                             std::make_shared<std::function<void()>>(std::move(fire))};
    return std::make_unique<VirtualTimer>(this, id, alive_);
}

std::tm VirtualLoop::localTime(TimePoint t) const {
    std::time_t seconds = std::chrono::system_clock::to_time_t(t) + utcOffset_.count();
    std::tm out{};
    gmtime_r(&seconds, &out);
    return out;
}

void VirtualLoop::setLocalTime(int year, int month, int day, int hour, int minute) {
    std::tm tm{};
    tm.tm_year = year - 1900;
    tm.tm_mon = month - 1;
    tm.tm_mday = day;
    tm.tm_hour = hour;
    tm.tm_min = minute;
    now_ = std::chrono::system_clock::from_time_t(timegm(&tm) - utcOffset_.count());
}

bool VirtualLoop::runPosted() {
    std::deque<std::function<void()>> batch;
    {
        std::lock_guard lock(mutex_);
        batch.swap(queue_);
    }
    for (auto& fn : batch) fn();
    return !batch.empty();
}

void VirtualLoop::runUntilIdle() {
    for (;;) {
        if (runPosted()) continue;
        if (workers_ && !workers_->idle()) {
            std::unique_lock lock(mutex_);
            posted_.wait_for(lock, std::chrono::milliseconds(5), [this] { return !queue_.empty(); });
            continue;
        }
        std::lock_guard lock(mutex_);
        if (queue_.empty()) return;
    }
}

void VirtualLoop::advance(Duration d) {
    const TimePoint target = now_ + d;
    runUntilIdle();
    for (;;) {
        auto next = timers_.end();
        for (auto it = timers_.begin(); it != timers_.end(); ++it)
            if (it->second.due <= target && (next == timers_.end() || it->second.due < next->second.due))
                next = it;
        if (next == timers_.end()) break;
        now_ = next->second.due;
        auto fire = next->second.fire;  // the callback may destroy its own timer
        if (next->second.repeats)
            next->second.due += next->second.interval;
        else
            timers_.erase(next);
        (*fire)();
        runUntilIdle();
    }
    now_ = target;
}

}  // namespace tarnel
