#pragma once

#include <exception>
#include <functional>

namespace tarnel {

// Where an operation that ends on another thread reports: no exception for success. Called
// once.
using Completion = std::function<void(std::exception_ptr)>;

}  // namespace tarnel
