#pragma once

#include <filesystem>
#include <string>

#include "platform/runtime.h"
#include "platform/task.h"

namespace tarnel {

// The MD5 of a file as 32 lower-case hex digits, read in 64 KiB blocks; "error" if the file
// cannot be read. Logged for files whose server offers no checksum of its own.
std::string computeMD5(const std::filesystem::path& file);

// The same on a worker: a digest of a large file takes seconds that the loop cannot spare.
Task<std::string> computeMD5(Runtime& runtime, std::filesystem::path file);

}  // namespace tarnel
