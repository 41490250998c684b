#include <gtest/gtest.h>

#include <atomic>
#include <stdexcept>
#include <thread>

#include "platform/observable.h"
#include "platform/runtime.h"
#include "platform/sliding_window.h"
#include "platform/testing/virtual_loop.h"

namespace tarnel {
namespace {

using namespace std::chrono_literals;

struct RuntimeTest : ::testing::Test {
    VirtualLoop loop{&workers};
    WorkerPool workers;  // destroyed first: its jobs hand back into a live loop
    Runtime rt{loop, loop, workers};
};

// Waits `ms` of virtual time, then returns `value`.
Task<int> after(MainLoop& loop, int ms, int value) {
    co_await delay(loop, Duration(ms));
    co_return value;
}

TEST_F(RuntimeTest, SlidingWindowKeepsLimitAndReturnsInCompletionOrder) {
    std::vector<int> result;
    int started = 0, maxRunning = 0, running = 0;
    auto job = [&](int ms) -> Task<int> {
        ++started;
        maxRunning = std::max(maxRunning, ++running);
        int v = co_await after(loop, ms, ms);
        --running;
        co_return v;
    };
    // Lambdas that are coroutines stay named: the frame refers to the closure's captures.
    // (Braced lists stay outside coroutine bodies: g++ 12 rejects them there.)
    std::vector<int> items{30, 10, 20, 5};
    auto body = [&]() -> Task<void> { result = co_await slidingWindow<int>(loop, items, 2, job); };
    spawn(loop, body());
    loop.runUntilIdle();
    EXPECT_EQ(started, 2);  // the window opens two slots, no more
    loop.advance(100ms);
    EXPECT_EQ(maxRunning, 2);
    // 10 ends at 10 and frees a slot for 20 (ends at 30, after 30 which started first);
    // only then is there room for 5, which ends at 35.
    EXPECT_EQ(result, (std::vector<int>{10, 30, 20, 5}));
}

// A child that gives its place up lets the next one start; the window still waits for it.
TEST_F(RuntimeTest, SlidingWindowStartsTheNextWhenAChildGivesItsPlaceUp) {
    std::vector<int> result;
    int started = 0;
    auto job = [&](int ms, WindowSlot slot) -> Task<int> {
        ++started;
        co_await delay(loop, 5ms);
        slot.release();
        slot.release();  // a second time frees nothing more
        co_await delay(loop, Duration(ms));
        co_return ms;
    };
    std::vector<int> items{30, 10, 40};
    bool finished = false;
    auto body = [&]() -> Task<void> {
        result = co_await slidingWindow<int>(loop, items, 1, job);
        finished = true;
    };
    spawn(loop, body());
    loop.advance(6ms);
    EXPECT_EQ(started, 2);
    loop.advance(5ms);
    EXPECT_EQ(started, 3);
    // The last ends at 55 ms: 10 + 5 + 40.
    loop.advance(40ms);
    EXPECT_FALSE(finished);
    loop.advance(10ms);
    EXPECT_TRUE(finished);
    EXPECT_EQ(result, (std::vector<int>{10, 30, 40}));
}

TEST_F(RuntimeTest, SlidingWindowBelowOneStillFinishes) {
    std::vector<int> result;
    std::vector<int> items{1, 2};
    auto body = [&]() -> Task<void> {
        result = co_await slidingWindow<int>(loop, items, 0, [&](int v) { return after(loop, 1, v); });
    };
    spawn(loop, body());
    loop.advance(10ms);
    EXPECT_EQ(result, (std::vector<int>{1, 2}));
}

TEST_F(RuntimeTest, WorkerResultsAndExceptionsComeBackOnTheLoopThread) {
    const auto loopThread = std::this_thread::get_id();
    std::thread::id ranOn, resumedOn;
    int value = 0;
    std::string error;
    auto body = [&]() -> Task<void> {
        value = co_await onWorker(rt, [&] {
            ranOn = std::this_thread::get_id();
            std::this_thread::sleep_for(20ms);
            return 42;
        });
        resumedOn = std::this_thread::get_id();
        try {
            co_await onWorker(rt, []() -> int { throw std::runtime_error("boom"); });
        } catch (const std::runtime_error& e) {
            error = e.what();
        }
    };
    spawn(loop, body());
    loop.runUntilIdle();
    EXPECT_EQ(value, 42);
    EXPECT_NE(ranOn, loopThread);
    EXPECT_EQ(resumedOn, loopThread);
    EXPECT_EQ(error, "boom");
}

TEST(RuntimeTeardown, SuspendedDetachedTasksAreFreedWithTheLoop) {
    auto token = std::make_shared<int>(0);
    std::weak_ptr<int> watch = token;
    {
        VirtualLoop loop;
        spawn(loop, [](MainLoop& l, std::shared_ptr<int> held) -> Task<void> {
            co_await delay(l, 1h);
            ++*held;
        }(loop, std::move(token)));
        EXPECT_FALSE(watch.expired());
    }
    EXPECT_TRUE(watch.expired());  // the frame, and what it held, are gone
}

TEST_F(RuntimeTest, ObservableCombineSkipAndDebounce) {
    Observable<int> a{1};
    Observable<bool> b{false};
    int combined = 0;
    auto s1 = combineLatest([&] { ++combined; }, a, b);
    EXPECT_EQ(combined, 1);  // once on subscription
    a.set(2);
    b.set(true);
    EXPECT_EQ(combined, 3);

    std::vector<int> skipped;
    auto s2 = skipFirst(a, [&](int v) { skipped.push_back(v); });
    a.set(3);
    EXPECT_EQ(skipped, (std::vector<int>{3}));

    std::vector<bool> debounced;
    auto s3 = debounce(loop, b, 2s, [&](bool v) { debounced.push_back(v); });
    loop.advance(1s);
    b.set(false);
    loop.advance(1500ms);
    b.set(true);  // restarts the wait: only the last value of a burst comes out
    loop.advance(1999ms);
    EXPECT_TRUE(debounced.empty());
    loop.advance(1ms);
    EXPECT_EQ(debounced, (std::vector<bool>{true}));

    s1.reset();
    s3.reset();
    a.set(9);
    b.set(false);
    loop.advance(5s);
    EXPECT_EQ(combined, 6);  // every change up to the reset, nothing after
    EXPECT_EQ(debounced.size(), 1u);
}

}  // namespace
}  // namespace tarnel
