#pragma once

#include <QObject>
#include <QTimer>
#include <map>
#include <memory>
#include <vector>

#include "fleet/connections_manager.h"
#include "platform/observable.h"
#include "records/app_settings.h"
#include "records/history_service.h"
#include "records/stats_service.h"

namespace tarnel {

// Where the program's observable values meet Qt. Watches the manager, its engines (whichever
// exist at the moment), the settings, the counters and the history, and tells the windows in
// two ways: `statusIconInputsChanged` at once for each change of the three aggregates the icon
// follows, and `changed` at most every `pace` for everything the popover shows, however many
// values moved meanwhile.
class FleetBridge final : public QObject {
    Q_OBJECT
public:
    FleetBridge(ConnectionsManager& manager, AppSettings& settings, StatsService& stats,
                HistoryService& history, std::chrono::milliseconds pace = std::chrono::milliseconds(250));

Q_SIGNALS:
    void statusIconInputsChanged(tarnel::ConnectionState state, bool paused, bool downloading);
    void changed();

private:
    void markChanged();
    void watchEngines();

    ConnectionsManager& manager_;
    QTimer pace_;
    std::vector<Subscription> subscriptions_;
    // The engines watched now, by identity, with their subscriptions.
    using EngineSubscriptions =
        std::map<std::weak_ptr<SyncEngine>, std::vector<Subscription>, std::owner_less<>>;
    EngineSubscriptions engineSubscriptions_;
};

}  // namespace tarnel
