#pragma once

#include <future>
#include <memory>

#include "platform/completion.h"

namespace tarnel {

// Runs `start`, which begins an operation that reports to a Completion, and waits for it;
// rethrows its failure, also one that `start` itself throws. For tests and benchmarks, which
// may block.
template <typename Start>
void waitFor(Start start) {
    // Shared: the completing thread may still be inside set_value when the waiter has returned.
    auto outcome = std::make_shared<std::promise<std::exception_ptr>>();
    auto future = outcome->get_future();
    start([outcome](std::exception_ptr error) { outcome->set_value(std::move(error)); });
    if (auto error = future.get()) std::rethrow_exception(error);
}

}  // namespace tarnel
