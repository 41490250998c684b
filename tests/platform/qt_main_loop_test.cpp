#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QTimer>
#include <thread>

#include "platform/qt/qt_main_loop.h"
#include "platform/runtime.h"

namespace tarnel {
namespace {

using namespace std::chrono_literals;

// The application's loop: work handed back from worker threads runs on the loop's thread, in
// order, and a coroutine awaiting a worker and a delay comes back there too.
TEST(QtMainLoop, RunsPostsTimersAndCoroutinesOnItsOwnThread) {
    int argc = 0;
    QCoreApplication app(argc, nullptr);
    QtMainLoop loop;
    SystemClock clock;
    WorkerPool workers;
    Runtime rt{loop, clock, workers};
    const auto mainThread = std::this_thread::get_id();

    std::vector<int> order;
    std::thread([&] {
        for (int i = 0; i < 3; ++i) loop.post([&, i] { order.push_back(i); });
    }).join();

    int fires = 0;
    bool coroutineDone = false;
    auto quitWhenDone = [&] {
        if (fires == 3 && coroutineDone) QCoreApplication::quit();
    };
    std::unique_ptr<Timer> repeating;
    repeating = loop.startTimer(5ms, true, [&] {
        if (++fires == 3) repeating.reset();  // a timer may end itself from its own callback
        quitWhenDone();
    });

    std::thread::id resumedOn;
    auto body = [&]() -> Task<void> {
        int v = co_await onWorker(rt, [] { return 7; });
        co_await delay(loop, 20ms);
        resumedOn = std::this_thread::get_id();
        order.push_back(v);
        coroutineDone = true;
        quitWhenDone();
    };
    spawn(loop, body());
    QTimer::singleShot(5000, &app, [] { QCoreApplication::exit(1); });  // never hang the suite
    EXPECT_EQ(app.exec(), 0);

    EXPECT_EQ(order, (std::vector<int>{0, 1, 2, 7}));
    EXPECT_EQ(resumedOn, mainThread);
    EXPECT_EQ(fires, 3);
}

}  // namespace
}  // namespace tarnel
