#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "platform/clock.h"
#include "platform/observable.h"
#include "platform/settings_store.h"

namespace tarnel {

// Files and bytes of today, yesterday and all time, across all connections, with the texts the
// popover shows. "Yesterday" is the last day that had been current, however long ago: the day
// rolls over when a download is recorded or today's summary is read, not on a timer.
// Lives on the main loop.
class StatsService {
public:
    StatsService(SettingsStore& store, const Clock& clock);

    Observable<int> todayFiles;
    Observable<std::int64_t> todayBytes;
    Observable<int> totalFiles;
    Observable<std::int64_t> totalBytes;
    Observable<std::optional<TimePoint>> lastActivityDate;
    Observable<int> yesterdayFiles;
    Observable<std::int64_t> yesterdayBytes;

    // Called once for each file that arrived.
    void recordDownload(std::int64_t bytes);
    void checkDayRollover();

    // "3 files (1.5 MB)", after a rollover check.
    std::string todaySummary();
    std::string totalSummary() const;
    // "just now", "5s ago", "12 min ago", "3h ago", "2d ago"; nothing before the first download.
    std::optional<std::string> lastActivityText() const;

    // Binary units: "1023 B", "1.0 KB", "1.0 MB", "1.00 GB".
    static std::string formatBytes(std::int64_t bytes);

    const std::string& currentDay() const { return currentDay_; }

private:
    std::string today() const;
    void save();

    SettingsStore& store_;
    const Clock& clock_;
    std::string currentDay_;
};

}  // namespace tarnel
