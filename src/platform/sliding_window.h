#pragma once

#include <algorithm>
#include <coroutine>
#include <exception>
#include <utility>
#include <vector>

#include "platform/main_loop.h"
#include "platform/task.h"

namespace tarnel {

namespace detail {
template <typename R>
struct WindowState {
    std::vector<R> results;  // in order of completion
    int running = 0;
    int finishedUnseen = 0;
    std::coroutine_handle<> waiter;
    std::exception_ptr error;
    MainLoop* loop = nullptr;
};

template <typename R>
Task<void> runWindowChild(Task<R> task, WindowState<R>* state) {
    try {
        state->results.push_back(co_await std::move(task));
    } catch (...) {
        if (!state->error) state->error = std::current_exception();
    }
    --state->running;
    ++state->finishedUnseen;
    // Resumed through the loop: the finishing child's frame must not run the parent on its stack.
    if (auto w = std::exchange(state->waiter, {})) state->loop->post([w] { w.resume(); });
}
}  // namespace detail

// Runs `launch(item)` for every item with at most `limit` child tasks at once (a limit below 1
// counts as 1), starting the next as soon as one ends. `launch` is called at the moment a child
// starts, in item order. Results come back in order of completion.
template <typename R, typename Item, typename Launch>
Task<std::vector<R>> slidingWindow(MainLoop& loop, std::vector<Item> items, int limit,
                                   Launch launch) {
    limit = std::max(limit, 1);
    detail::WindowState<R> state;
    state.loop = &loop;
    std::vector<Task<void>> children;
    children.reserve(items.size());
    std::size_t next = 0;

    struct NextResult {
        detail::WindowState<R>& s;
        bool await_ready() const noexcept { return s.finishedUnseen > 0; }
        void await_suspend(std::coroutine_handle<> h) noexcept { s.waiter = h; }
        void await_resume() noexcept { s.finishedUnseen = 0; }
    };

    while (next < items.size() || state.running > 0) {
        while (state.running < limit && next < items.size()) {
            ++state.running;
            children.push_back(detail::runWindowChild<R>(launch(items[next++]), &state));
            children.back().startDetachedFrom({});
        }
        if (state.running > 0) co_await NextResult{state};
    }
    if (state.error) std::rethrow_exception(state.error);
    co_return std::move(state.results);
}

}  // namespace tarnel
