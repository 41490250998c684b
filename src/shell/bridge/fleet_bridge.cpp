#include "shell/bridge/fleet_bridge.h"

namespace tarnel {

namespace {

template <typename T, typename Fn>
void watch(std::vector<Subscription>& into, const Observable<T>& source, Fn fn) {
    into.push_back(source.subscribe([fn](const T&) { fn(); }, false));
}

}  // namespace

FleetBridge::FleetBridge(ConnectionsManager& manager, AppSettings& settings, StatsService& stats,
                         HistoryService& history, std::chrono::milliseconds pace)
    : manager_(manager) {
    pace_.setSingleShot(true);
    pace_.setInterval(pace);
    connect(&pace_, &QTimer::timeout, this, &FleetBridge::changed);

    subscriptions_.push_back(combineLatest(
        [this] {
            Q_EMIT statusIconInputsChanged(manager_.aggregateState()(), manager_.aggregatePaused()(),
                                           manager_.aggregateDownloading()());
        },
        manager.aggregateState(), manager.aggregatePaused(), manager.aggregateDownloading()));

    auto mark = [this] { markChanged(); };
    // Every engine added, replaced or removed recomputes the aggregates, which republish.
    watch(subscriptions_, manager.hasActiveEngines(), [this] { watchEngines(); });
    watch(subscriptions_, manager.connections(), mark);
    watch(subscriptions_, manager.aggregatePaused(), mark);
    watch(subscriptions_, manager.isPausedForNetwork(), mark);
    watch(subscriptions_, manager.isOnHotspot(), mark);
    watch(subscriptions_, manager.isPausedForDiskSpace(), mark);
    watch(subscriptions_, manager.isPreventingSleep(), mark);
    watch(subscriptions_, manager.freeDiskSpaceGB(), mark);
    watch(subscriptions_, manager.networkType(), mark);
    watch(subscriptions_, settings.preventSleepDuringDownloads, mark);
    watch(subscriptions_, settings.playSoundOnDownload, mark);
    watch(subscriptions_, stats.todayFiles, mark);
    watch(subscriptions_, stats.totalFiles, mark);
    watch(subscriptions_, stats.lastActivityDate, mark);
    watch(subscriptions_, history.entries(), mark);
    watchEngines();
}

void FleetBridge::markChanged() {
    if (!pace_.isActive()) pace_.start();
}

void FleetBridge::watchEngines() {
    EngineSubscriptions next;
    bool added = false;
    std::size_t kept = 0;
    for (const auto& [id, engine] : manager_.engines()) {
        std::weak_ptr<SyncEngine> key = engine;
        if (auto known = engineSubscriptions_.find(key); known != engineSubscriptions_.end()) {
            next[key] = std::move(known->second);
            ++kept;
            continue;
        }
        added = true;
        auto& subs = next[key];
        auto mark = [this] { markChanged(); };
        watch(subs, engine->connectionState(), mark);
        watch(subs, engine->statusText(), mark);
        watch(subs, engine->isPaused(), mark);
        watch(subs, engine->activeDownloads(), mark);
        watch(subs, engine->trackedSnapshots(), mark);
    }
    const bool removed = kept < engineSubscriptions_.size();
    engineSubscriptions_ = std::move(next);
    if (added || removed) markChanged();
}

}  // namespace tarnel
