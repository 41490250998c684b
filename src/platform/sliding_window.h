#pragma once

#include <algorithm>
#include <coroutine>
#include <exception>
#include <memory>
#include <type_traits>
#include <utility>
#include <vector>

#include "platform/main_loop.h"
#include "platform/task.h"

namespace tarnel {

namespace detail {
struct WindowCounts {
    int holding = 0;  // children that hold a place in the window
    int alive = 0;    // children not yet ended
    int changes = 0;  // places given up or children ended since the parent last looked
    std::coroutine_handle<> waiter;
    MainLoop* loop = nullptr;

    void changed() {
        ++changes;
        // Resumed through the loop: the child must not run the parent on its stack.
        if (auto w = std::exchange(waiter, {})) loop->post([w] { w.resume(); });
    }
};

template <typename R>
struct WindowState : WindowCounts {
    std::vector<R> results;  // in order of completion
    std::exception_ptr error;
};
}  // namespace detail

// A child's place in a sliding window. A child that gives it up before it ends lets the next
// item start while it finishes work that may overlap with that item's.
class WindowSlot {
public:
    WindowSlot(detail::WindowCounts* counts, std::shared_ptr<bool> held)
        : counts_(counts), held_(std::move(held)) {}
    // Gives the place up; once only, and at the latest when the child ends.
    void release() {
        if (!std::exchange(*held_, false)) return;
        --counts_->holding;
        counts_->changed();
    }

private:
    detail::WindowCounts* counts_;
    std::shared_ptr<bool> held_;
};

namespace detail {
template <typename R>
Task<void> runWindowChild(Task<R> task, WindowState<R>* state, WindowSlot slot) {
    try {
        state->results.push_back(co_await std::move(task));
    } catch (...) {
        if (!state->error) state->error = std::current_exception();
    }
    slot.release();
    --state->alive;
    state->changed();
}
}  // namespace detail

// Runs `launch(item)` for every item with at most `limit` child tasks at once (a limit below 1
// counts as 1), starting the next as soon as one ends. `launch` is called at the moment a child
// starts, in item order; one that takes a WindowSlot too may give its place up before its child
// ends. Results come back in order of completion.
template <typename R, typename Item, typename Launch>
Task<std::vector<R>> slidingWindow(MainLoop& loop, std::vector<Item> items, int limit,
                                   Launch launch) {
    limit = std::max(limit, 1);
    detail::WindowState<R> state;
    state.loop = &loop;
    // The children under way: an ended one's frame goes at the next change, so that a batch of
    // many thousand files holds no more frames than the window is wide.
    std::vector<Task<void>> children;
    std::size_t next = 0;

    struct NextChange {
        detail::WindowCounts& s;
        bool await_ready() const noexcept { return s.changes > 0; }
        void await_suspend(std::coroutine_handle<> h) noexcept { s.waiter = h; }
        void await_resume() noexcept { s.changes = 0; }
    };

    while (next < items.size() || state.alive > 0) {
        while (state.holding < limit && next < items.size()) {
            ++state.holding;
            ++state.alive;
            WindowSlot slot(&state, std::make_shared<bool>(true));
            Task<R> child = [&] {
                if constexpr (std::is_invocable_v<Launch&, Item&, WindowSlot>)
                    return launch(items[next++], slot);
                else
                    return launch(items[next++]);
            }();
            children.push_back(detail::runWindowChild<R>(std::move(child), &state, slot));
            children.back().startDetachedFrom({});
        }
        if (state.alive > 0) co_await NextChange{state};
        std::erase_if(children, [](const Task<void>& child) { return child.done(); });
    }
    if (state.error) std::rethrow_exception(state.error);
    co_return std::move(state.results);
}

}  // namespace tarnel
