#pragma once

#include <cstdint>
#include <string>

#include "platform/clock.h"
#include "platform/uuid.h"
#include "transfer/progress_text.h"

namespace tarnel {

// The popover's row for one running transfer. Byte counts are whole-file figures, so a resumed
// transfer starts at its offset.
struct DownloadProgress {
    Uuid id = Uuid::random();
    std::string fileName;
    std::string connectionName;
    std::int64_t totalBytes = 0;
    std::int64_t downloadedBytes = 0;
    double speed = 0;  // bytes per second
    TimePoint startTime;
    bool isResuming = false;

    std::string speedText() const { return tarnel::speedText(speed); }

    bool operator==(const DownloadProgress&) const = default;
};

}  // namespace tarnel
