#pragma once

#include <nlohmann/json.hpp>
#include <string>

#include "fleet/connections_manager.h"
#include "platform/clock.h"
#include "records/history_service.h"
#include "records/stats_service.h"

namespace tarnel {

// How the running fleet is doing, as `tarnel --status` shows it. Read on the main loop from the
// engines' observables; the asking process formats it, so one document serves both forms.
//   {"state": "error", "todayFiles": 3, "todayBytes": 1200, "connections": [{"name": "Shop",
//    "id": "...", "state": "error", "paused": false, "status": "Error",
//    "lastPoll": "2024-03-07 14:05:09" | null, "lastError": "..." | null,
//    "waiting": [{"name", "size", "stableCount", "requiredChecks"}],
//    "downloading": [{"name", "downloadedBytes", "totalBytes", "bytesPerSecond"}],
//    "todayFiles": 1, "todayBytes": 400}]}
// A connection without an engine (disabled, no host, its password not read yet) has the state
// "stopped".
nlohmann::json fleetStatus(const ConnectionsManager& manager, const HistoryService& history,
                           StatsService& stats, const Clock& clock);

// One line per connection, then one for the fleet.
std::string statusLines(const nlohmann::json& status);
// The fleet in one line: "2 connections: 1 in error, 1 downloading; today 3 files, 1 KB".
std::string statusSummary(const nlohmann::json& status);
// 1 when a connection is in error, else 0.
int statusExitCode(const nlohmann::json& status);

}  // namespace tarnel
