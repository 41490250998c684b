#include "app/app_delegate.h"

#include <QApplication>
#include <QScreen>

#include "platform/qt/canberra_sound_player.h"
#include "shell/settings/connections_settings_tab.h"

namespace tarnel {

namespace {

void centreOnScreen(QWidget& window) {
    if (auto* screen = QGuiApplication::primaryScreen()) {
        auto frame = window.frameGeometry();
        frame.moveCenter(screen->availableGeometry().center());
        window.move(frame.topLeft());
    }
}

// The process has no other way to take focus.
void present(QWidget& window) {
    window.show();
    window.raise();
    window.activateWindow();
}

}  // namespace

AppDelegate::AppDelegate(AppPaths paths) : paths_(std::move(paths)) {}

AppDelegate::~AppDelegate() {
    // Windows first: they read the services.
    aboutWindow_.reset();
    historyWindow_.reset();
    logWindow_.reset();
    settingsWindow_.reset();
    popover_.reset();
    bridge_.reset();
}

void AppDelegate::applicationDidFinishLaunching() {
    statusItem_ = std::make_unique<StatusIcon>(
        TrayActions{
            .open = [this] { showPopover(); },
            .syncNow = [this] { services_->manager().syncAllNow(); },
            .togglePause =
                [this] {
                    auto& manager = services_->manager();
                    if (manager.aggregatePaused()())
                        manager.resumeAll();
                    else
                        manager.pauseAll();
                },
            .settings = [this] { showSettings(SettingsTab::general); },
            .quit = [] { QApplication::quit(); },
        },
        [this] { togglePopover(); });

    services_ = std::make_unique<AppServices>(paths_, std::make_unique<CanberraSoundPlayer>());
    bridge_ = std::make_unique<FleetBridge>(services_->manager(), services_->settings(),
                                            services_->statsService(), services_->historyService());
    QObject::connect(bridge_.get(), &FleetBridge::statusIconInputsChanged, &context_,
                     [this](ConnectionState state, bool paused, bool downloading) {
                         statusItem_->updateStatusIcon(state, paused, downloading);
                     });
    statusItem_->updateStatusIcon(services_->manager().aggregateState()(),
                                  services_->manager().aggregatePaused()(),
                                  services_->manager().aggregateDownloading()());

    // With no tray to click, the popover's content is a small window of its own until a tray
    // appears.
    // Asked of the icon, not of Qt: Qt's first answer about the tray is the one it keeps.
    const bool trayExists = statusItem_->isVisible();
    makePopover(trayExists ? Popover::Kind::popup : Popover::Kind::window);
    if (!trayExists) showPopover();
    // Once a tray appears the icon is the way in: the window gives way to the popup.
    QObject::connect(statusItem_.get(), &StatusIcon::trayAppeared, &context_,
                     [this] { makePopover(Popover::Kind::popup); });

    services_->manager().startAll();
}

void AppDelegate::makePopover(Popover::Kind kind) {
    auto& manager = services_->manager();
    MenuBarCallbacks callbacks{
        .onSettings = [this] { showSettings(SettingsTab::general); },
        .onViewLog = [this] { showLog(); },
        .onViewHistory = [this] { showHistory(); },
        .onAbout = [this] { showAbout(); },
        .onQuit = [] { QApplication::quit(); },
        .onAddConnection =
            [this, &manager] {
                const auto id = ConnectionsSettingsTab::addNewConnection(manager);
                closePopover();
                showSettings(SettingsTab::connections, id);
            },
        .onOpenConnection =
            [this](const Uuid& id) {
                closePopover();
                showSettings(SettingsTab::connections, id);
            },
    };
    auto* view = new MenuBarView(manager, services_->settings(), services_->statsService(),
                                 services_->historyService(), services_->clock(), std::move(callbacks));
    popover_ = std::make_unique<Popover>(kind, view);
    QObject::connect(bridge_.get(), &FleetBridge::changed, view, [view, popover = popover_.get()] {
        // Hidden, it is redrawn when it next opens.
        if (popover->isVisible()) view->refresh();
    });
}

void AppDelegate::togglePopover() {
    popover_->toggle(statusItem_->isVisible(), statusItem_->geometry());
}

void AppDelegate::showPopover() {
    popover_->open(statusItem_->isVisible(), statusItem_->geometry());
}

void AppDelegate::closePopover() {
    popover_->hide();
}

void AppDelegate::showSettings(SettingsTab tab, std::optional<Uuid> connectionId) {
    // The open window is kept: a dialog of it may be running, with the window on its stack.
    const bool open = settingsWindow_ != nullptr;
    showOnce(settingsWindow_, [&] {
        return std::make_unique<SettingsWindow>(services_->manager(), services_->settings(),
                                                services_->soundPlayer(), tab, connectionId);
    });
    if (open) settingsWindow_->reveal(tab, connectionId);
}

template <typename Window, typename Make>
void AppDelegate::showOnce(std::unique_ptr<Window>& window, Make make) {
    closePopover();
    if (!window) {
        window = make();
        centreOnScreen(*window);
    }
    present(*window);
}

void AppDelegate::showLog() {
    showOnce(logWindow_,
             [this] { return std::make_unique<LogView>(services_->logService(), services_->clock()); });
}

void AppDelegate::showHistory() {
    showOnce(historyWindow_, [this] {
        return std::make_unique<HistoryView>(services_->historyService(), services_->clock());
    });
}

void AppDelegate::showAbout() {
    showOnce(aboutWindow_,
             [this] { return std::make_unique<AboutView>(paths_.logFile.parent_path()); });
}

void AppDelegate::applicationWillTerminate() {
    services_->shutdown();
}

}  // namespace tarnel
