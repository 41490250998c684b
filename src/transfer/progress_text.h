#pragma once

#include <cstdint>
#include <string>

namespace tarnel {

// The short texts of the popover and the folder tree, in decimal units.

// "1.5 GB", "2.3 MB", "12 KB", "999 B".
std::string formatSize(std::int64_t bytes);
// "1.2 MB/s", "350 KB/s", "1000 B/s" for bytes per second; thresholds are strict.
std::string speedText(double bytesPerSecond);
// "growing..." or "stable 2/3", with " ✓" once the count has reached the required checks.
std::string stabilityText(bool isGrowing, std::int64_t stableCount, std::int64_t requiredChecks);

}  // namespace tarnel
