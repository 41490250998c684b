#pragma once

#include <chrono>
#include <condition_variable>
#include <cstddef>
#include <functional>
#include <mutex>
#include <thread>
#include <utility>
#include <vector>

#include <curl/curl.h>

namespace tarnel {

// libcurl easy handles kept between operations of one client, so that consecutive operations
// ride on the session a handle still holds open instead of logging in again. One handle per
// operation in flight; a handle left idle for `idleLimit` is closed, with its session, by a
// background thread. Safe to use from several threads.
class EasyHandlePool {
public:
    using SteadyClock = std::chrono::steady_clock;
    static constexpr auto idleLimit = std::chrono::seconds(60);
    static constexpr std::size_t maxIdleHandles = 8;

    // A handle lent for one operation; it goes back to the pool when the lease ends.
    class Lease {
    public:
        Lease(EasyHandlePool* pool, CURL* handle) : pool_(pool), handle_(handle) {}
        Lease(Lease&& other) noexcept
            : pool_(other.pool_),
              handle_(std::exchange(other.handle_, nullptr)),
              discarded_(other.discarded_) {}
        Lease& operator=(Lease&&) = delete;
        ~Lease();

        CURL* get() const { return handle_; }
        explicit operator bool() const { return handle_ != nullptr; }
        // The operation failed: the handle is closed with its session when the lease ends, so
        // the next operation logs in anew rather than riding a session in an unknown state.
        void discard() { discarded_ = true; }

    private:
        EasyHandlePool* pool_;
        CURL* handle_;
        bool discarded_ = false;
    };

    // `now` is the pool's sense of time (tests give a hand-moved one); the background closing
    // runs only with `closeInBackground`.
    explicit EasyHandlePool(std::function<SteadyClock::time_point()> now = SteadyClock::now,
                            bool closeInBackground = true);
    ~EasyHandlePool();

    EasyHandlePool(const EasyHandlePool&) = delete;
    EasyHandlePool& operator=(const EasyHandlePool&) = delete;

    // An idle handle, its options cleared and its open session kept, or a new one; an empty
    // lease if libcurl cannot make a handle.
    Lease acquire();
    // Closes the handles idle for `idleLimit` or longer.
    void closeIdle();
    // Closes every idle handle at once, so the next operation opens a new session.
    void closeAll();
    std::size_t idleCount() const;

private:
    struct Idle {
        CURL* handle;
        SteadyClock::time_point since;
    };

    void release(CURL* handle);
    void closeIdleLoop(std::stop_token stop);
    // Takes the handles that `expired` selects out of the pool; the caller closes them unlocked.
    std::vector<CURL*> takeIdle(const std::function<bool(const Idle&)>& expired);

    std::function<SteadyClock::time_point()> now_;
    mutable std::mutex mutex_;
    std::condition_variable_any changed_;
    std::vector<Idle> idle_;  // oldest first
    std::jthread closer_;     // last member: it stops and joins before the rest goes
};

}  // namespace tarnel
