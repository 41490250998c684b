#include "transfer/easy_handle_pool.h"

#include <utility>

namespace tarnel {
namespace {

void closeHandles(const std::vector<CURL*>& handles) {
    for (CURL* h : handles) {
        curl_easy_cleanup(h);
    }
}

}  // namespace

EasyHandlePool::Lease::~Lease() {
    if (handle_ == nullptr) {
        return;
    }
    if (discarded_) {
        curl_easy_cleanup(handle_);
    } else {
        pool_->release(handle_);
    }
}

EasyHandlePool::EasyHandlePool(std::function<SteadyClock::time_point()> now, bool closeInBackground)
    : now_(std::move(now)) {
    if (closeInBackground) {
        closer_ = std::jthread([this](std::stop_token stop) { closeIdleLoop(stop); });
    }
}

EasyHandlePool::~EasyHandlePool() {
    if (closer_.joinable()) {
        closer_.request_stop();
        closer_.join();
    }
    closeAll();
}

EasyHandlePool::Lease EasyHandlePool::acquire() {
    CURL* handle = nullptr;
    {
        std::lock_guard lock(mutex_);
        if (!idle_.empty()) {
            // The most recently used handle has the session least likely to have timed out.
            handle = idle_.back().handle;
            idle_.pop_back();
        }
    }
    return Lease(this, handle != nullptr ? handle : curl_easy_init());
}

void EasyHandlePool::release(CURL* handle) {
    // Cleared at once, so no option points into the finished operation's memory while the
    // handle waits; its open session stays.
    curl_easy_reset(handle);
    std::vector<CURL*> surplus;
    {
        std::lock_guard lock(mutex_);
        idle_.push_back({handle, now_()});
        while (idle_.size() > maxIdleHandles) {
            surplus.push_back(idle_.front().handle);
            idle_.erase(idle_.begin());
        }
    }
    changed_.notify_all();
    closeHandles(surplus);
}

std::vector<CURL*> EasyHandlePool::takeIdle(const std::function<bool(const Idle&)>& expired) {
    std::vector<CURL*> taken;
    std::lock_guard lock(mutex_);
    std::erase_if(idle_, [&](const Idle& i) {
        if (!expired(i)) {
            return false;
        }
        taken.push_back(i.handle);
        return true;
    });
    return taken;
}

void EasyHandlePool::closeIdle() {
    const auto now = now_();
    closeHandles(takeIdle([&](const Idle& i) { return now - i.since >= idleLimit; }));
}

void EasyHandlePool::closeAll() {
    closeHandles(takeIdle([](const Idle&) { return true; }));
}

std::size_t EasyHandlePool::idleCount() const {
    std::lock_guard lock(mutex_);
    return idle_.size();
}

void EasyHandlePool::closeIdleLoop(std::stop_token stop) {
    while (!stop.stop_requested()) {
        {
            std::unique_lock lock(mutex_);
            if (idle_.empty()) {
                changed_.wait(lock, stop, [&] { return !idle_.empty(); });
            } else {
                // Wake when the oldest idle handle comes of age (or earlier, if one is returned).
                const auto due = idle_.front().since + idleLimit;
                changed_.wait_for(lock, stop, due - now_(), [] { return false; });
            }
        }
        closeIdle();
    }
}

}  // namespace tarnel
