#pragma once

#include <coroutine>
#include <exception>
#include <optional>
#include <utility>

#include "platform/main_loop.h"

namespace tarnel {

template <typename T>
class Task;

namespace detail {

struct PromiseBase {
    std::coroutine_handle<> continuation;
    std::exception_ptr error;

    std::suspend_always initial_suspend() noexcept { return {}; }

    // Hands control straight to the awaiting coroutine, so a chain of awaits never grows the stack.
    struct FinalAwaiter {
        bool await_ready() noexcept { return false; }
        template <typename P>
        std::coroutine_handle<> await_suspend(std::coroutine_handle<P> h) noexcept {
            auto next = h.promise().continuation;
            return next ? next : std::noop_coroutine();
        }
        void await_resume() noexcept {}
    };
    FinalAwaiter final_suspend() noexcept { return {}; }
    void unhandled_exception() noexcept { error = std::current_exception(); }
};

template <typename T>
struct Promise : PromiseBase {
    std::optional<T> value;
    Task<T> get_return_object() noexcept;
    template <typename U>
    void return_value(U&& v) {
        value.emplace(std::forward<U>(v));
    }
    T take() {
        if (error) std::rethrow_exception(error);
        return std::move(*value);
    }
};

template <>
struct Promise<void> : PromiseBase {
    Task<void> get_return_object() noexcept;
    void return_void() noexcept {}
    void take() {
        if (error) std::rethrow_exception(error);
    }
};

}  // namespace detail

// A lazy coroutine that runs when awaited and hands its result (or exception) to the awaiter.
// It owns its frame: destroying a Task destroys a suspended coroutine and all that it awaits.
template <typename T = void>
class [[nodiscard]] Task {
public:
    using promise_type = detail::Promise<T>;
    using Handle = std::coroutine_handle<promise_type>;

    Task() = default;
    explicit Task(Handle h) : handle_(h) {}
    Task(Task&& other) noexcept : handle_(std::exchange(other.handle_, {})) {}
    Task& operator=(Task&& other) noexcept {
        if (this != &other) {
            if (handle_) handle_.destroy();
            handle_ = std::exchange(other.handle_, {});
        }
        return *this;
    }
    ~Task() {
        if (handle_) handle_.destroy();
    }

    bool done() const { return !handle_ || handle_.done(); }

    auto operator co_await() && noexcept {
        struct Awaiter {
            Handle h;
            bool await_ready() noexcept { return !h || h.done(); }
            std::coroutine_handle<> await_suspend(std::coroutine_handle<> awaiting) noexcept {
                h.promise().continuation = awaiting;
                return h;
            }
            T await_resume() { return h.promise().take(); }
        };
        return Awaiter{handle_};
    }

    // Starts the coroutine without anyone awaiting it; used by the sliding window and by spawn.
    void startDetachedFrom(std::coroutine_handle<> continuation) {
        handle_.promise().continuation = continuation;
        handle_.resume();
    }

private:
    Handle handle_;
};

namespace detail {
template <typename T>
Task<T> Promise<T>::get_return_object() noexcept {
    return Task<T>{std::coroutine_handle<Promise<T>>::from_promise(*this)};
}
inline Task<void> Promise<void>::get_return_object() noexcept {
    return Task<void>{std::coroutine_handle<Promise<void>>::from_promise(*this)};
}

// The root of a fire-and-forget task: starts at once, frees itself at the end, and is known to
// the loop while it lives so that a loop torn down with it suspended can free it.
struct Detached {
    struct promise_type {
        MainLoop* loop = nullptr;
        promise_type(MainLoop& l, Task<void>&) : loop(&l) {
            loop->adoptDetached(std::coroutine_handle<promise_type>::from_promise(*this));
        }
        ~promise_type() {
            loop->releaseDetached(std::coroutine_handle<promise_type>::from_promise(*this));
        }
        Detached get_return_object() noexcept { return {}; }
        std::suspend_never initial_suspend() noexcept { return {}; }
        std::suspend_never final_suspend() noexcept { return {}; }
        void return_void() noexcept {}
        void unhandled_exception() noexcept { std::terminate(); }
    };
};

inline Detached runDetached(MainLoop&, Task<void> task) {
    co_await std::move(task);
}
}  // namespace detail

// Starts `task` now, on the calling (loop) thread, with nobody waiting for it. An exception
// that escapes it ends the program: every spawned task handles its own failures.
inline void spawn(MainLoop& loop, Task<void> task) {
    detail::runDetached(loop, std::move(task));
}

// co_await delay(loop, d): resumes on the loop after `d`. Destroying the suspended frame
// cancels the wait.
inline auto delay(MainLoop& loop, Duration d) {
    struct Awaiter {
        MainLoop& loop;
        Duration d;
        std::unique_ptr<Timer> timer;
        bool await_ready() const noexcept { return false; }
        void await_suspend(std::coroutine_handle<> h) {
            timer = loop.startTimer(d, false, [h] { h.resume(); });
        }
        void await_resume() noexcept {}
    };
    return Awaiter{loop, d, nullptr};
}

}  // namespace tarnel
