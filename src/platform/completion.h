#pragma once

#include <exception>
#include <functional>

namespace tarnel {

// Where an operation that ends on another thread reports: no exception for success. Called
// once.
using Completion = std::function<void(std::exception_ptr)>;

// Runs `start`, which begins such an operation, and waits for its completion; rethrows its
// failure, also one that `start` itself throws.
void waitFor(const std::function<void(Completion)>& start);

}  // namespace tarnel
