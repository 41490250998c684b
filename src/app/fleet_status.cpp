#include "app/fleet_status.h"

#include <cstdio>

#include "records/byte_count_format.h"

namespace tarnel {

namespace {

using nlohmann::json;

constexpr const char* stateNames[] = {"idle", "connected", "syncing", "error"};

std::string localTimeText(const Clock& clock, TimePoint t) {
    const std::tm tm = clock.localTime(t);
    char text[64];
    std::snprintf(text, sizeof text, "%04d-%02d-%02d %02d:%02d:%02d", tm.tm_year + 1900,
                  tm.tm_mon + 1, tm.tm_mday, tm.tm_hour, tm.tm_min, tm.tm_sec);
    return text;
}

bool sameDay(const Clock& clock, TimePoint a, TimePoint b) {
    const std::tm x = clock.localTime(a), y = clock.localTime(b);
    return x.tm_year == y.tm_year && x.tm_yday == y.tm_yday;
}

json engineStatus(const SyncEngine& engine, const Clock& clock) {
    json waiting = json::array(), downloading = json::array();
    for (const auto& file : engine.trackedSnapshots()())
        waiting.push_back({{"name", file.name},
                           {"size", file.size},
                           {"stableCount", file.stableCount},
                           {"requiredChecks", file.requiredChecks}});
    for (const auto& download : engine.activeDownloads()())
        downloading.push_back({{"name", download.fileName},
                               {"downloadedBytes", download.downloadedBytes},
                               {"totalBytes", download.totalBytes},
                               {"bytesPerSecond", download.speed}});
    const auto& lastPoll = engine.lastSyncTime()();
    const auto& lastError = engine.lastError()();
    return {{"state", stateNames[static_cast<int>(engine.connectionState()())]},
            {"paused", engine.isPaused()()},
            {"status", engine.statusText()()},
            {"lastPoll", lastPoll ? json(localTimeText(clock, *lastPoll)) : json(nullptr)},
            {"lastError", lastError ? json(*lastError) : json(nullptr)},
            {"waiting", waiting},
            {"downloading", downloading}};
}

std::string percent(std::int64_t part, std::int64_t whole) {
    return whole > 0 ? std::to_string(part * 100 / whole) + "%" : formatFileByteCount(part);
}

}  // namespace

json fleetStatus(const ConnectionsManager& manager, const HistoryService& history,
                 StatsService& stats, const Clock& clock) {
    const auto now = clock.now();
    json connections = json::array();
    for (const auto& config : manager.connections()()) {
        const auto engine = manager.engines().find(config.id);
        json row = engine != manager.engines().end()
                       ? engineStatus(*engine->second, clock)
                       : json{{"state", "stopped"}, {"paused", false}, {"status", "Not running"},
                              {"lastPoll", nullptr}, {"lastError", nullptr},
                              {"waiting", json::array()}, {"downloading", json::array()}};
        // The history names connections, not ids; it keeps the latest transfers only.
        int files = 0;
        std::int64_t bytes = 0;
        for (const auto& entry : history.entries()()) {
            if (!sameDay(clock, entry.timestamp, now)) break;  // newest first
            if (entry.connectionName != config.name || entry.status != TransferStatus::success) continue;
            ++files;
            bytes += entry.sizeBytes;
        }
        row["name"] = config.name;
        row["id"] = config.id.toString();
        row["todayFiles"] = files;
        row["todayBytes"] = bytes;
        connections.push_back(std::move(row));
    }
    stats.todaySummary();  // rolls the day over if it has changed
    return {{"state", stateNames[static_cast<int>(manager.aggregateState()())]},
            {"todayFiles", stats.todayFiles()},
            {"todayBytes", stats.todayBytes()},
            {"connections", connections}};
}

std::string statusLines(const json& status) {
    std::string text;
    for (const auto& c : status.value("connections", json::array())) {
        text += c.value("name", "") + ": " + c.value("state", "") +
                (c.value("paused", false) ? " (paused)" : "") + ", " + c.value("status", "");
        const json lastPoll = c.value("lastPoll", json()), lastError = c.value("lastError", json());
        const json downloads = c.value("downloading", json::array());
        text += "; last poll " + (lastPoll.is_string() ? lastPoll.get<std::string>() : "never");
        text += "; waiting " + std::to_string(c.value("waiting", json::array()).size());
        text += "; downloading " + std::to_string(downloads.size());
        for (std::size_t i = 0; i < downloads.size(); ++i) {
            const auto& d = downloads[i];
            text += (i == 0 ? ": " : ", ") + d.value("name", "") + " " +
                    percent(d.value("downloadedBytes", std::int64_t{0}),
                            d.value("totalBytes", std::int64_t{0}));
        }
        if (lastError.is_string()) text += "; last error: " + lastError.get<std::string>();
        text += "; today " + std::to_string(c.value("todayFiles", 0)) + " files, " +
                formatFileByteCount(c.value("todayBytes", std::int64_t{0})) + "\n";
    }
    return text + statusSummary(status) + "\n";
}

std::string statusSummary(const json& status) {
    const auto& connections = status.value("connections", json::array());
    int errors = 0, downloading = 0, paused = 0;
    for (const auto& c : connections) {
        errors += c.value("state", "") == "error";
        downloading += !c.value("downloading", json::array()).empty();
        paused += c.value("paused", false);
    }
    std::string text = std::to_string(connections.size()) + " connection(s)";
    std::string parts;
    const auto add = [&](int n, const char* what) {
        if (n > 0) parts += (parts.empty() ? ": " : ", ") + std::to_string(n) + " " + what;
    };
    add(errors, "in error");
    add(downloading, "downloading");
    add(paused, "paused");
    return text + parts + "; today " + std::to_string(status.value("todayFiles", 0)) + " files, " +
           formatFileByteCount(status.value("todayBytes", std::int64_t{0}));
}

int statusExitCode(const json& status) {
    for (const auto& c : status.value("connections", json::array()))
        if (c.value("state", "") == "error") return 1;
    return 0;
}

}  // namespace tarnel
