#include "engine/sync_engine.h"

#include <malloc.h>
#include <sys/statvfs.h>
#include <unistd.h>

#include <algorithm>
#include <cmath>
#include <system_error>
#include <utility>
#include <unordered_set>

#include "platform/localized.h"
#include "platform/runtime.h"
#include "platform/sleep_monitor.h"
#include "records/app_settings.h"
#include "records/download_tracker.h"
#include "records/history_service.h"
#include "records/notification_service.h"
#include "records/partial_download_tracker.h"

namespace tarnel {

namespace {
constexpr auto wakeDelay = std::chrono::seconds(3);
// A poll interval below this (an edited file) would spin the loop; one second is the floor.
constexpr auto minimumPollInterval = std::chrono::milliseconds(1000);

std::string wholeSeconds(double seconds) {
    return std::to_string(static_cast<long long>(std::trunc(seconds)));
}

bool isWritable(const std::string& path) {
    return ::access(path.c_str(), W_OK) == 0;
}
}  // namespace

SyncEngine::SyncEngine(ConnectionConfig config, std::unique_ptr<RemoteService> ftpService,
                       std::shared_ptr<DownloadTracker> downloadTracker,
                       const EngineServices& services)
    : config_(std::move(config)),
      ftpService_(std::move(ftpService)),
      downloadTracker_(std::move(downloadTracker)),
      services_(services) {}

// The timer and the sleep observers end with their handles.
SyncEngine::~SyncEngine() = default;

void SyncEngine::log(const std::string& text, LogLevel level) const {
    services_.logService.log("[" + config_.name + "] " + text, level);
}

void SyncEngine::start() {
    stopped_ = false;
    dynamicSelectedPaths_ = config_.selectedRemotePaths;
    log("Started (interval: " + wholeSeconds(config_.pollInterval) +
        "s, protocol: " + protocolName(config_.transferProtocol) + ")");
    bookFilesPlacedByEarlierRun();
    startTimer();
    installSleepObservers();
    connectionState_.set(ConnectionState::idle);
    statusText_.set(localized("Waiting..."));
}

void SyncEngine::stop() {
    stopped_ = true;
    timer_.reset();
    removeSleepObservers();
    log("Stopped");
    connectionState_.set(ConnectionState::idle);
    statusText_.set(localized("Stopped"));
}

void SyncEngine::togglePause() {
    isPaused_.set(!isPaused_());
    if (isPaused_()) {
        timer_.reset();
        log("Paused");
        connectionState_.set(ConnectionState::idle);
        statusText_.set(localized("Paused"));
        return;
    }
    // The status stays "Paused" until the poll below writes its own.
    log("Resumed");
    startTimer();
    if (!syncInProgress_) spawnPoll();
}

void SyncEngine::spawnPoll() {
    spawn(services_.runtime.loop, pollOnce());
}

void SyncEngine::startTimer() {
    auto interval = std::chrono::duration_cast<Duration>(
        std::chrono::duration<double>(config_.pollInterval));
    interval = std::max<Duration>(interval, minimumPollInterval);
    std::weak_ptr<SyncEngine> weak = weak_from_this();
    timer_ = services_.runtime.loop.startTimer(interval, true, [weak] {
        auto self = weak.lock();
        if (self && !self->isPaused_() && !self->syncInProgress_) self->spawnPoll();
    });
}

void SyncEngine::installSleepObservers() {
    std::weak_ptr<SyncEngine> weak = weak_from_this();
    sleepObservers_ = services_.sleepMonitor.observe(
        [weak] {
            if (auto self = weak.lock()) self->handleSleep();
        },
        [weak] {
            if (auto self = weak.lock()) self->handleWake();
        });
}

void SyncEngine::removeSleepObservers() {
    sleepObservers_.reset();
}

void SyncEngine::handleSleep() {
    if (!services_.globalSettings.pauseResumeOnWake()) return;
    log("System going to sleep \u2014 pausing sync timer");
    timer_.reset();
}

void SyncEngine::handleWake() {
    if (!services_.globalSettings.pauseResumeOnWake()) return;
    log("System woke up \u2014 resuming sync");
    if (isPaused_()) return;
    spawn(services_.runtime.loop, resumeAfterWake(weak_from_this(), services_.runtime.loop));
}

// Gives the network a moment to come back before the first poll after a wake. Holds the engine
// weakly across the wait: it may be replaced meanwhile.
Task<void> SyncEngine::resumeAfterWake(std::weak_ptr<SyncEngine> weak, MainLoop& loop) {
    co_await delay(loop, wakeDelay);
    auto self = weak.lock();
    if (!self) co_return;
    self->startTimer();
    if (!self->syncInProgress_) self->spawnPoll();
}

std::optional<FTPError> SyncEngine::checkLocalFolder() const {
    const std::string& path = config_.localPath;
    if (path.empty()) return std::nullopt;
    std::error_code ec;
    if (!std::filesystem::exists(path, ec)) {
        std::filesystem::create_directories(path, ec);
        if (ec) return FTPError::localFolderNotWritable(path);
    }
    if (!isWritable(path)) return FTPError::localFolderNotWritable(path);
    // With the warning off a limit of 1 GB still holds, on purpose.
    const auto& settings = services_.globalSettings;
    const double limitGB = settings.diskSpaceWarningEnabled()
                               ? static_cast<double>(settings.diskSpaceThresholdGB())
                               : 1.0;
    struct statvfs fs {};
    if (::statvfs(path.c_str(), &fs) != 0) return std::nullopt;
    const double freeGB =
        static_cast<double>(fs.f_bavail) * static_cast<double>(fs.f_frsize) / (1024.0 * 1024.0 * 1024.0);
    if (freeGB < limitGB) return FTPError::insufficientDiskSpace(freeGB);
    return std::nullopt;
}

bool SyncEngine::passesListingFilters(const FTPFileEntry& entry) const {
    if (!config_.shouldDownload(entry.name)) return false;
    // A size of 0 passes every minimum: it can mean the server gave no size.
    const auto m = config_.minFileSize;
    if (m >= 1 && entry.size >= 1 && entry.size < m) return false;
    return !entry.name.ends_with(".tarnel-partial");
}

Task<void> SyncEngine::pollOnce() {
    // A running poll keeps its engine: transfers under way are booked even if the engine has
    // been stopped or replaced meanwhile.
    auto self = shared_from_this();
    if (syncInProgress_) co_return;
    if (!config_.isWithinSchedule(services_.runtime.clock)) {
        if (auto text = config_.scheduleStatusText(services_.runtime.clock)) {
            connectionState_.set(ConnectionState::idle);
            statusText_.set(*text);
        }
        co_return;
    }
    syncInProgress_ = true;
    isSyncing_.set(true);
    connectionState_.set(ConnectionState::syncing);
    statusText_.set(localized("Syncing..."));

    // A failure of any kind is a failed poll; the timer goes on.
    std::optional<std::string> failure;
    try {
        co_await runPoll();
    } catch (const std::exception& e) {
        failure = e.what();
    } catch (...) {
        failure = "an unexpected error";
    }
    if (failure && syncInProgress_) pollFailure(*failure);
}

Task<void> SyncEngine::runPoll() {
    if (auto error = checkLocalFolder()) {
        folderFailure(*error);
        co_return;
    }

    std::vector<FTPFileEntry> listing;
    std::optional<std::string> listingError;
    try {
        if (!config_.exploreSubdirectories) {
            listing = co_await ftpService_->listFiles();
        } else {
            if (config_.autoMonitorNewFolders && !dynamicSelectedPaths_.empty())
                co_await checkForNewFolders();
            std::optional<std::vector<std::string>> allowed;
            if (!dynamicSelectedPaths_.empty()) allowed = dynamicSelectedPaths_;
            listing = co_await ftpService_->collectFiles(config_.remotePath, config_.maxDepth,
                                                         std::move(allowed));
        }
    } catch (const FTPError& e) {
        listingError = e.errorDescription();
    }
    if (listingError) {
        pollFailure(*listingError);
        co_return;
    }

    std::erase_if(listing, [this](const auto& entry) { return !passesListingFilters(entry); });

    consecutiveFailures_ = 0;
    connectionState_.set(ConnectionState::connected);
    statusText_.set(localized("Connected"));
    lastSyncTime_.set(services_.runtime.clock.now());

    auto stable = updateStability(listing);
    // In copy mode the listing holds every file ever fetched: it goes before the batch, which
    // would otherwise hold it to the end.
    const std::size_t listed = std::exchange(listing, {}).size();
    if (!stable.empty()) {
        log("Downloading " + std::to_string(stable.size()) + " stable file(s) to " +
            config_.localPath + " (writable: " +
            (isWritable(config_.localPath) ? "true" : "false") + ")");
        auto results = co_await downloadStableFiles(std::move(stable));
        co_await bookResults(results);
        // The snapshots published before the batch name every file it fetched.
        publishTrackedFiles();
    }
    // The heap keeps the pages a large listing or batch freed unless asked to give them back.
    if (listed >= largeListing) ::malloc_trim(0);
    endPoll();
}

void SyncEngine::endPoll() {
    syncInProgress_ = false;
    // Cleared a moment later, by its own task, as the poll's last act.
    std::weak_ptr<SyncEngine> weak = weak_from_this();
    services_.runtime.loop.post([weak] {
        if (auto self = weak.lock()) self->isSyncing_.set(false);
    });
}

void SyncEngine::folderFailure(const FTPError& error) {
    const std::string message = error.errorDescription();
    log(message, LogLevel::error);
    lastError_.set(message);
    connectionState_.set(ConnectionState::error);
    statusText_.set(localized("Folder error"));
    services_.notifications.notifyLocalFolderProblem(config_.name, message);
    endPoll();
}

void SyncEngine::pollFailure(const std::string& message) {
    const int n = ++consecutiveFailures_;
    log("Sync failed (" + std::to_string(n) + "/" + std::to_string(failureThreshold) +
            "): " + message,
        LogLevel::error);
    lastError_.set(message);
    const int limit = std::max(services_.globalSettings.notifyErrorsAfterAttempts(), 1);
    connectionState_.set(ConnectionState::error);
    if (n < limit) {
        statusText_.set(localizedFormat("Retrying (%lld/%lld)...",
                                        {std::to_string(n), std::to_string(limit)}));
    } else {
        statusText_.set(localized("Error"));
        services_.notifications.notifyConnectionError(config_.name, message);
    }
    endPoll();
}

std::vector<TrackedFile> SyncEngine::updateStability(const std::vector<FTPFileEntry>& entries) {
    downloadTracker_->newListing();

    // The tracked files seen in this listing: as small as what is tracked, whatever the listing.
    std::unordered_set<std::string> seen;
    const auto now = services_.runtime.clock.now();
    for (const auto& e : entries) {
        const std::string key = trackingKey(e.name, e.relativePath);
        // A file whose remote delete failed stays in the set: not fetched again unless its size
        // changes. One that a replaced engine placed meanwhile is tracked here no longer.
        if (downloadTracker_->isDownloaded(key, e.size)) {
            trackedFiles_.erase(key);
            continue;
        }
        if (auto retry = retryState_.find(key); retry != retryState_.end() && now < retry->second.nextRetry) {
            if (trackedFiles_.contains(key)) seen.insert(key);
            continue;
        }
        if (auto it = trackedFiles_.find(key); it != trackedFiles_.end()) {
            seen.insert(key);
            if (it->second.size != e.size) {
                it->second.size = e.size;
                it->second.stableCount = 0;
            } else {
                ++it->second.stableCount;
            }
            continue;
        }
        seen.insert(key);
        trackedFiles_.emplace(key, TrackedFile{e.name, e.size, 0, now, e.relativePath});
        log("New: " + key + " (" + std::to_string(e.size) + " bytes)");
    }
    downloadTracker_->listingChecked();
    std::erase_if(trackedFiles_, [&](const auto& kv) { return !seen.contains(kv.first); });

    publishTrackedFiles();
    std::vector<TrackedFile> stable;
    for (const auto& [key, f] : trackedFiles_)
        if (f.stableCount >= config_.requiredStableChecks) stable.push_back(f);
    return stable;
}

void SyncEngine::publishTrackedFiles() {
    trackedFileCount_.set(static_cast<int>(trackedFiles_.size()));
    std::vector<TrackedFileSnapshot> snapshots;
    snapshots.reserve(trackedFiles_.size());
    for (const auto& [key, f] : trackedFiles_)
        snapshots.push_back({f.name, f.name, f.size, f.stableCount, config_.requiredStableChecks,
                             f.stableCount == 0});
    std::sort(snapshots.begin(), snapshots.end(),
              [](const auto& a, const auto& b) { return a.name < b.name; });
    trackedSnapshots_.set(std::move(snapshots));
}

}  // namespace tarnel
