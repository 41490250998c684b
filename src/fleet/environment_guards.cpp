// The manager's guards against the machine's surroundings: the network path, a cellular path,
// idle sleep and free disk space.
#include <algorithm>
#include <cstdlib>
#include <filesystem>

#include <pwd.h>
#include <unistd.h>

#include "fleet/connections_manager.h"
#include "platform/runtime.h"
#include "records/app_settings.h"
#include "records/log_service.h"

namespace tarnel {

namespace {

std::filesystem::path homeDirectory() {
    if (const char* home = std::getenv("HOME"); home && *home)
        return home;
    if (const passwd* entry = ::getpwuid(::getuid()))
        return entry->pw_dir;
    return "/";
}

// Bytes the user may still write on the volume of `path`, in GiB; 0 when it can't be read.
double freeSpaceGB(const std::filesystem::path& path) {
    std::error_code ec;
    const auto space = std::filesystem::space(path, ec);
    if (ec)
        return 0.0;
    return std::max(0.0, static_cast<double>(space.available) * 9.313225746154785e-10);
}

}  // namespace

void ConnectionsManager::startNetworkMonitor() {
    networkMonitor_ = services_.networkMonitor;
    if (!networkMonitor_)
        return;
    // The monitor may call from its own thread: the update only hops to the loop, and lands
    // only if the manager is still there.
    std::weak_ptr<bool> alive = alive_;
    MainLoop& loop = services_.runtime.loop;
    networkMonitor_->start([this, alive, &loop](const NetworkPath& path) {
        loop.post([this, alive, path] {
            if (alive.lock() && networkMonitor_)
                handlePathUpdate(path);
        });
    });
}

void ConnectionsManager::handlePathUpdate(const NetworkPath& path) {
    // A burst of updates has only its last one applied, a second after it came.
    pendingNetworkTask_.reset();
    const bool isAvailable = path.isSatisfied;
    const bool isHotspot = path.usesCellular;
    pendingNetworkTask_ = services_.runtime.loop.startTimer(
        std::chrono::seconds(1), false,
        [this, isAvailable, isHotspot, path] { applyPathUpdate(isAvailable, isHotspot, path); });
}

void ConnectionsManager::applyPathUpdate(bool isAvailable, bool isHotspot,
                                         const NetworkPath& path) {
    const bool wasAvailable = isNetworkAvailable_();
    const bool wasHotspot = isOnHotspot_();
    isNetworkAvailable_.set(isAvailable);
    isOnHotspot_.set(isHotspot);
    if (path.usesWifi)
        networkType_.set("Wi-Fi");
    else if (path.usesWiredEthernet)
        networkType_.set("Ethernet");
    else if (isHotspot)
        networkType_.set("Cellular");
    else if (!isAvailable)
        networkType_.set("Offline");
    else
        networkType_.set("Connected");

    // Both rules react to edges only. One flag stands for both causes, so whichever rule clears
    // first resumes the whole fleet, including engines paused by hand.
    auto& log = services_.logService;
    const auto& settings = services_.globalSettings;
    if (settings.pauseOnNoInternet()) {
        if (wasAvailable && !isAvailable) {
            log.log("Network lost \u2014 pausing all connections", LogLevel::info);
            isPausedForNetwork_.set(true);
            pauseAll();
        } else if (!wasAvailable && isAvailable && isPausedForNetwork_()) {
            log.log("Network restored \u2014 resuming connections", LogLevel::info);
            isPausedForNetwork_.set(false);
            resumeAll();
        }
    }
    if (settings.pauseOnHotspot()) {
        if (isHotspot && !wasHotspot) {
            log.log("Hotspot detected \u2014 pausing all connections", LogLevel::info);
            isPausedForNetwork_.set(true);
            pauseAll();
        } else if (!isHotspot && wasHotspot && isPausedForNetwork_()) {
            log.log("Wi-Fi restored \u2014 resuming connections", LogLevel::info);
            isPausedForNetwork_.set(false);
            resumeAll();
        }
    }
}

void ConnectionsManager::updateSleepPrevention() {
    if (!services_.globalSettings.preventSleepDuringDownloads()) {
        allowSleep();
        return;
    }
    bool syncing = false;
    for (const auto& [id, engine] : engines_)
        syncing = syncing || engine->isSyncing()();
    if (syncing && !isPreventingSleep_())
        preventSleep();
    else if (!syncing && isPreventingSleep_())
        allowSleep();
}

void ConnectionsManager::preventSleep() {
    // A refusal is retried by the next trigger only, silently.
    if (!services_.sleepInhibitor)
        return;
    auto handle = services_.sleepInhibitor->inhibit("Tarnel is downloading files");
    if (!handle)
        return;
    sleepAssertionID_ = *handle;
    isPreventingSleep_.set(true);
    services_.logService.log("Sleep prevention activated \u2014 downloading", LogLevel::info);
}

void ConnectionsManager::allowSleep() {
    if (!isPreventingSleep_())
        return;
    services_.sleepInhibitor->release(sleepAssertionID_);
    sleepAssertionID_ = 0;
    isPreventingSleep_.set(false);
    services_.logService.log("Sleep prevention released", LogLevel::info);
}

void ConnectionsManager::refreshFreeDiskSpace() {
    // A dead network mount blocks the reading for minutes: it runs on a worker, one at a time,
    // and its figure lands on the loop only if the manager is still there.
    if (readingFreeSpace_)
        return;
    readingFreeSpace_ = true;
    const auto& list = connections_();
    const bool useHome = list.empty() || list.front().localPath.empty();
    std::filesystem::path volume = useHome ? homeDirectory() : std::filesystem::path(list.front().localPath);
    std::weak_ptr<bool> alive = alive_;
    MainLoop& loop = services_.runtime.loop;
    services_.runtime.workers.submit([this, alive, &loop, volume = std::move(volume)] {
        const double free = freeSpaceGB(volume);
        loop.post([this, alive, free] {
            if (!alive.lock())
                return;
            readingFreeSpace_ = false;
            freeDiskSpaceGB_.set(free);
        });
    });
}

}  // namespace tarnel
