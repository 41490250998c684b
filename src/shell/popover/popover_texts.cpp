#include "shell/popover/popover_texts.h"

#include <cmath>

#include "platform/localized.h"

namespace tarnel {

std::string headerStatusText(const HeaderInputs& in) {
    if (in.pausedForDiskSpace) return localized("Low disk");
    if (in.pausedForNetwork) return localized("No network");
    if (in.aggregatePaused) return localized("Paused");
    if (in.enabledConnections == 0) return localized("No connections");
    return localizedCount("%n active connection(s)", in.enabledConnections);
}

std::optional<Banner> bannerFor(const BannerInputs& in) {
    if (in.pausedForNetwork && in.onHotspot)
        return Banner{"wifi.slash", Tone::orange, localized("Paused — mobile hotspot detected")};
    if (in.pausedForNetwork)
        return Banner{"wifi.slash", Tone::orange, localized("Paused — no internet connection")};
    if (in.pausedForDiskSpace)
        return Banner{"externaldrive.badge.exclamationmark", Tone::orange,
                      localized("Paused — low disk space")};
    if (in.preventSleepDuringDownloads && in.preventingSleep)
        return Banner{"bolt.fill", Tone::blue, localized("Preventing sleep — downloading")};
    if (in.preventSleepDuringDownloads)
        return Banner{"bolt.fill", Tone::secondary, localized("Sleep prevention enabled")};
    return std::nullopt;
}

std::string connectionStatusWord(const ConnectionConfig& config,
                                 const std::optional<EngineStatus>& engine) {
    if (!config.enabled) return localized("Disabled");
    if (!engine) return config.autoConnectOnLaunch ? localized("Stopped") : localized("Manual");
    if (engine->state == ConnectionState::connected || engine->state == ConnectionState::syncing)
        return localized("Connected");
    return engine->statusText;
}

std::string pollIntervalText(double seconds) {
    const auto whole = static_cast<long long>(std::llround(seconds));
    if (whole >= 60 && whole % 60 == 0) {
        return localizedCount("%n minute(s)", static_cast<int>(whole / 60));
    }
    return localizedCount("%n second(s)", static_cast<int>(whole));
}

ActivityPlan planActivity(const std::vector<DownloadProgress>& downloads,
                          const std::vector<TrackedFileSnapshot>& waiting) {
    constexpr std::size_t downloadRows = 2;
    constexpr auto rows = ActivityPlan::rows;
    ActivityPlan plan;
    const auto shownDownloads = std::min(downloads.size(), downloadRows);
    plan.downloads.assign(downloads.begin(), downloads.begin() + shownDownloads);
    plan.moreDownloading = static_cast<int>(downloads.size() - shownDownloads);
    const auto shownWaiting = std::min(waiting.size(), rows - shownDownloads);
    plan.waiting.assign(waiting.begin(), waiting.begin() + shownWaiting);
    plan.moreWaiting = static_cast<int>(waiting.size() - shownWaiting);
    return plan;
}

std::string progressPercentText(const DownloadProgress& download) {
    if (download.totalBytes <= 0) return "…";
    const double fraction = static_cast<double>(download.downloadedBytes) / download.totalBytes;
    return std::to_string(static_cast<int>(std::floor(std::clamp(fraction, 0.0, 1.0) * 100))) + "%";
}

Tone diskTone(double freeGB) {
    if (freeGB < 2.0) return Tone::red;
    if (freeGB < 5.0) return Tone::orange;
    return Tone::secondary;
}

std::string networkText(const std::string& networkType) {
    if (networkType == "Cellular") return localized("Cellular");
    if (networkType == "Offline") return localized("Offline");
    if (networkType == "Connected") return localized("Connected");
    return networkType;
}

const char* networkIconName(const std::string& networkType) {
    if (networkType == "Wi-Fi") return "wifi";
    if (networkType == "Ethernet") return "cable.connector";
    if (networkType == "Cellular") return "antenna.radiowaves.left.and.right";
    if (networkType == "Offline") return "wifi.slash";
    return "network";
}

}  // namespace tarnel
