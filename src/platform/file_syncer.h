#pragma once

#include <filesystem>

#include "platform/task.h"

namespace tarnel {

// Makes a file that was just written and moved into place durable: its data and its entry in
// its folder on disk, so that a power cut cannot take it back once its source is gone.
class FileSyncer {
public:
    virtual ~FileSyncer() = default;

    // Resumes on the loop once `file` and its folder entry are on disk; throws
    // std::system_error, naming the file, when the disk refuses.
    virtual Task<void> makeDurable(std::filesystem::path file) = 0;
};

}  // namespace tarnel
