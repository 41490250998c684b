#pragma once

#include <filesystem>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <unordered_map>
#include <vector>

#include "connections/connection_config.h"
#include "connections/routing_rule.h"
#include "engine/engine_services.h"
#include "engine/fleet_link.h"
#include "engine/remote_service.h"
#include "engine/tracked_file.h"
#include "engine/transfer_result.h"
#include "platform/observable.h"
#include "platform/task.h"
#include "records/log_service.h"
#include "transfer/download_progress.h"
#include "transfer/ftp_error.h"

namespace tarnel {

class WindowSlot;
class DownloadTracker;
struct PartialDownload;

// In this order; across engines the worst counts: error, syncing, connected, idle.
enum class ConnectionState { idle, connected, syncing, error };

struct DownloadedFileInfo {
    std::string name;
    std::int64_t size = 0;
    TimePoint date;
    bool operator==(const DownloadedFileInfo&) const = default;
};

// A failed file's retries.
struct RetryInfo {
    int attempts = 0;
    TimePoint nextRetry;
};

// The watcher of one connection. Lists the remote folder on a timer, holds files back until
// their size has settled, downloads what is stable and books the outcome. Lives on the main
// loop; held in a shared_ptr so that timers and wake-ups can hold it weakly, while a running
// poll holds it strongly until its transfers are booked.
class SyncEngine : public std::enable_shared_from_this<SyncEngine> {
public:
    static constexpr int failureThreshold = 3;  // printed in the failed-poll line, nothing more

    // The download tracker is shared with an engine this one replaces, whose transfers may
    // still be booking files.
    SyncEngine(ConnectionConfig config, std::unique_ptr<RemoteService> ftpService,
               std::shared_ptr<DownloadTracker> downloadTracker, const EngineServices& services);
    ~SyncEngine();

    SyncEngine(const SyncEngine&) = delete;
    SyncEngine& operator=(const SyncEngine&) = delete;

    void start();
    void stop();
    void togglePause();
    // One poll cycle. Never throws; returns at once if a poll is running.
    Task<void> pollOnce();

    const ConnectionConfig& config() const { return config_; }
    bool syncInProgress() const { return syncInProgress_; }
    void setConnectionsManager(std::weak_ptr<FleetLink> manager) {
        connectionsManager_ = std::move(manager);
    }

    const Observable<ConnectionState>& connectionState() const { return connectionState_; }
    const Observable<std::string>& statusText() const { return statusText_; }
    const Observable<std::optional<TimePoint>>& lastSyncTime() const { return lastSyncTime_; }
    // What the last failed poll or folder check said; kept after later successes.
    const Observable<std::optional<std::string>>& lastError() const { return lastError_; }
    const Observable<bool>& isPaused() const { return isPaused_; }
    const Observable<bool>& isSyncing() const { return isSyncing_; }
    const Observable<int>& trackedFileCount() const { return trackedFileCount_; }
    const Observable<int>& totalTransferred() const { return totalTransferred_; }
    const Observable<std::vector<DownloadProgress>>& activeDownloads() const {
        return activeDownloads_;
    }
    const Observable<std::vector<TrackedFileSnapshot>>& trackedSnapshots() const {
        return trackedSnapshots_;
    }
    const Observable<std::optional<DownloadedFileInfo>>& lastDownloadedFile() const {
        return lastDownloadedFile_;
    }

    // The local folder test before each listing: nothing when the folder is usable.
    std::optional<FTPError> checkLocalFolder() const;
    // The stability pass of a successful poll: returns the files whose size has settled.
    std::vector<TrackedFile> updateStability(const std::vector<FTPFileEntry>& entries);
    // Brings one stable file to its place. Never throws: a failure is a result. Gives `slot` up
    // once the file's bytes are in, before it is placed.
    Task<TransferResult> transferFile(TrackedFile file, int counter, WindowSlot slot);

private:
    void startTimer();
    void installSleepObservers();
    void removeSleepObservers();
    void handleSleep();
    void handleWake();
    static Task<void> resumeAfterWake(std::weak_ptr<SyncEngine> weak, MainLoop& loop);
    void spawnPoll();

    // Partial-download records written in one go ahead of the transfers they describe.
    static constexpr std::size_t recordsWrittenAhead = 32;

    // Where a stable file goes: its folder after routing, or why it goes nowhere.
    struct Placement {
        std::string folder;
        std::optional<RoutingRule> matchedRule;
        std::optional<std::string> refusal;  // a name that would write outside the folder
        bool ignoredByRouting = false;
    };

    // A listing of at least this many files leaves enough freed memory to hand back to the system.
    static constexpr std::size_t largeListing = 10000;

    bool passesListingFilters(const FTPFileEntry& entry) const;
    // Publishes the count and the snapshots of the files tracked now.
    void publishTrackedFiles();
    Task<std::vector<TransferResult>> downloadStableFiles(std::vector<TrackedFile> stable);
    Placement placementOf(const TrackedFile& file) const;
    // `wanted` if it is free, otherwise the first free name beside it; a name that a file of
    // the fleet is about to take is not free.
    std::filesystem::path freeName(const std::filesystem::path& wanted) const;
    // Moves the downloaded `tempPath` to `wanted`, or to the first free name beside it, and
    // returns where it went. A file kept on the server goes there only once its record names
    // the place on disk.
    Task<std::filesystem::path> placeDownloadedFile(std::filesystem::path tempPath,
                                                    std::filesystem::path wanted, std::string key);
    // Records, in one write, the downloads of files[from...] up to recordsWrittenAhead of them
    // that have no record yet.
    void recordAhead(const std::vector<TrackedFile>& files, std::size_t from);
    // The partial-download record of `key` if it is this connection's: records are keyed by
    // tracking key alone, and another connection's bytes are never resumed.
    std::optional<PartialDownload> ownPartial(const std::string& key) const;
    // A placed file's records: downloaded set, counters, history. Written as soon as it is placed.
    void recordTransfer(const TransferResult& result);
    void addHistoryEntry(const TransferResult& result);
    void bookFilesPlacedByEarlierRun();
    // The batch's tail: failures and ignored files, then the notification, sound and post-action.
    Task<void> bookResults(const std::vector<TransferResult>& results);
    // The poll cycle proper; pollOnce turns anything it throws into a failed poll.
    Task<void> runPoll();
    void handleFileFailure(const std::string& key, std::int64_t size,
                           const std::optional<std::string>& message);
    RemoteService::ProgressCallback progressReporter(const Uuid& rowId, const std::string& key,
                                                     std::int64_t listedSize);
    void removeProgressRow(const Uuid& rowId);
    std::string remoteFileURL(const TrackedFile& file) const;
    void folderFailure(const FTPError& error);
    void pollFailure(const std::string& message);
    void endPoll();
    void log(const std::string& text, LogLevel level = LogLevel::info) const;

    // After placing: a ".gz" is unpacked beside itself under a name of its own, a ".zip" handed
    // to the desktop. Never throws; a failure leaves every file as it was.
    Task<void> decompressIfNeeded(std::filesystem::path file);
    // The batch's post-action over its final names. Launch failures are logged, never raised.
    void runPostAction(const std::vector<std::string>& names);
    // Top-level folders that appeared on the server join the watched selection.
    Task<void> checkForNewFolders();
    // Climbs from the folder of the deleted file `path` towards `remotePath`, removing each
    // folder that lists empty; `remotePath` itself stays.
    Task<void> removeEmptyRemoteFolders(std::string path);

    ConnectionConfig config_;
    std::unique_ptr<RemoteService> ftpService_;
    std::shared_ptr<DownloadTracker> downloadTracker_;
    EngineServices services_;
    std::weak_ptr<FleetLink> connectionsManager_;

    Observable<ConnectionState> connectionState_{ConnectionState::idle};
    Observable<std::string> statusText_{"Idle"};
    Observable<std::optional<TimePoint>> lastSyncTime_;
    Observable<std::optional<std::string>> lastError_;
    Observable<bool> isPaused_{false};
    Observable<bool> isSyncing_{false};
    Observable<int> trackedFileCount_{0};
    Observable<int> totalTransferred_{0};
    Observable<std::vector<DownloadProgress>> activeDownloads_;
    Observable<std::vector<TrackedFileSnapshot>> trackedSnapshots_;
    Observable<std::optional<DownloadedFileInfo>> lastDownloadedFile_;

    std::unordered_map<std::string, TrackedFile> trackedFiles_;
    std::unordered_map<std::string, RetryInfo> retryState_;
    std::unique_ptr<Timer> timer_;
    bool syncInProgress_ = false;
    // Set by stop(): the running poll ends the transfers it has begun and starts no other.
    bool stopped_ = false;
    int renameCounter_ = 0;
    int consecutiveFailures_ = 0;
    std::vector<std::string> dynamicSelectedPaths_;
    std::set<std::string> undeletedFiles_;
    // Tracking key to temporary file, for records written ahead of transfers not yet started.
    std::unordered_map<std::string, std::string> recordedAhead_;
    Subscription sleepObservers_;
};

}  // namespace tarnel
