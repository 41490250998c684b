#include "transfer/easy_handle_pool.h"

#include <gtest/gtest.h>

namespace tarnel {
namespace {

using namespace std::chrono_literals;

TEST(EasyHandlePool, lendsOneHandlePerOperationAndClosesIdleOnes) {
    auto now = EasyHandlePool::SteadyClock::time_point{};
    EasyHandlePool pool([&] { return now; }, false);

    CurlSession* first = nullptr;
    {
        auto a = pool.acquire();
        auto b = pool.acquire();  // in flight at the same time: another handle
        ASSERT_TRUE(a && b);
        EXPECT_NE(a.get(), b.get());
        first = a.get();
    }
    EXPECT_EQ(pool.idleCount(), 2u);
    {
        // The handle returned last comes out first, with its session.
        auto c = pool.acquire();
        EXPECT_EQ(c.get(), first);
    }
    now += 59s;
    pool.closeIdle();
    EXPECT_EQ(pool.idleCount(), 2u);
    now += 2s;
    { auto d = pool.acquire(); }  // freshly returned: young again
    pool.closeIdle();
    EXPECT_EQ(pool.idleCount(), 1u);
    pool.closeAll();
    EXPECT_EQ(pool.idleCount(), 0u);
}

}  // namespace
}  // namespace tarnel
