#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

#include "platform/main_loop.h"

namespace tarnel {

// Ends a subscription when destroyed (or reset). Move-only; may bundle several.
class Subscription {
public:
    Subscription() = default;
    explicit Subscription(std::function<void()> cancel) : cancel_(std::move(cancel)) {}
    Subscription(Subscription&& o) noexcept : cancel_(std::exchange(o.cancel_, {})) {}
    Subscription& operator=(Subscription&& o) noexcept {
        if (this != &o) {
            reset();
            cancel_ = std::exchange(o.cancel_, {});
        }
        return *this;
    }
    ~Subscription() { reset(); }
    void reset() {
        if (auto c = std::exchange(cancel_, {})) c();
    }

private:
    std::function<void()> cancel_;
};

// A value whose every change is published to subscribers, on the thread that sets it (the loop).
// Like a published property: each set publishes, even of an equal value.
template <typename T>
class Observable {
public:
    using Callback = std::function<void(const T&)>;

    explicit Observable(T initial = T{}) : state_(std::make_shared<State>()) {
        state_->value = std::move(initial);
    }
    Observable(const Observable&) = delete;
    Observable& operator=(const Observable&) = delete;

    const T& value() const { return state_->value; }
    const T& operator()() const { return state_->value; }

    void set(T v) {
        state_->value = std::move(v);
        notify();
    }

    // Changes the value in place, then tells the subscribers: no copy of a long list per change.
    template <typename Change>
    void update(Change change) {
        change(state_->value);
        notify();
    }

    // `fn` gets the current value at once (like a published property's first emission), then
    // every change. Pass emitCurrent false to skip that first value.
    [[nodiscard]] Subscription subscribe(Callback fn, bool emitCurrent = true) const {
        auto id = state_->nextId++;
        auto shared = std::make_shared<Callback>(std::move(fn));
        state_->callbacks.emplace_back(id, shared);
        if (emitCurrent) (*shared)(state_->value);
        std::weak_ptr<State> weak = state_;
        return Subscription([weak, id] {
            if (auto s = weak.lock()) std::erase_if(s->callbacks, [id](auto& e) { return e.first == id; });
        });
    }

private:
    void notify() {
        // A copy, so that a callback may subscribe or unsubscribe while we iterate.
        auto callbacks = state_->callbacks;
        for (auto& [id, cb] : callbacks) {
            if (state_->alive(id)) (*cb)(state_->value);
        }
    }

    struct State {
        T value{};
        std::uint64_t nextId = 0;
        std::vector<std::pair<std::uint64_t, std::shared_ptr<Callback>>> callbacks;
        bool alive(std::uint64_t id) const {
            for (auto& e : callbacks)
                if (e.first == id) return true;
            return false;
        }
    };
    std::shared_ptr<State> state_;
};

// Calls `fn` once now and again whenever any of the observables changes.
template <typename Fn, typename... Ts>
[[nodiscard]] Subscription combineLatest(Fn fn, const Observable<Ts>&... sources) {
    auto shared = std::make_shared<Fn>(std::move(fn));
    auto subs = std::make_shared<std::vector<Subscription>>();
    (subs->push_back(sources.subscribe([shared](const Ts&) { (*shared)(); }, false)), ...);
    (*shared)();
    return Subscription([subs] { subs->clear(); });
}

// Every change after the current value.
template <typename T, typename Fn>
[[nodiscard]] Subscription skipFirst(const Observable<T>& source, Fn fn) {
    return source.subscribe(std::move(fn), false);
}

// `fn(value)` once `quiet` has passed with no further change; the current value counts as the
// first change, as a published property's does.
template <typename T, typename Fn>
[[nodiscard]] Subscription debounce(MainLoop& loop, const Observable<T>& source, Duration quiet,
                                    Fn fn) {
    struct State {
        std::unique_ptr<Timer> timer;
    };
    auto state = std::make_shared<State>();
    auto shared = std::make_shared<Fn>(std::move(fn));
    std::weak_ptr<State> weak = state;
    auto sub = source.subscribe([&loop, weak, shared, quiet](const T& v) {
        auto s = weak.lock();
        if (!s) return;
        s->timer = loop.startTimer(quiet, false, [weak, shared, v] {
            if (weak.lock()) (*shared)(v);
        });
    });
    auto owned = std::make_shared<Subscription>(std::move(sub));
    return Subscription([owned, state]() mutable {
        owned->reset();
        state->timer.reset();
    });
}

}  // namespace tarnel
