#pragma once

#include <atomic>
#include <chrono>
#include <cstddef>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <thread>
#include <utility>
#include <vector>

#include <curl/curl.h>

#include "transfer/curl_session.h"

namespace tarnel {

// Runs the operations of sessions on one thread. libcurl names the sockets and the timeout each
// operation waits for, and one poll watches them all, so a session's thread sleeps until the
// server answers instead of a worker thread being held for each operation.
class SessionDriver {
public:
    using Done = std::function<void(CURLcode)>;

    SessionDriver();
    // Operations still running are ended without calling their `done`: whoever waited for
    // them is going too.
    ~SessionDriver();
    SessionDriver(const SessionDriver&) = delete;
    SessionDriver& operator=(const SessionDriver&) = delete;

    // Runs the operation set up on `session`'s easy handle. `done` gets its result on the
    // driver's thread, when the driver no longer touches the session. From that thread (a
    // `done` handing its session on), the operation starts once the current round is over.
    void start(CurlSession& session, Done done);
    // Operations started and not yet done.
    std::size_t load() const { return load_; }
    // Whether the caller runs on the driver's own thread.
    bool runsHere() const { return std::this_thread::get_id() == thread_.get_id(); }

private:
    using Clock = std::chrono::steady_clock;
    struct Operation {
        CurlSession* session = nullptr;
        Done done;
        std::vector<std::pair<curl_socket_t, int>> sockets;  // CURL_POLL_* of each
        std::optional<Clock::time_point> timeout;            // when libcurl wants a call
        Clock::time_point lastCall;
        Clock::duration stallWait{};
        bool finished = false;
    };

    static int onSocket(CURL* easy, curl_socket_t socket, int what, void* op, void* socketData);
    static int onTimer(CURLM* multi, long timeoutMs, void* op);

    void loop();
    // Takes the operations given since the last call; false once the driver stops.
    bool takeStarted();
    // Hands libcurl what happened on `socket` (CURL_SOCKET_TIMEOUT: time passed) and finishes
    // the operation if that ended it.
    void act(Operation& op, curl_socket_t socket, int events);
    void finish(Operation& op, CURLcode code);
    // When `op` must be called even though none of its sockets is ready.
    static Clock::time_point callDue(const Operation& op);
    void wake();

    std::atomic<std::size_t> load_{0};
    int wakeFd_ = -1;
    std::mutex mutex_;
    std::vector<std::unique_ptr<Operation>> started_;  // given, not yet taken by the thread
    bool polling_ = false;                             // the thread sleeps in poll()
    bool stopping_ = false;
    std::vector<std::unique_ptr<Operation>> active_;   // the thread's own
    std::thread thread_;                               // last: it starts once the rest is there
};

// The drivers of one connection's sessions. libcurl 7.88 still waits for an FTP transfer's
// last reply, and for the reply to a command sent after it, by blocking in poll(): two
// operations on one driver would wait for each other's server, for as long as a minute. So
// each operation goes to a driver with nothing to do, made when there is none: there are as
// many as the most operations that ever ran at once, which the client's session limit bounds.
class SessionDrivers {
public:
    SessionDrivers() = default;
    // stop().
    ~SessionDrivers();
    SessionDrivers(const SessionDrivers&) = delete;
    SessionDrivers& operator=(const SessionDrivers&) = delete;

    // SessionDriver::start() on a driver with nothing to do: the caller's own, when a `done`
    // starts the next operation, so that no other thread need be woken for it.
    void start(CurlSession& session, SessionDriver::Done done);
    // Runs `start`, which begins an operation that reports its result once, and waits for
    // that result, or CURLE_ABORTED_BY_CALLBACK once the drivers stop. Not from a driver's thread.
    CURLcode waitForResult(const std::function<void(SessionDriver::Done)>& start);
    // Ends every operation still running without calling its `done`, and joins the drivers'
    // threads; operations started later, from a `done` or another thread, are dropped the same
    // way. A waitForResult() under way returns at once.
    void stop();

private:
    struct Waiter;

    std::mutex mutex_;
    bool stopping_ = false;
    std::vector<std::unique_ptr<SessionDriver>> drivers_;
    std::vector<std::shared_ptr<Waiter>> waiters_;
};

}  // namespace tarnel
