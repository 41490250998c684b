#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace tarnel {

// The outcome of one file's attempt. A failed file is a result, never an exception.
struct TransferResult {
    std::string name;
    std::string finalName;  // what the rename pattern gave; `name` on every failure
    std::int64_t size = 0;  // local size when placed, the listed size otherwise
    bool success = false;   // placed, or ignored by routing
    std::string destinationPath;  // the folder, not the file
    std::optional<std::string> errorMessage;
    std::string trackingKey;
    bool wasResumed = false;
    bool wasIgnored = false;
    // Not this transfer's to make now: the engine was stopped, or a transfer of an engine this
    // one replaced writes or has placed the file. Neither placed nor failed; the next poll
    // takes it up again if it has to.
    bool wasDeferred = false;
};

}  // namespace tarnel
