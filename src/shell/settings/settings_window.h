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
// `initialTab` with `initialConnectionId` selected in the connections list. Lives as long as the
// program once made: a question or a panel of it may be running its own event loop when the
// window is asked for again.
class SettingsWindow final : public QWidget {
public:
    SettingsWindow(ConnectionsManager& manager, AppSettings& settings, SoundPlayer& sounds,
                   SettingsTab initialTab, std::optional<Uuid> initialConnectionId);

    // Asked for again: the question or panel it is showing, if any, comes to the front and
    // nothing else changes; otherwise `tab` opens with `connectionId` selected, once the
    // editor's unapplied changes are settled.
    void reveal(SettingsTab tab, std::optional<Uuid> connectionId);
    // The dialog of this window that runs now, if any.
    QWidget* runningDialog() const;

    SettingsTab selectedTab() const { return static_cast<SettingsTab>(tabs_->currentIndex()); }
    GeneralSettingsTab& general() const { return *general_; }
    NotificationsSettingsTab& notifications() const { return *notifications_; }
    ConnectionsSettingsTab& connections() const { return *connections_; }

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    QTabWidget* tabs_;
    GeneralSettingsTab* general_;
    NotificationsSettingsTab* notifications_;
    ConnectionsSettingsTab* connections_;
};

}  // namespace tarnel
