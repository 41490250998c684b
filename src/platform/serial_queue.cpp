#include "platform/serial_queue.h"

#include <future>

namespace tarnel {

SerialQueue::SerialQueue() : thread_([this] { run(); }) {}

SerialQueue::~SerialQueue() {
    {
        std::lock_guard lock(mutex_);
        stopping_ = true;
    }
    wake_.notify_one();
    thread_.join();
}

void SerialQueue::async(std::function<void()> job) {
    {
        std::lock_guard lock(mutex_);
        jobs_.push_back(std::move(job));
    }
    wake_.notify_one();
}

void SerialQueue::sync(const std::function<void()>& job) {
    if (std::this_thread::get_id() == thread_.get_id()) {
        job();
        return;
    }
    std::promise<void> done;
    async([&] {
        job();
        done.set_value();
    });
    done.get_future().wait();
}

void SerialQueue::run() {
    std::unique_lock lock(mutex_);
    for (;;) {
        wake_.wait(lock, [this] { return stopping_ || !jobs_.empty(); });
        if (jobs_.empty()) return;
        auto job = std::move(jobs_.front());
        jobs_.pop_front();
        lock.unlock();
        job();
        lock.lock();
    }
}

}  // namespace tarnel
