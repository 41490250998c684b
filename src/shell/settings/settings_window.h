#pragma once

#include <QTabWidget>
#include <QWidget>
#include <optional>

#include "fleet/connections_manager.h"
#include "platform/sound_player.h"
#include "records/app_settings.h"

namespace tarnel {

enum class SettingsTab { general, notifications, connections };

class ConnectionsSettingsTab;
class GeneralSettingsTab;
class NotificationsSettingsTab;

// "Tarnel Settings": the tab bar over General, Notifications and Connections, opened at
// `initialTab` with `initialConnectionId` selected in the connections list.
class SettingsWindow final : public QWidget {
public:
    SettingsWindow(ConnectionsManager& manager, AppSettings& settings, SoundPlayer& sounds,
                   SettingsTab initialTab, std::optional<Uuid> initialConnectionId);

    SettingsTab selectedTab() const { return static_cast<SettingsTab>(tabs_->currentIndex()); }
    GeneralSettingsTab& general() const { return *general_; }
    NotificationsSettingsTab& notifications() const { return *notifications_; }
    ConnectionsSettingsTab& connections() const { return *connections_; }

private:
    QTabWidget* tabs_;
    GeneralSettingsTab* general_;
    NotificationsSettingsTab* notifications_;
    ConnectionsSettingsTab* connections_;
};

}  // namespace tarnel
