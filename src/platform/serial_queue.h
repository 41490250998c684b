#pragma once

#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>
#include <thread>

namespace tarnel {

// One thread that runs jobs in the order they were given: the writer of one file (log,
// history, partial downloads), so that each write carries its own snapshot and none interleave.
class SerialQueue {
public:
    SerialQueue();
    ~SerialQueue();  // runs what is queued, then joins

    SerialQueue(const SerialQueue&) = delete;
    SerialQueue& operator=(const SerialQueue&) = delete;

    void async(std::function<void()> job);
    // Runs `job` on the queue and waits for it.
    void sync(const std::function<void()>& job);
    // Waits until everything queued so far has run.
    void drain() {
        sync([] {});
    }

private:
    void run();

    std::mutex mutex_;
    std::condition_variable wake_;
    std::deque<std::function<void()>> jobs_;
    bool stopping_ = false;
    std::thread thread_;
};

}  // namespace tarnel
