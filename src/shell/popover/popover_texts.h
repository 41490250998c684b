#pragma once

#include <optional>
#include <string>
#include <vector>

#include "connections/connection_config.h"
#include "engine/sync_engine.h"

namespace tarnel {

// What the popover shows, decided from plain values so that each rule can be checked alone.

// The header's status line.
struct HeaderInputs {
    bool pausedForDiskSpace = false;
    bool pausedForNetwork = false;
    bool aggregatePaused = false;
    int enabledConnections = 0;
};
std::string headerStatusText(const HeaderInputs& in);

enum class Tone { secondary, blue, green, orange, red };

struct Banner {
    const char* icon;
    Tone tone;
    std::string text;
};
struct BannerInputs {
    bool pausedForNetwork = false;
    bool onHotspot = false;
    bool pausedForDiskSpace = false;
    bool preventSleepDuringDownloads = false;
    bool preventingSleep = false;
};
std::optional<Banner> bannerFor(const BannerInputs& in);

// What an engine shows of itself in its connection's row.
struct EngineStatus {
    ConnectionState state = ConnectionState::idle;
    std::string statusText;
};
// "Disabled", "Stopped", "Manual", "Connected", or the engine's own status text.
std::string connectionStatusWord(const ConnectionConfig& config,
                                 const std::optional<EngineStatus>& engine);

// "30 seconds", "1 minute", "5 minutes": a poll interval as people say it.
std::string pollIntervalText(double seconds);

// The activity section: at most three rows shared by downloads first, then waiting files.
struct ActivityPlan {
    static constexpr std::size_t rows = 3;
    std::vector<DownloadProgress> downloads;  // rows, at most 2
    int moreDownloading = 0;                  // the "+n more downloading..." line, when above 0
    std::vector<TrackedFileSnapshot> waiting;  // rows
    int moreWaiting = 0;                       // the "n waiting for stability" line, when above 0
    bool monitoring() const { return downloads.empty() && waiting.empty(); }
};
ActivityPlan planActivity(const std::vector<DownloadProgress>& downloads,
                          const std::vector<TrackedFileSnapshot>& waiting);

// A download's progress as "42%"; nothing is known of a total of 0.
std::string progressPercentText(const DownloadProgress& download);

// The free-space figure's colour: red below 2 GB, orange below 5 GB, whatever the threshold.
Tone diskTone(double freeGB);
// The network word as the user reads it: "Wi-Fi" and "Ethernet" are the same in every language.
std::string networkText(const std::string& networkType);
// "wifi", "cable.connector", "antenna.radiowaves.left.and.right", "wifi.slash" by network word.
const char* networkIconName(const std::string& networkType);

}  // namespace tarnel
