#include "platform/worker_pool.h"

namespace tarnel {

WorkerPool::WorkerPool(std::size_t maxThreads) : maxThreads_(maxThreads < 1 ? 1 : maxThreads) {}

WorkerPool::~WorkerPool() {
    {
        std::lock_guard lock(mutex_);
        stopping_ = true;
    }
    wake_.notify_all();
    for (auto& t : threads_) t.join();
}

void WorkerPool::submit(std::function<void()> job) {
    std::lock_guard lock(mutex_);
    jobs_.push_back(std::move(job));
    if (waiting_ < jobs_.size() && threads_.size() < maxThreads_)
        threads_.emplace_back([this] { run(); });
    else
        wake_.notify_one();
}

bool WorkerPool::idle() const {
    std::lock_guard lock(mutex_);
    return jobs_.empty() && running_ == 0;
}

bool WorkerPool::waitIdle(std::chrono::milliseconds timeout) {
    std::unique_lock lock(mutex_);
    return idleChanged_.wait_for(lock, timeout, [this] { return jobs_.empty() && running_ == 0; });
}

void WorkerPool::run() {
    std::unique_lock lock(mutex_);
    for (;;) {
        ++waiting_;
        wake_.wait(lock, [this] { return stopping_ || !jobs_.empty(); });
        --waiting_;
        if (jobs_.empty()) return;  // stopping, nothing left
        auto job = std::move(jobs_.front());
        jobs_.pop_front();
        ++running_;
        lock.unlock();
        job();
        lock.lock();
        --running_;
        if (jobs_.empty() && running_ == 0) idleChanged_.notify_all();
    }
}

}  // namespace tarnel
