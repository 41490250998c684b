#include "platform/completion.h"

#include <future>
#include <memory>

namespace tarnel {

void waitFor(const std::function<void(Completion)>& start) {
    // Shared: the completing thread may still be inside set_value when the waiter has returned.
    auto outcome = std::make_shared<std::promise<std::exception_ptr>>();
    auto future = outcome->get_future();
    start([outcome](std::exception_ptr error) { outcome->set_value(std::move(error)); });
    if (auto error = future.get()) std::rethrow_exception(error);
}

}  // namespace tarnel
