#include "transfer/session_driver.h"

#include <algorithm>
#include <cstdint>
#include <future>

#include <poll.h>
#include <sys/eventfd.h>
#include <unistd.h>

namespace tarnel {
namespace {

// libcurl 7.88 can leave an FTP operation with nothing to wait for: when the server's EPSV or
// PASV reply comes in quickly, the data connection is only opened at the next call, which
// libcurl's own loop makes a whole second later. An operation with no socket is therefore
// called again at once, then after a millisecond, and twice as long each time nothing came of
// it.
constexpr std::chrono::steady_clock::duration firstStallWait = std::chrono::milliseconds(1);
// No operation waits longer than libcurl's own loop would between two calls.
constexpr std::chrono::steady_clock::duration longestWait = std::chrono::seconds(1);

short pollEvents(int what) {
    short events = 0;
    if (what == CURL_POLL_IN || what == CURL_POLL_INOUT) events |= POLLIN;
    if (what == CURL_POLL_OUT || what == CURL_POLL_INOUT) events |= POLLOUT;
    return events;
}

int curlEvents(short revents) {
    int events = 0;
    if ((revents & (POLLIN | POLLHUP)) != 0) events |= CURL_CSELECT_IN;
    if ((revents & POLLOUT) != 0) events |= CURL_CSELECT_OUT;
    if ((revents & (POLLERR | POLLNVAL)) != 0) events |= CURL_CSELECT_ERR;
    return events;
}

// The session's multi handle no longer reports to an operation that has ended.
void detach(CURLM* multi) {
    curl_multi_setopt(multi, CURLMOPT_SOCKETFUNCTION, nullptr);
    curl_multi_setopt(multi, CURLMOPT_SOCKETDATA, nullptr);
    curl_multi_setopt(multi, CURLMOPT_TIMERFUNCTION, nullptr);
    curl_multi_setopt(multi, CURLMOPT_TIMERDATA, nullptr);
}

// Drives every transfer of `multi` and reports all of their sockets anew: the one call that gets a
// stalled FTP operation going. Deprecated in favour of curl_multi_socket_action(), which cannot
// do that here, so the warning is silenced for this call alone.
CURLMcode callEverything(CURLM* multi, int* running) {
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"
    return curl_multi_socket_all(multi, running);
#pragma GCC diagnostic pop
}

int millisecondsUntil(std::chrono::steady_clock::time_point due) {
    const auto left = due - std::chrono::steady_clock::now();
    if (left <= left.zero()) return 0;
    return static_cast<int>(std::chrono::ceil<std::chrono::milliseconds>(left).count());
}

}  // namespace

SessionDriver::SessionDriver()
    : wakeFd_(::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)), thread_([this] { loop(); }) {}

SessionDriver::~SessionDriver() {
    {
        std::lock_guard lock(mutex_);
        stopping_ = true;
    }
    wake();
    thread_.join();
    if (wakeFd_ >= 0) ::close(wakeFd_);
}

void SessionDriver::start(CurlSession& session, Done done) {
    auto op = std::make_unique<Operation>();
    op->session = &session;
    op->done = std::move(done);
    ++load_;
    bool sleeping = false;
    {
        std::lock_guard lock(mutex_);
        started_.push_back(std::move(op));
        sleeping = polling_;
    }
    // A thread that is busy takes the operation on its next round without being woken.
    if (sleeping) wake();
}

void SessionDriver::wake() {
    if (wakeFd_ < 0) return;
    const std::uint64_t one = 1;
    [[maybe_unused]] const auto written = ::write(wakeFd_, &one, sizeof one);
}

int SessionDriver::onSocket(CURL*, curl_socket_t socket, int what, void* data, void*) {
    auto& sockets = static_cast<Operation*>(data)->sockets;
    const auto known = std::find_if(sockets.begin(), sockets.end(),
                                    [&](const auto& entry) { return entry.first == socket; });
    if (what == CURL_POLL_REMOVE) {
        if (known != sockets.end()) sockets.erase(known);
    } else if (known != sockets.end()) {
        known->second = what;
    } else {
        sockets.emplace_back(socket, what);
    }
    return 0;
}

int SessionDriver::onTimer(CURLM*, long timeoutMs, void* data) {
    auto& op = *static_cast<Operation*>(data);
    if (timeoutMs < 0)
        op.timeout.reset();
    else
        op.timeout = Clock::now() + std::chrono::milliseconds(timeoutMs);
    return 0;
}

SessionDriver::Clock::time_point SessionDriver::callDue(const Operation& op) {
    Clock::time_point due = op.lastCall + longestWait;
    if (op.timeout) due = std::min(due, *op.timeout);
    if (op.sockets.empty()) due = std::min(due, op.lastCall + op.stallWait);
    return due;
}

bool SessionDriver::takeStarted() {
    std::vector<std::unique_ptr<Operation>> started;
    {
        std::lock_guard lock(mutex_);
        if (stopping_) return false;
        started.swap(started_);
        polling_ = true;
    }
    for (auto& op : started) {
        CURLM* multi = op->session->multi();
        curl_multi_setopt(multi, CURLMOPT_SOCKETFUNCTION, onSocket);
        curl_multi_setopt(multi, CURLMOPT_SOCKETDATA, op.get());
        curl_multi_setopt(multi, CURLMOPT_TIMERFUNCTION, onTimer);
        curl_multi_setopt(multi, CURLMOPT_TIMERDATA, op.get());
        if (curl_multi_add_handle(multi, op->session->easy()) != CURLM_OK) {
            detach(multi);
            --load_;
            op->done(CURLE_FAILED_INIT);
            continue;
        }
        act(*active_.emplace_back(std::move(op)), CURL_SOCKET_TIMEOUT, 0);
    }
    return true;
}

void SessionDriver::act(Operation& op, curl_socket_t socket, int events) {
    op.lastCall = Clock::now();
    CURLM* multi = op.session->multi();
    int running = 0;
    const CURLMcode problem = socket == CURL_SOCKET_BAD
                                  ? callEverything(multi, &running)
                                  : curl_multi_socket_action(multi, socket, events, &running);
    // A socket that an earlier call in the same round closed is no reason to fail.
    if (problem != CURLM_OK && problem != CURLM_BAD_SOCKET) {
        // A broken multi handle reads as curl_easy_perform would report it.
        finish(op, problem == CURLM_OUT_OF_MEMORY ? CURLE_OUT_OF_MEMORY
                                                  : CURLE_BAD_FUNCTION_ARGUMENT);
        return;
    }
    int left = 0;
    while (CURLMsg* message = curl_multi_info_read(multi, &left)) {
        if (message->msg == CURLMSG_DONE) {
            finish(op, message->data.result);
            return;
        }
    }
}

void SessionDriver::finish(Operation& op, CURLcode code) {
    CURLM* multi = op.session->multi();
    curl_multi_remove_handle(multi, op.session->easy());
    detach(multi);
    op.finished = true;
    op.sockets.clear();
    // Moved out first: the callback may hand the session on, and with it this operation's end.
    Done done = std::move(op.done);
    // Free before anyone learns of the end, so that the next operation may come here.
    --load_;
    done(code);
}

// One result given once: by the operation, or by stop() if that comes first.
struct SessionDrivers::Waiter {
    std::promise<CURLcode> result;
    std::atomic_flag given;
    void give(CURLcode code) {
        if (!given.test_and_set()) result.set_value(code);
    }
};

SessionDrivers::~SessionDrivers() {
    stop();
}

void SessionDrivers::stop() {
    std::vector<std::unique_ptr<SessionDriver>> drivers;
    std::vector<std::shared_ptr<Waiter>> waiters;
    {
        std::lock_guard lock(mutex_);
        stopping_ = true;
        drivers.swap(drivers_);
        waiters = waiters_;
    }
    // Joined unlocked: a driver's `done` may still be calling start().
    drivers.clear();
    // An operation waited for may be kept by its waiter, and with it the `done` that would
    // have answered: the answer comes from here instead.
    for (const auto& waiter : waiters) waiter->give(CURLE_ABORTED_BY_CALLBACK);
}

void SessionDrivers::start(CurlSession& session, SessionDriver::Done done) {
    // Chosen and started under the lock, so that two callers never pick the same idle driver.
    std::lock_guard lock(mutex_);
    if (stopping_) return;
    const auto idle = [](const auto& driver) { return driver->load() == 0; };
    auto chosen = std::find_if(drivers_.begin(), drivers_.end(), [&](const auto& driver) {
        return driver->runsHere() && idle(driver);
    });
    if (chosen == drivers_.end()) chosen = std::find_if(drivers_.begin(), drivers_.end(), idle);
    SessionDriver& driver = chosen != drivers_.end()
                                ? **chosen
                                : *drivers_.emplace_back(std::make_unique<SessionDriver>());
    driver.start(session, std::move(done));
}

CURLcode SessionDrivers::waitForResult(const std::function<void(SessionDriver::Done)>& start) {
    // Shared: the promise may still be busy setting the result when the waiter wakes.
    auto waiter = std::make_shared<Waiter>();
    auto future = waiter->result.get_future();
    {
        std::lock_guard lock(mutex_);
        if (stopping_) return CURLE_ABORTED_BY_CALLBACK;
        waiters_.push_back(waiter);
    }
    start([waiter](CURLcode code) { waiter->give(code); });
    const CURLcode code = future.get();
    std::lock_guard lock(mutex_);
    std::erase(waiters_, waiter);
    return code;
}

void SessionDriver::loop() {
    std::vector<pollfd> fds;
    std::vector<Operation*> owners;  // of each entry of `fds`; none for the wake-up
    while (takeStarted()) {
        fds.assign(1, pollfd{wakeFd_, POLLIN, 0});
        owners.assign(1, nullptr);
        std::optional<Clock::time_point> due;
        for (const auto& op : active_) {
            for (const auto& [socket, what] : op->sockets) {
                fds.push_back(pollfd{socket, pollEvents(what), 0});
                owners.push_back(op.get());
            }
            const auto opDue = callDue(*op);
            if (!due || opDue < *due) due = opDue;
        }
        int timeoutMs = due ? millisecondsUntil(*due) : -1;
        if (wakeFd_ < 0 && (timeoutMs < 0 || timeoutMs > 1)) timeoutMs = 1;  // cannot be woken
        const int ready = ::poll(fds.data(), fds.size(), timeoutMs);
        {
            std::lock_guard lock(mutex_);
            polling_ = false;
        }
        if (ready > 0 && fds[0].revents != 0) {
            std::uint64_t count = 0;
            [[maybe_unused]] const auto read = ::read(wakeFd_, &count, sizeof count);
        }
        for (std::size_t i = 1; ready > 0 && i < fds.size(); ++i) {
            Operation& op = *owners[i];
            if (fds[i].revents == 0 || op.finished) continue;
            op.stallWait = {};
            act(op, fds[i].fd, curlEvents(fds[i].revents));
        }
        const auto now = Clock::now();
        for (const auto& op : active_) {
            if (op->finished || callDue(*op) > now) continue;
            const bool stalled = op->sockets.empty();
            act(*op, stalled ? CURL_SOCKET_BAD : CURL_SOCKET_TIMEOUT, 0);
            if (stalled)
                op->stallWait = std::clamp(op->stallWait * 2, firstStallWait, longestWait);
        }
        std::erase_if(active_, [](const auto& op) { return op->finished; });
    }
    for (const auto& op : active_) {
        CURLM* multi = op->session->multi();
        curl_multi_remove_handle(multi, op->session->easy());
        detach(multi);
    }
    active_.clear();
}

}  // namespace tarnel
