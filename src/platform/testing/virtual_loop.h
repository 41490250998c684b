#pragma once

#include <condition_variable>
#include <cstdint>
#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <mutex>

#include "platform/clock.h"
#include "platform/main_loop.h"
#include "platform/worker_pool.h"

namespace tarnel {

// A main loop and clock for tests: time stands still until advance() moves it, and every timer
// due on the way fires at its own moment. Real worker jobs (a real server) still run on real
// threads; the loop waits for them before it moves time.
class VirtualLoop final : public MainLoop, public Clock {
public:
    // `start` is the virtual present; local time is UTC plus `utcOffset`.
    explicit VirtualLoop(WorkerPool* workers = nullptr, TimePoint start = defaultStart(),
                         std::chrono::seconds utcOffset = std::chrono::seconds{0});
    ~VirtualLoop() override;

    void post(std::function<void()> fn) override;
    std::unique_ptr<Timer> startTimer(Duration interval, bool repeats,
                                      std::function<void()> fire) override;

    TimePoint now() const override { return now_; }
    std::tm localTime(TimePoint t) const override;

    // Runs posted work, waiting for worker jobs to hand back, until nothing is left. Time stays.
    void runUntilIdle();
    // Moves time forward by `d`, firing each timer when its moment comes.
    void advance(Duration d);
    // Sets the present to a local wall-clock moment (year, month 1-12, day, hour, minute).
    void setLocalTime(int year, int month, int day, int hour, int minute = 0);

    static TimePoint defaultStart();  // 2024-03-07 09:00:00 UTC, a Thursday

private:
    struct TimerEntry {
        TimePoint due;
        Duration interval;
        bool repeats;
        std::shared_ptr<std::function<void()>> fire;
    };
    class VirtualTimer;

    bool runPosted();

    WorkerPool* workers_;
    TimePoint now_;
    std::chrono::seconds utcOffset_;
    std::mutex mutex_;
    std::condition_variable posted_;
    std::deque<std::function<void()>> queue_;
    std::map<std::uint64_t, TimerEntry> timers_;
    std::uint64_t nextTimerId_ = 0;
    std::shared_ptr<bool> alive_ = std::make_shared<bool>(true);
};

}  // namespace tarnel
