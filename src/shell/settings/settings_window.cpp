#include "shell/settings/settings_window.h"

#include <QApplication>
#include <QCloseEvent>
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

QWidget* SettingsWindow::runningDialog() const {
    QWidget* modal = QApplication::activeModalWidget();
    for (const QWidget* w = modal; w; w = w->parentWidget())
        if (w == this) return modal;
    return nullptr;
}

void SettingsWindow::reveal(SettingsTab tab, std::optional<Uuid> connectionId) {
    if (QWidget* dialog = runningDialog()) {
        dialog->raise();
        dialog->activateWindow();
        return;
    }
    if (connectionId && !connections_->select(connectionId)) tab = SettingsTab::connections;
    tabs_->setCurrentIndex(static_cast<int>(tab));
}

void SettingsWindow::closeEvent(QCloseEvent* event) {
    if (runningDialog() || !connections_->settleEdits()) {
        event->ignore();
        return;
    }
    QWidget::closeEvent(event);
}

}  // namespace tarnel
