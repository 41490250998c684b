#pragma once

#include <condition_variable>
#include <cstddef>
#include <deque>
#include <functional>
#include <memory>
#include <mutex>
#include <thread>
#include <vector>

namespace tarnel {

// Threads for blocking work (libcurl, large file reads). Grows up to `maxThreads` while every
// thread is busy, since a blocked transfer must never hold back a listing of another engine.
class WorkerPool {
public:
    explicit WorkerPool(std::size_t maxThreads = 64);
    ~WorkerPool();  // finishes queued jobs, then joins

    WorkerPool(const WorkerPool&) = delete;
    WorkerPool& operator=(const WorkerPool&) = delete;

    void submit(std::function<void()> job);
    // Work that runs on a thread of its own and reports to the loop as a job would: the pool
    // counts as busy until the token is gone, so that a loop waiting for the pool waits for it.
    std::shared_ptr<void> busyElsewhere();

    // True when no job is queued or running, here or elsewhere.
    bool idle() const;
    // Blocks until idle() or `timeout` passes; returns idle().
    bool waitIdle(std::chrono::milliseconds timeout);
    // Blocks until idle().
    void waitIdle();

private:
    void run();
    bool idleLocked() const;

    const std::size_t maxThreads_;
    mutable std::mutex mutex_;
    std::condition_variable wake_;
    std::condition_variable idleChanged_;
    std::deque<std::function<void()>> jobs_;
    std::vector<std::thread> threads_;
    std::size_t waiting_ = 0;
    std::size_t running_ = 0;
    std::size_t elsewhere_ = 0;
    bool stopping_ = false;
};

}  // namespace tarnel
