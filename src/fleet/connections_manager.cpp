#include "fleet/connections_manager.h"

#include "connections/connection_config_json.h"
#include "engine/ftp_remote_service.h"
#include "platform/runtime.h"
#include "records/app_settings.h"
#include "records/log_service.h"
#include "records/download_tracker.h"
#include "records/partial_download_tracker.h"
#include "transfer/curl_transfer_client.h"
#include "transfer/ftp_service.h"

namespace tarnel {

namespace {
// Worst first: one engine in error makes the fleet's state error.
int severity(ConnectionState s) {
    switch (s) {
        case ConnectionState::error:
            return 3;
        case ConnectionState::syncing:
            return 2;
        case ConnectionState::connected:
            return 1;
        case ConnectionState::idle:
            return 0;
    }
    return 0;
}
}  // namespace

ConnectionsManager::ConnectionsManager(FleetServices services, RemoteFactory makeRemote)
    : services_(std::move(services)),
      makeRemote_(std::move(makeRemote)),
      partialTracker_(services_.journal ? std::make_unique<PartialDownloadTracker>(
                                              services_.journal, services_.partialsFile)
                                        : std::make_unique<PartialDownloadTracker>(
                                              services_.partialsFile)),
      engineServices_{services_.runtime,        services_.logService,
                      services_.statsService,   services_.historyService,
                      services_.globalSettings, *partialTracker_,
                      services_.notifications,  services_.sleepMonitor,
                      services_.soundPlayer,    fileSyncer_},
      passwords_(services_.keyring, services_.logService, [this] { saveConnections(); },
                 [this](const Uuid& id, const Keyring::Reply& reply) { passwordRead(id, reply); }),
      bookmarks_(services_.settingsStore) {
    if (!makeRemote_)
        makeRemote_ = [this](const ConnectionConfig& config) { return makeCurlRemote(config); };
    loadConnections();
    if (connections_().empty()) migrateLegacyConnection();
    restoreFolderGrants();
    startNetworkMonitor();
    // Each value of the setting, the present one included, takes or gives back the hold at once.
    cancellables_.push_back(services_.globalSettings.preventSleepDuringDownloads.subscribe(
        [this](bool) { updateSleepPrevention(); }));
    refreshFreeDiskSpace();
    sweepOrphanedPartials();
}

ConnectionsManager::~ConnectionsManager() {
    if (networkMonitor_) networkMonitor_->cancel();
}

std::unique_ptr<RemoteService> ConnectionsManager::makeCurlRemote(const ConnectionConfig& config) {
    auto client = std::make_unique<CurlTransferClient>(config, services_.knownHostsFile);
    madeClient_ = client.get();
    auto service = std::make_unique<FTPService>(config, services_.logService, std::move(client));
    return std::make_unique<FtpRemoteService>(services_.runtime, std::move(service));
}

void ConnectionsManager::loadConnections() {
    auto& store = services_.settingsStore;
    auto stored = store.stringValue(storageKey);
    if (!stored) return;
    std::vector<std::string> problems;
    try {
        auto decoded = decodeReadableConnections(*stored);
        connections_.set(std::move(decoded.connections));
        passwords_.load(std::move(decoded.passwordsInKeyring));
        problems = std::move(decoded.problems);
    } catch (const ConfigDecodeError& e) {
        problems = {e.what()};
    }
    if (!problems.empty()) {
        // The list as it was is kept where no save reaches it, before anything can save over it;
        // an earlier backup is never replaced.
        std::string backupKey = std::string(storageKey) + "_backup";
        for (int n = 2; store.contains(backupKey) && store.stringValue(backupKey) != stored; ++n)
            backupKey = std::string(storageKey) + "_backup_" + std::to_string(n);
        store.setValue(backupKey, *stored);
        for (const auto& problem : problems)
            services_.logService.log("Could not read a stored connection (" + problem +
                                         "); the list as it was is kept under \"" + backupKey +
                                         "\" in the settings file",
                                     LogLevel::error);
    }
    // Written back at once, so that defaults for keys a record lacked are stored in full.
    saveConnections();
}

void ConnectionsManager::saveConnections() {
    const auto stored = passwords_.store(connections_());
    services_.settingsStore.setValue(storageKey, encodeConnectionList(stored, passwords_.inKeyring()));
}

void ConnectionsManager::passwordRead(const Uuid& id, const Keyring::Reply& reply) {
    const auto awaiting = awaitingPassword_.find(id);
    const auto* config = findConnection(id);
    if (reply.ok && config) {
        // Only in memory: the stored record keeps it in the keyring.
        auto list = connections_();
        for (auto& c : list)
            if (c.id == id) c.password = reply.secret;
        connections_.set(std::move(list));
        config = findConnection(id);
    }
    if (awaiting == awaitingPassword_.end()) return;
    const bool startPaused = awaiting->second;
    awaitingPassword_.erase(awaiting);
    if (!config) return;
    if (reply.ok) {
        createEngine(*config, startPaused);
        return;
    }
    // Logging in with an empty password would only fail, and count against the account.
    services_.logService.log(
        "[" + config->name + "] Could not read the password from the desktop's keyring (" +
            reply.error +
            "); the connection does not start. Unlock the keyring or start Tarnel in the desktop "
            "session that holds it, or enter the password again in the connection's settings or "
            "with 'tarnel --import FILE'",
        LogLevel::error);
}

void ConnectionsManager::createEngine(const ConnectionConfig& config, bool startPaused) {
    if (!passwords_.isKnown(config.id)) {
        awaitingPassword_[config.id] = startPaused;
        passwords_.request(config.id);
        return;
    }
    // One tracker per connection for the life of the fleet: an engine replaced by an edit books
    // its last transfers where the new one looks.
    auto& tracker = downloadTrackers_[config.id];
    if (!tracker)
        tracker = std::make_shared<DownloadTracker>(partialTracker_->journal(),
                                                    services_.settingsStore, config.id.toString());
    madeClient_ = nullptr;
    auto engine = std::make_shared<SyncEngine>(config, makeRemote_(config), tracker,
                                               engineServices_);
    std::erase_if(transferClients_, [](const auto& entry) { return entry.first.expired(); });
    if (madeClient_) transferClients_.emplace_back(engine, madeClient_);
    engine->setConnectionsManager(std::weak_ptr<FleetLink>(weak_from_this()));
    engines_[config.id] = engine;

    // Subscriptions of a stopped or replaced engine stay until stopAll(); a stopped engine has
    // published its last state and goes quiet.
    std::weak_ptr<ConnectionsManager> weak = weak_from_this();
    cancellables_.push_back(combineLatest(
        [weak] {
            if (auto self = weak.lock()) self->recomputeAggregates();
        },
        engine->connectionState(), engine->isPaused(), engine->activeDownloads()));
    // Counts changes, not amounts.
    cancellables_.push_back(skipFirst(engine->totalTransferred(), [weak](int) {
        if (auto self = weak.lock()) self->unreadCount_.set(self->unreadCount_() + 1);
    }));
    // A poll shorter than the quiet time never holds sleep off, and the hold outlives the last
    // poll by as much.
    cancellables_.push_back(debounce(services_.runtime.loop, engine->isSyncing(),
                                     std::chrono::seconds(2), [weak](bool) {
                                         if (auto self = weak.lock()) self->updateSleepPrevention();
                                     }));

    engine->start();
    if (startPaused) engine->togglePause();
}

void ConnectionsManager::recomputeAggregates() {
    ConnectionState worst = ConnectionState::idle;
    bool allPaused = !engines_.empty(), downloading = false;
    for (const auto& [id, engine] : engines_) {
        if (severity(engine->connectionState()()) > severity(worst)) worst = engine->connectionState()();
        allPaused = allPaused && engine->isPaused()();
        downloading = downloading || !engine->activeDownloads()().empty();
    }
    aggregateState_.set(worst);
    aggregatePaused_.set(allPaused);
    aggregateDownloading_.set(downloading);
    hasActiveEngines_.set(!engines_.empty());
}

const ConnectionConfig* ConnectionsManager::findConnection(const Uuid& id) const {
    for (const auto& c : connections_())
        if (c.id == id) return &c;
    return nullptr;
}

RuleFolders ConnectionsManager::ruleDestinations(const Uuid& connectionId) const {
    RuleFolders out;
    const auto* config = findConnection(connectionId);
    if (!config) return out;
    const auto local = activeBookmarks_.find(connectionId);
    for (const auto& rule : config->routingRules) {
        if (!rule.isEnabled || !rule.destinationPath) continue;
        if (auto granted = activeRuleBookmarks_.find(rule.id); granted != activeRuleBookmarks_.end())
            out[rule.id] = granted->second;
        else if (auto back = bookmarks_.restoreRuleBookmark(rule.id))  // missing at start-up
            out[rule.id] = *back;
        else if (!rule.destinationPath->starts_with('/') && local != activeBookmarks_.end())
            out[rule.id] = local->second / *rule.destinationPath;
    }
    return out;
}

std::optional<std::filesystem::path> ConnectionsManager::fallbackDestination(
    const Uuid& connectionId) const {
    if (auto granted = activeFallbackBookmarks_.find(connectionId);
        granted != activeFallbackBookmarks_.end())
        return granted->second;
    return bookmarks_.restoreFallbackBookmark(connectionId);  // missing at start-up, maybe back
}

void ConnectionsManager::startAll() {
    const auto& list = connections_();
    if (activeBookmarks_.empty()) activeBookmarks_ = bookmarks_.restoreAll(list);
    if (activeRuleBookmarks_.empty()) activeRuleBookmarks_ = bookmarks_.restoreAllRules(list);
    if (activeFallbackBookmarks_.empty())
        activeFallbackBookmarks_ = bookmarks_.restoreAllFallbacks(list);
    for (const auto& config : connections_())
        if (config.enabled && !config.host.empty()) createEngine(config, !config.autoConnectOnLaunch);
    // A keyring answers in moments, and the fleet then starts whole, as its callers expect. One
    // that asks to be unlocked first starts its connections when it answers.
    if (!awaitingPassword_.empty() && services_.keyring)
        services_.keyring->finish(std::chrono::seconds(3));
}

void ConnectionsManager::stopAll() {
    for (auto& [id, engine] : engines_) engine->stop();
    engines_.clear();
    awaitingPassword_.clear();
    cancellables_.clear();
    if (networkMonitor_) networkMonitor_->cancel();
    networkMonitor_ = nullptr;
    pendingNetworkTask_.reset();
    allowSleep();
    // A path holds nothing open: ending the grants is forgetting them.
    activeBookmarks_.clear();
    activeRuleBookmarks_.clear();
    activeFallbackBookmarks_.clear();
}

void ConnectionsManager::endTransfers() {
    for (const auto& [engine, client] : transferClients_)
        if (!engine.expired()) client->stop();
}

void ConnectionsManager::pauseAll() {
    for (auto& [id, engine] : engines_)
        if (!engine->isPaused()()) engine->togglePause();
    // Forced until the next recomputation puts it right.
    aggregatePaused_.set(true);
}

void ConnectionsManager::resumeAll() {
    for (auto& [id, engine] : engines_)
        if (engine->isPaused()()) engine->togglePause();
    aggregatePaused_.set(false);
}

void ConnectionsManager::syncAllNow() {
    // Paused engines are not skipped: the engine's own poll decides.
    for (auto& [id, engine] : engines_)
        if (!engine->syncInProgress()) spawn(services_.runtime.loop, engine->pollOnce());
}

}  // namespace tarnel
