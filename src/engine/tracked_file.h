#pragma once

#include <cstdint>
#include <string>

#include "platform/clock.h"

namespace tarnel {

// A remote file held back until its listed size has settled.
struct TrackedFile {
    std::string name;
    std::int64_t size = 0;
    int stableCount = 0;  // polls in a row that saw the size unchanged
    TimePoint firstSeen;  // the date that date folders use
    std::string relativePath;
};

// A row of the popover's list of files being watched.
struct TrackedFileSnapshot {
    std::string id;  // the name: two folders may give two rows with one id
    std::string name;
    std::int64_t size = 0;
    int stableCount = 0;
    int requiredChecks = 0;
    bool isGrowing = false;  // the count stands at zero

    bool operator==(const TrackedFileSnapshot&) const = default;
};

// The key under which a file is tracked, retried and resumed: unique within one connection.
inline std::string trackingKey(const std::string& name, const std::string& relativePath) {
    return relativePath.empty() ? name : relativePath;
}

}  // namespace tarnel
