#pragma once

#include <cstdint>
#include <string>

namespace tarnel {

// The file-style byte count text of log lines and messages: decimal units, "Zero KB",
// "1 byte", "532 bytes", "1 KB", "1.5 MB", "2.35 GB". Kilobytes show no fraction, megabytes
// one digit, larger units two, trailing zeros dropped, halves rounded to even. A count that
// would round up to 1,000 of a unit is shown in the next unit ("1 MB", not "1,000 KB").
std::string formatFileByteCount(std::int64_t bytes);

}  // namespace tarnel
