#include "shell/settings/settings_window.h"

#include <QScrollArea>
#include <QVBoxLayout>

#include "shell/bridge/qt_text.h"
#include "shell/icons/symbol_icon.h"
#include "shell/settings/connections_settings_tab.h"
#include "shell/settings/general_settings_tab.h"
#include "shell/settings/notifications_settings_tab.h"

namespace tarnel {

namespace {

// The two forms scroll when the window is made smaller than they are.
QWidget* scrolling(QWidget* form) {
    auto* area = new QScrollArea;
    area->setWidgetResizable(true);
    area->setFrameShape(QFrame::NoFrame);
    area->setWidget(form);
    return area;
}

}  // namespace

SettingsWindow::SettingsWindow(ConnectionsManager& manager, AppSettings& settings,
                               SoundPlayer& sounds, SettingsTab initialTab,
                               std::optional<Uuid> initialConnectionId)
    : tabs_(new QTabWidget),
      general_(new GeneralSettingsTab(settings)),
      notifications_(new NotificationsSettingsTab(settings, sounds)),
      connections_(new ConnectionsSettingsTab(manager, initialConnectionId)) {
    setWindowTitle(ui("Tarnel Settings"));
    setWindowFlags(Qt::Window | Qt::WindowTitleHint | Qt::WindowCloseButtonHint);
    setAttribute(Qt::WA_DeleteOnClose, false);
    resize(800, 650);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(8, 8, 8, 8);
    tabs_->setDocumentMode(true);
    tabs_->addTab(scrolling(general_), symbolIcon("gear"), ui("General"));
    tabs_->addTab(scrolling(notifications_), symbolIcon("bell"), ui("Notifications"));
    tabs_->addTab(connections_, symbolIcon("network"), ui("Connections"));
    tabs_->setCurrentIndex(static_cast<int>(initialTab));
    layout->addWidget(tabs_);
}

}  // namespace tarnel
