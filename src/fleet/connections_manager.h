#pragma once

#include <filesystem>
#include <functional>
#include <map>
#include <optional>
#include <memory>
#include <unordered_map>
#include <vector>

#include "connections/connection_config.h"
#include "engine/engine_services.h"
#include "engine/fleet_link.h"
#include "engine/remote_service.h"
#include "engine/sync_engine.h"
#include "platform/observable.h"
#include "platform/settings_store.h"

namespace tarnel {

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

    void loadConnections();
    void saveConnections();

    void startAll();
    void stopAll();
    void pauseAll();
    void resumeAll();
    void syncAllNow();

    const Observable<std::vector<ConnectionConfig>>& connections() const { return connections_; }
    const Observable<int>& unreadCount() const { return unreadCount_; }
    const Observable<ConnectionState>& aggregateState() const { return aggregateState_; }
    const Observable<bool>& aggregatePaused() const { return aggregatePaused_; }
    const Observable<bool>& aggregateDownloading() const { return aggregateDownloading_; }
    const Observable<bool>& hasActiveEngines() const { return hasActiveEngines_; }

    // The popover has been opened: the unread count starts again.
    void markAllRead() { unreadCount_.set(0); }

    const std::unordered_map<Uuid, std::shared_ptr<SyncEngine>>& engines() const { return engines_; }

    // The folders the connection's rules route into, by rule id, and its fallback folder: those
    // the user chose that exist now. A rule without one routes into the primary folder.
    RuleFolders ruleDestinations(const Uuid& connectionId) const override;
    std::optional<std::filesystem::path> fallbackDestination(const Uuid& connectionId) const override;
    PartialDownloadTracker& partialTracker() { return *partialTracker_; }

private:
    void createEngine(const ConnectionConfig& config, bool startPaused);
    const ConnectionConfig* findConnection(const Uuid& id) const;
    void recomputeAggregates();
    std::unique_ptr<RemoteService> makeCurlRemote(const ConnectionConfig& config) const;

    FleetServices services_;
    RemoteFactory makeRemote_;
    std::unique_ptr<PartialDownloadTracker> partialTracker_;
    EngineServices engineServices_;

    Observable<std::vector<ConnectionConfig>> connections_;
    Observable<int> unreadCount_{0};
    Observable<ConnectionState> aggregateState_{ConnectionState::idle};
    Observable<bool> aggregatePaused_{false};
    Observable<bool> aggregateDownloading_{false};
    Observable<bool> hasActiveEngines_{false};

    std::unordered_map<Uuid, std::shared_ptr<SyncEngine>> engines_;
    std::vector<Subscription> cancellables_;
};

}  // namespace tarnel
