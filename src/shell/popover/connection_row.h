#pragma once

#include <QLabel>
#include <QMenu>
#include <QToolButton>
#include <filesystem>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "fleet/connections_manager.h"
#include "platform/clock.h"
#include "shell/popover/popover_widgets.h"
#include "shell/popover/sync_indicator.h"

namespace tarnel {

// One connection's row in the popover. Made once and updated in place while its connection
// exists, so that its folder menu stays open and its arrows keep turning across updates.
class ConnectionRow : public KeptRow {
public:
    ConnectionRow(const Uuid& id, ConnectionsManager& manager, const Clock& clock,
                  const std::function<void(const Uuid&)>& onOpen);

    // Shows `config` and the state of its engine, the time-only schedule mark included.
    void update(const ConnectionConfig& config);

private:
    void updateFolders();

    Uuid id_;
    ConnectionsManager& manager_;
    const Clock& clock_;
    QToolButton* power_;
    QLabel* name_;
    QLabel* badge_;
    QLabel* word_;
    SyncIndicator* indicator_;
    QLabel* outsideSchedule_;
    QToolButton* folder_;
    QLabel* simultaneous_;
    QLabel* interval_;
    std::vector<std::pair<std::string, std::filesystem::path>> folders_;
};

}  // namespace tarnel
