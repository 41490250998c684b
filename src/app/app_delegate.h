#pragma once

#include <QObject>
#include <memory>
#include <optional>

#include "app/app_paths.h"
#include "app/app_services.h"
#include "shell/bridge/fleet_bridge.h"
#include "shell/popover/popover.h"
#include "shell/settings/settings_window.h"
#include "shell/tray/status_icon.h"
#include "shell/windows/about_view.h"
#include "shell/windows/history_view.h"
#include "shell/windows/log_view.h"

namespace tarnel {

// The tray application: owns the services and the fleet for the life of the process, the
// status icon, the popover and the windows, and wires them together. Lives on the main thread.
class AppDelegate final {
public:
    explicit AppDelegate(AppPaths paths);
    ~AppDelegate();

    AppDelegate(const AppDelegate&) = delete;
    AppDelegate& operator=(const AppDelegate&) = delete;

    // The status icon, the services and the fleet, the icon's subscription, the popover, and
    // last the engines.
    void applicationDidFinishLaunching();
    // Stops the fleet and lets the stores finish writing.
    void applicationWillTerminate();

    void togglePopover();
    // Opens the popover in the form the tray allows (a second launch of the program asks for
    // this too).
    void showPopover();
    void showSettings(SettingsTab tab, std::optional<Uuid> connectionId = std::nullopt);
    // Each built on first use and centred; a closed one comes back as it was, where it was.
    void showLog();
    void showHistory();
    void showAbout();

    AppServices& services() { return *services_; }
    StatusIcon& statusItem() { return *statusItem_; }
    Popover& popover() { return *popover_; }
    SettingsWindow* settingsWindow() { return settingsWindow_.get(); }
    LogView* logWindow() { return logWindow_.get(); }
    HistoryView* historyWindow() { return historyWindow_.get(); }
    AboutView* aboutWindow() { return aboutWindow_.get(); }

private:
    void makePopover(Popover::Kind kind);
    void closePopover();
    template <typename Window, typename Make>
    void showOnce(std::unique_ptr<Window>& window, Make make);

    AppPaths paths_;
    QObject context_;  // ends the delegate's connections with it
    std::unique_ptr<StatusIcon> statusItem_;
    std::unique_ptr<AppServices> services_;
    std::unique_ptr<FleetBridge> bridge_;
    std::unique_ptr<Popover> popover_;
    std::unique_ptr<SettingsWindow> settingsWindow_;
    std::unique_ptr<LogView> logWindow_;
    std::unique_ptr<HistoryView> historyWindow_;
    std::unique_ptr<AboutView> aboutWindow_;
};

}  // namespace tarnel
