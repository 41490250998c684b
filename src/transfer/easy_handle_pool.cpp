#include "transfer/easy_handle_pool.h"

#include <utility>

namespace tarnel {
EasyHandlePool::Lease::~Lease() {
    end();
}

void EasyHandlePool::Lease::end() {
    if (session_ && *session_ && !discarded_) {
        pool_->release(std::move(session_));
    }
    session_.reset();
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
    std::unique_ptr<CurlSession> session;
    {
        std::lock_guard lock(mutex_);
        if (!idle_.empty()) {
            // The most recently used session is the least likely to have timed out.
            session = std::move(idle_.back().session);
            idle_.pop_back();
        }
    }
    return Lease(this, session ? std::move(session) : std::make_unique<CurlSession>());
}

void EasyHandlePool::release(std::unique_ptr<CurlSession> session) {
    // Cleared at once, so no option points into the finished operation's memory while the
    // session waits; its connection stays.
    session->reset();
    // The closer is not woken: it never sleeps past the moment a session returned now could
    // come of age (closeIdleLoop). A wake-up per operation would cost more than the operation.
    Sessions surplus;  // closed when this returns, unlocked
    std::lock_guard lock(mutex_);
    idle_.push_back({std::move(session), now_()});
    while (idle_.size() > maxIdleHandles) {
        surplus.push_back(std::move(idle_.front().session));
        idle_.erase(idle_.begin());
    }
}

EasyHandlePool::Sessions EasyHandlePool::takeIdle(const std::function<bool(const Idle&)>& expired) {
    Sessions taken;
    std::lock_guard lock(mutex_);
    std::erase_if(idle_, [&](Idle& i) {
        if (!expired(i)) {
            return false;
        }
        taken.push_back(std::move(i.session));
        return true;
    });
    return taken;
}

void EasyHandlePool::closeIdle() {
    const auto now = now_();
    takeIdle([&](const Idle& i) { return now - i.since >= idleLimit; });
}

void EasyHandlePool::closeAll() {
    takeIdle([](const Idle&) { return true; });
}

std::size_t EasyHandlePool::idleCount() const {
    std::lock_guard lock(mutex_);
    return idle_.size();
}

void EasyHandlePool::closeIdleLoop(std::stop_token stop) {
    while (!stop.stop_requested()) {
        {
            // A session returned while this waits comes of age `idleLimit` after now or later,
            // so waking when the oldest one does, or after `idleLimit` with none, misses none.
            std::unique_lock lock(mutex_);
            const auto now = now_();
            const auto due = idle_.empty() ? now + idleLimit : idle_.front().since + idleLimit;
            stopped_.wait_for(lock, stop, due - now, [] { return false; });
        }
        closeIdle();
    }
}

}  // namespace tarnel
