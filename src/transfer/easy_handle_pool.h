#pragma once

#include <chrono>
#include <condition_variable>
#include <cstddef>
#include <functional>
#include <memory>
#include <mutex>
#include <thread>
#include <utility>
#include <vector>

#include "transfer/curl_session.h"

namespace tarnel {

// Sessions kept between operations of one client, so that consecutive operations ride on a
// connection still open instead of logging in again. One session per operation in flight; a
// session left idle for `idleLimit` is closed by a background thread. Safe to use from several
// threads.
class EasyHandlePool {
public:
    using SteadyClock = std::chrono::steady_clock;
    static constexpr auto idleLimit = std::chrono::seconds(60);
    static constexpr std::size_t maxIdleHandles = 8;

    // A session lent for one operation; it goes back to the pool when the lease ends.
    class Lease {
    public:
        Lease(EasyHandlePool* pool, std::unique_ptr<CurlSession> session)
            : pool_(pool), session_(std::move(session)) {}
        Lease(Lease&& other) noexcept = default;
        Lease& operator=(Lease&&) = delete;
        ~Lease();

        CurlSession* get() const { return session_.get(); }
        explicit operator bool() const { return session_ && *session_; }
        // The operation failed: the session is closed when the lease ends, so the next
        // operation logs in anew rather than riding a session in an unknown state.
        void discard() { discarded_ = true; }
        // Ends the lease now rather than when it goes.
        void end();

    private:
        EasyHandlePool* pool_;
        std::unique_ptr<CurlSession> session_;
        bool discarded_ = false;
    };

    // `now` is the pool's sense of time (tests give a hand-moved one); the background closing
    // runs only with `closeInBackground`.
    explicit EasyHandlePool(std::function<SteadyClock::time_point()> now = SteadyClock::now,
                            bool closeInBackground = true);
    ~EasyHandlePool();

    EasyHandlePool(const EasyHandlePool&) = delete;
    EasyHandlePool& operator=(const EasyHandlePool&) = delete;

    // An idle session, its options cleared and its connection kept, or a new one; an empty
    // lease if libcurl cannot make one.
    Lease acquire();
    // Closes the sessions idle for `idleLimit` or longer.
    void closeIdle();
    // Closes every idle session at once, so the next operation opens a new one.
    void closeAll();
    std::size_t idleCount() const;

private:
    struct Idle {
        std::unique_ptr<CurlSession> session;
        SteadyClock::time_point since;
    };
    using Sessions = std::vector<std::unique_ptr<CurlSession>>;

    void release(std::unique_ptr<CurlSession> session);
    void closeIdleLoop(std::stop_token stop);
    // Takes the sessions that `expired` selects out of the pool; the caller closes them unlocked.
    Sessions takeIdle(const std::function<bool(const Idle&)>& expired);

    std::function<SteadyClock::time_point()> now_;
    mutable std::mutex mutex_;
    std::condition_variable_any stopped_;  // wakes the closer only to stop it
    std::vector<Idle> idle_;  // oldest first
    std::jthread closer_;     // last member: it stops and joins before the rest goes
};

}  // namespace tarnel
