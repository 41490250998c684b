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
    {
        std::lock_guard lock(mutex_);
        jobs_.push_back(std::move(job));
        if (waiting_ < jobs_.size() && threads_.size() < maxThreads_) {
            threads_.emplace_back([this] { run(); });
            return;
        }
    }
    // Outside the lock: the woken thread does not wake only to wait for it.
    wake_.notify_one();
}

std::shared_ptr<void> WorkerPool::busyElsewhere() {
    {
        std::lock_guard lock(mutex_);
        ++elsewhere_;
    }
    return std::shared_ptr<void>(this, [](void* self) {
        auto* pool = static_cast<WorkerPool*>(self);
        std::lock_guard lock(pool->mutex_);
        if (--pool->elsewhere_ == 0 && pool->idleLocked()) pool->idleChanged_.notify_all();
    });
}

bool WorkerPool::idleLocked() const {
    return jobs_.empty() && running_ == 0 && elsewhere_ == 0;
}

bool WorkerPool::idle() const {
    std::lock_guard lock(mutex_);
    return idleLocked();
}

bool WorkerPool::waitIdle(std::chrono::milliseconds timeout) {
    std::unique_lock lock(mutex_);
    return idleChanged_.wait_for(lock, timeout, [this] { return idleLocked(); });
}

void WorkerPool::waitIdle() {
    std::unique_lock lock(mutex_);
    idleChanged_.wait(lock, [this] { return idleLocked(); });
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
        if (idleLocked()) idleChanged_.notify_all();
    }
}

}  // namespace tarnel
