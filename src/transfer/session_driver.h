#pragma once

#include <chrono>
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

// Runs the operations of many sessions on one thread. libcurl names the sockets and the
// timeout each operation waits for, and one poll watches them all: the transfers of a
// connection share a thread that sleeps only while every one of them waits, instead of each
// holding a thread of its own that the server's every reply has to wake.
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
    // driver's thread, when the driver no longer touches the session. Not from that thread.
    void start(CurlSession& session, Done done);
    // start(), then waits for the result.
    CURLcode run(CurlSession& session);

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

    int wakeFd_ = -1;
    std::mutex mutex_;
    std::vector<std::unique_ptr<Operation>> started_;  // given, not yet taken by the thread
    bool polling_ = false;                             // the thread sleeps in poll()
    bool stopping_ = false;
    std::vector<std::unique_ptr<Operation>> active_;   // the thread's own
    std::thread thread_;                               // last: it starts once the rest is there
};

}  // namespace tarnel
