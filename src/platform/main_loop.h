#pragma once

#include <chrono>
#include <coroutine>
#include <functional>
#include <memory>
#include <unordered_set>

namespace tarnel {

using Duration = std::chrono::milliseconds;

// A scheduled callback; destroying the handle cancels it.
class Timer {
public:
    virtual ~Timer() = default;
};

// The one loop that owns the engines, the manager and the shell. The Qt event loop in the
// application, a virtual-time loop in tests.
class MainLoop {
public:
    virtual ~MainLoop() = default;

    // Runs `fn` on the loop's thread soon. Safe to call from any thread.
    virtual void post(std::function<void()> fn) = 0;

    // Calls `fire` on the loop after `interval`, and again every `interval` if `repeats`.
    // Call on the loop's thread; the returned handle must be destroyed there too.
    virtual std::unique_ptr<Timer> startTimer(Duration interval, bool repeats,
                                              std::function<void()> fire) = 0;

    // Detached coroutine frames that are still suspended. Kept so that a loop torn down with
    // work in flight frees them instead of leaking them.
    void adoptDetached(std::coroutine_handle<> h) { detached_.insert(h.address()); }
    void releaseDetached(std::coroutine_handle<> h) { detached_.erase(h.address()); }

protected:
    // Called by implementations once nothing queued can resume a frame any more.
    void destroyDetached() {
        auto frames = std::move(detached_);
        detached_.clear();
        for (void* frame : frames) std::coroutine_handle<>::from_address(frame).destroy();
    }

private:
    std::unordered_set<void*> detached_;
};

}  // namespace tarnel
