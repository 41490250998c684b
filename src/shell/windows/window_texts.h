#pragma once

#include <string>
#include <vector>

#include "platform/clock.h"
#include "records/log_service.h"

namespace tarnel {

// The texts of the log and history windows, decided from plain values.

// "HH:mm:ss" of `t` in the clock's time zone.
std::string timeOfDayText(const Clock& clock, TimePoint t);
// What "Copy All" puts on the clipboard: "[HH:mm:ss] WORD message" for each entry in the
// given (oldest first) order, joined by line breaks; empty for no entries.
std::string copyAllText(const Clock& clock, const std::vector<LogEntry>& entries);

}  // namespace tarnel
