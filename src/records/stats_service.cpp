#include "records/stats_service.h"

#include <chrono>
#include <cmath>
#include <cstdio>

#include "platform/localized.h"

namespace tarnel {

namespace {

int readCount(const SettingsStore& store, const char* key) {
    return static_cast<int>(store.intValue(key).value_or(0));
}

// Byte counters are stored as numbers that may come back as doubles; anything that is not a
// finite number in range reads as 0.
std::int64_t readBytes(const SettingsStore& store, const char* key) {
    const double value = store.doubleValue(key).value_or(0);
    if (!std::isfinite(value) || value < -9.2e18 || value > 9.2e18)
        return 0;
    return static_cast<std::int64_t>(value);
}

std::optional<TimePoint> readLastActivity(const SettingsStore& store) {
    const double seconds = store.doubleValue("stats_last_activity").value_or(0);
    if (!(seconds > 0) || !std::isfinite(seconds))
        return std::nullopt;
    using namespace std::chrono;
    return TimePoint(duration_cast<system_clock::duration>(duration<double>(seconds)));
}

std::string summary(int files, std::int64_t bytes) {
    const auto size = StatsService::formatBytes(bytes);
    return localizedCount("%n file(s)", files) + " (" + size + ")";
}

}  // namespace

StatsService::StatsService(SettingsStore& store, const Clock& clock)
    : todayFiles(readCount(store, "stats_today_files")),
      todayBytes(readBytes(store, "stats_today_bytes")),
      totalFiles(readCount(store, "stats_total_files")),
      totalBytes(readBytes(store, "stats_total_bytes")),
      lastActivityDate(readLastActivity(store)),
      yesterdayFiles(readCount(store, "stats_yesterday_files")),
      yesterdayBytes(readBytes(store, "stats_yesterday_bytes")),
      store_(store),
      clock_(clock),
      currentDay_(store.stringValue("stats_current_day").value_or(today())) {
    checkDayRollover();
}

std::string StatsService::today() const {
    const std::tm tm = clock_.localTime(clock_.now());
    char text[40];
    std::snprintf(text, sizeof text, "%04d-%02d-%02d", tm.tm_year + 1900, tm.tm_mon + 1,
                  tm.tm_mday);
    return text;
}

void StatsService::checkDayRollover() {
    auto day = today();
    if (day == currentDay_)
        return;
    yesterdayFiles.set(todayFiles());
    yesterdayBytes.set(todayBytes());
    todayFiles.set(0);
    todayBytes.set(0);
    currentDay_ = std::move(day);
    save();
}

void StatsService::recordDownload(std::int64_t bytes) {
    checkDayRollover();
    todayFiles.set(todayFiles() + 1);
    todayBytes.set(todayBytes() + bytes);
    totalFiles.set(totalFiles() + 1);
    totalBytes.set(totalBytes() + bytes);
    lastActivityDate.set(clock_.now());
    save();
}

void StatsService::save() {
    store_.setValue("stats_today_files", std::int64_t{todayFiles()});
    store_.setValue("stats_today_bytes", todayBytes());
    store_.setValue("stats_total_files", std::int64_t{totalFiles()});
    store_.setValue("stats_total_bytes", totalBytes());
    store_.setValue("stats_yesterday_files", std::int64_t{yesterdayFiles()});
    store_.setValue("stats_yesterday_bytes", yesterdayBytes());
    store_.setValue("stats_current_day", currentDay_);
    if (const auto& last = lastActivityDate()) {
        using namespace std::chrono;
        store_.setValue("stats_last_activity", duration<double>(last->time_since_epoch()).count());
    }
}

std::string StatsService::todaySummary() {
    checkDayRollover();
    return summary(todayFiles(), todayBytes());
}

std::string StatsService::totalSummary() const {
    return summary(totalFiles(), totalBytes());
}

std::optional<std::string> StatsService::lastActivityText() const {
    const auto& last = lastActivityDate();
    if (!last)
        return std::nullopt;
    const auto s = std::chrono::duration_cast<std::chrono::seconds>(clock_.now() - *last).count();
    if (s <= 4)
        return localized("just now");
    if (s < 60)
        return localizedFormat("%llds ago", {std::to_string(s)});
    if (s < 3600)
        return localizedFormat("%lld min ago", {std::to_string(s / 60)});
    if (s < 86400)
        return localizedFormat("%lldh ago", {std::to_string(s / 3600)});
    return localizedFormat("%lldd ago", {std::to_string(s / 86400)});
}

std::string StatsService::formatBytes(std::int64_t bytes) {
    if (bytes < 1024)
        return std::to_string(bytes) + " B";
    double value = static_cast<double>(bytes) / 1024;
    char text[48];
    if (value < 1024) {
        std::snprintf(text, sizeof text, "%.1f KB", value);
        return text;
    }
    value /= 1024;
    if (value < 1024) {
        std::snprintf(text, sizeof text, "%.1f MB", value);
        return text;
    }
    std::snprintf(text, sizeof text, "%.2f GB", value / 1024);
    return text;
}

}  // namespace tarnel
