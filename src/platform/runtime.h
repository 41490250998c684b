#pragma once

#include <exception>
#include <memory>
#include <optional>
#include <type_traits>

#include "platform/clock.h"
#include "platform/completion.h"
#include "platform/main_loop.h"
#include "platform/task.h"
#include "platform/worker_pool.h"

namespace tarnel {

// What every long-lived object needs from the platform: the loop it lives on, the clock, and
// the threads for blocking work.
struct Runtime {
    MainLoop& loop;
    Clock& clock;
    WorkerPool& workers;
};

// co_await onWorker(runtime, fn): runs the blocking `fn` on a worker thread and resumes on the
// loop with its result; an exception it throws is rethrown in the awaiting coroutine.
template <typename Fn>
auto onWorker(Runtime& rt, Fn fn) {
    using R = std::invoke_result_t<Fn&>;
    struct State {
        std::conditional_t<std::is_void_v<R>, bool, std::optional<R>> value{};
        std::exception_ptr error;
    };
    struct Awaiter {
        Runtime& rt;
        Fn fn;
        std::shared_ptr<State> state = std::make_shared<State>();
        bool await_ready() const noexcept { return false; }
        void await_suspend(std::coroutine_handle<> h) {
            rt.workers.submit([state = state, fn = std::move(fn), &loop = rt.loop, h]() mutable {
                try {
                    if constexpr (std::is_void_v<R>)
                        fn();
                    else
                        state->value.emplace(fn());
                } catch (...) {
                    state->error = std::current_exception();
                }
                loop.post([h] { h.resume(); });
            });
        }
        R await_resume() {
            if (state->error) std::rethrow_exception(state->error);
            if constexpr (!std::is_void_v<R>) return std::move(*state->value);
        }
    };
    return Awaiter{rt, std::move(fn)};
}

// co_await whenComplete(runtime, start): `start(done)` begins an operation that calls `done` on
// a thread of its own; the awaiting coroutine resumes on the loop, with the failure rethrown.
// A failure that `start` throws is rethrown the same way.
template <typename Start>
auto whenComplete(Runtime& rt, Start start) {
    struct Awaiter {
        Runtime& rt;
        Start start;
        std::exception_ptr error;
        bool await_ready() const noexcept { return false; }
        bool await_suspend(std::coroutine_handle<> h) {
            auto busy = rt.workers.busyElsewhere();
            try {
                start([this, h, busy, &loop = rt.loop](std::exception_ptr failure) {
                    error = std::move(failure);
                    // Posted before the token goes, so a loop that sees the pool idle finds it.
                    loop.post([h] { h.resume(); });
                });
            } catch (...) {
                error = std::current_exception();
                return false;
            }
            return true;
        }
        void await_resume() {
            if (error) std::rethrow_exception(error);
        }
    };
    return Awaiter{rt, std::move(start), nullptr};
}

// co_await whenCalled(runtime, start): `start(then)` hands `then` to something that calls it
// once, from any thread or at once; the awaiting coroutine resumes on the loop. A coroutine
// destroyed meanwhile (its poll abandoned at quit) is not resumed, whenever `then` comes.
// Keep the awaiter in a named variable: g++ 12 destroys a temporary one that owns memory twice.
template <typename Start>
auto whenCalled(Runtime& rt, Start start) {
    struct Awaiter {
        Runtime& rt;
        Start start;
        std::shared_ptr<char> alive = std::make_shared<char>();
        bool await_ready() const noexcept { return false; }
        void await_suspend(std::coroutine_handle<> h) {
            // Read on the loop, where the frame is destroyed too.
            std::weak_ptr<char> frame = alive;
            start([h, frame, busy = rt.workers.busyElsewhere(), &loop = rt.loop] {
                // Posted before the token goes, so a loop that sees the pool idle finds it.
                loop.post([h, frame] {
                    if (!frame.expired()) h.resume();
                });
            });
        }
        void await_resume() const noexcept {}
    };
    return Awaiter{rt, std::move(start)};
}

}  // namespace tarnel
