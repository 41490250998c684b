#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <map>
#include <optional>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

#include "connections/connection_config.h"
#include "engine/engine_services.h"
#include "engine/fleet_link.h"
#include "engine/remote_service.h"
#include "engine/sync_engine.h"
#include "fleet/bookmark_manager.h"
#include "fleet/keyring_passwords.h"
#include "platform/keyring.h"
#include "platform/network_monitor.h"
#include "platform/observable.h"
#include "platform/posix/group_file_syncer.h"
#include "platform/settings_store.h"
#include "platform/sleep_inhibitor.h"

namespace tarnel {

class CurlTransferClient;
class Journal;
class PartialDownloadTracker;

// What the fleet is built from: the shared services and where its own stores live.
struct FleetServices {
    Runtime& runtime;
    SettingsStore& settingsStore;
    AppSettings& globalSettings;
    LogService& logService;
    StatsService& statsService;
    HistoryService& historyService;
    NotificationService& notifications;
    SleepMonitor& sleepMonitor;
    SoundPlayer& soundPlayer;
    std::filesystem::path partialsFile;    // partial downloads of every engine
    std::filesystem::path knownHostsFile;  // SFTP host keys trusted on first use
    // The machine's surroundings. Without a monitor the network is never heard of; without an
    // inhibitor idle sleep is never held off.
    NetworkMonitor* networkMonitor = nullptr;
    SleepInhibitor* sleepInhibitor = nullptr;
    // The desktop's keyring; without one, passwords stay in the settings file.
    Keyring* keyring = nullptr;
    // The journal of downloaded files and partial records; without one, "journal.db" beside
    // `partialsFile`.
    std::shared_ptr<Journal> journal = nullptr;
};

// Makes the remote an engine talks to. The program's default speaks libcurl; tests may serve
// files from memory.
using RemoteFactory = std::function<std::unique_ptr<RemoteService>(const ConnectionConfig&)>;

// The one owner of the list of connections and of the running engines. Persists the list,
// builds one engine per enabled connection with a host, and folds the engines' states into the
// summary the tray and the popover show. Lives on the main loop.
class ConnectionsManager final : public FleetLink,
                                 public std::enable_shared_from_this<ConnectionsManager> {
public:
    static constexpr const char* storageKey = "tarnel_connections_v2";

    explicit ConnectionsManager(FleetServices services, RemoteFactory makeRemote = {});
    ~ConnectionsManager();

    ConnectionsManager(const ConnectionsManager&) = delete;
    ConnectionsManager& operator=(const ConnectionsManager&) = delete;

    // The list lives in the settings file; its passwords in the desktop's keyring where one
    // answers.
    void loadConnections();
    void saveConnections();

    // Editing the list; each edit saves it and rebuilds the connection's engine.
    void addConnection(const ConnectionConfig& config);
    // `keep` leaves the password as the fleet knows it, whatever `config` holds: an edit made
    // before the keyring answered holds an empty one that nobody typed.
    enum class Password { replace, keep };
    void updateConnection(const ConnectionConfig& config, Password password = Password::replace);
    void removeConnection(const Uuid& id);
    // Folders the engine's watch found, added to the stored selection.
    void addSelectedRemotePaths(const std::vector<std::string>& paths,
                                const Uuid& connectionId) override;
    // The one connection an older version kept in flat keys, when the list is empty.
    void migrateLegacyConnection();
    // Deletes the partial files that no record claims, once per distinct local folder.
    void sweepOrphanedPartials();
    // Labelled folders for "Open destination folder": the main folder, rule folders, the
    // fallback folder; a folder shown once.
    std::vector<std::pair<std::string, std::filesystem::path>> destinationFolders(
        const Uuid& connectionId) const;

    void startAll();
    void stopAll();
    // At quit, after stopAll(): ends the transfers that engines stopped or replaced still run,
    // leaving their temporary files for the next start. What awaited them never resumes.
    void endTransfers();
    void pauseAll();
    void resumeAll();
    void syncAllNow();

    const Observable<std::vector<ConnectionConfig>>& connections() const { return connections_; }
    const Observable<int>& unreadCount() const { return unreadCount_; }
    const Observable<ConnectionState>& aggregateState() const { return aggregateState_; }
    const Observable<bool>& aggregatePaused() const { return aggregatePaused_; }
    const Observable<bool>& aggregateDownloading() const { return aggregateDownloading_; }
    const Observable<bool>& hasActiveEngines() const { return hasActiveEngines_; }
    const Observable<bool>& isNetworkAvailable() const { return isNetworkAvailable_; }
    const Observable<bool>& isOnHotspot() const { return isOnHotspot_; }
    const Observable<bool>& isPausedForNetwork() const { return isPausedForNetwork_; }
    // Nothing sets it: low disk space fails an engine's poll instead of pausing the fleet.
    const Observable<bool>& isPausedForDiskSpace() const { return isPausedForDiskSpace_; }
    const Observable<bool>& isPreventingSleep() const { return isPreventingSleep_; }
    const Observable<double>& freeDiskSpaceGB() const { return freeDiskSpaceGB_; }
    // "Unknown" until the first path update, then "Wi-Fi", "Ethernet", "Cellular", "Connected"
    // or "Offline".
    const Observable<std::string>& networkType() const { return networkType_; }

    // Free space of the first connection's folder's volume (the home volume when it has none),
    // in GiB. Read at start-up and when the popover opens, on a worker: the figure follows
    // once the loop is back.
    void refreshFreeDiskSpace();
    // Holds idle sleep off while an engine syncs and the setting allows it.
    void updateSleepPrevention();
    void preventSleep();
    void allowSleep();

    // A folder the user chose replaces the running grant: the local folder and the fallback
    // folder of a connection, the folder of a routing rule.
    void updateBookmark(const std::filesystem::path& url, const Uuid& connectionId);
    void updateRuleBookmark(const std::filesystem::path& url, const Uuid& ruleId);
    void updateFallbackBookmark(const std::filesystem::path& url, const Uuid& connectionId);
    const FolderGrants& activeBookmarks() const { return activeBookmarks_; }
    const FolderGrants& activeRuleBookmarks() const { return activeRuleBookmarks_; }
    const FolderGrants& activeFallbackBookmarks() const { return activeFallbackBookmarks_; }
    const BookmarkManager& bookmarkManager() const { return bookmarks_; }

    // The popover has been opened: the unread count starts again.
    void markAllRead() { unreadCount_.set(0); }

    const std::unordered_map<Uuid, std::shared_ptr<SyncEngine>>& engines() const { return engines_; }

    // The folders the connection's rules route into, by rule id, and its fallback folder, as far
    // as they are granted. A relative rule folder lies in the granted local folder.
    RuleFolders ruleDestinations(const Uuid& connectionId) const override;
    std::optional<std::filesystem::path> fallbackDestination(const Uuid& connectionId) const override;
    PartialDownloadTracker& partialTracker() { return *partialTracker_; }
    // What the fleet was built from; the editor runs its own connection tests and browses on it.
    const FleetServices& services() const { return services_; }

private:
    // A connection whose password is still in the keyring starts once it has been read.
    void createEngine(const ConnectionConfig& config, bool startPaused);
    void passwordRead(const Uuid& id, const Keyring::Reply& reply);
    const ConnectionConfig* findConnection(const Uuid& id) const;
    void recomputeAggregates();
    std::unique_ptr<RemoteService> makeCurlRemote(const ConnectionConfig& config);
    // Start-up: the grants of the stored folders, and a warning for each local folder without.
    void restoreFolderGrants();
    void startNetworkMonitor();
    void handlePathUpdate(const NetworkPath& path);
    void applyPathUpdate(bool isAvailable, bool isHotspot, const NetworkPath& path);

    FleetServices services_;
    RemoteFactory makeRemote_;
    std::unique_ptr<PartialDownloadTracker> partialTracker_;
    GroupFileSyncer fileSyncer_{services_.runtime};  // one for the fleet: fuller rounds
    EngineServices engineServices_;

    Observable<std::vector<ConnectionConfig>> connections_;
    Observable<int> unreadCount_{0};
    Observable<ConnectionState> aggregateState_{ConnectionState::idle};
    Observable<bool> aggregatePaused_{false};
    Observable<bool> aggregateDownloading_{false};
    Observable<bool> hasActiveEngines_{false};
    Observable<bool> isNetworkAvailable_{true};
    Observable<bool> isOnHotspot_{false};
    Observable<bool> isPausedForNetwork_{false};
    Observable<bool> isPausedForDiskSpace_{false};
    Observable<bool> isPreventingSleep_{false};
    Observable<double> freeDiskSpaceGB_{0.0};
    bool readingFreeSpace_ = false;  // a reading is on a worker
    Observable<std::string> networkType_{"Unknown"};

    KeyringPasswords passwords_;
    std::unordered_map<Uuid, bool> awaitingPassword_;  // engines to start, paused or not

    std::unordered_map<Uuid, std::shared_ptr<SyncEngine>> engines_;
    // The libcurl client of each engine made here, while the engine lives: a stopped engine
    // lives on in its running poll.
    std::vector<std::pair<std::weak_ptr<SyncEngine>, CurlTransferClient*>> transferClients_;
    CurlTransferClient* madeClient_ = nullptr;  // by the last makeCurlRemote()
    std::unordered_map<Uuid, std::shared_ptr<DownloadTracker>> downloadTrackers_;
    std::vector<Subscription> cancellables_;

    BookmarkManager bookmarks_;
    FolderGrants activeBookmarks_;
    FolderGrants activeRuleBookmarks_;
    FolderGrants activeFallbackBookmarks_;

    NetworkMonitor* networkMonitor_ = nullptr;  // none after stopAll()
    std::unique_ptr<Timer> pendingNetworkTask_;  // the path update waiting out its second
    std::uint32_t sleepAssertionID_ = 0;
    // Path updates hop to the loop holding this weakly: the manager may be gone when they land.
    std::shared_ptr<bool> alive_ = std::make_shared<bool>(true);
};

}  // namespace tarnel
