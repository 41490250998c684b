#include "app/app_services.h"

#include "platform/qt/dbus_notifier.h"
#include "platform/qt/logind_inhibitor.h"
#include "platform/qt/logind_sleep_monitor.h"
#include "platform/qt/qt_keyring.h"
#include "platform/qt/qt_network_monitor.h"
#include "records/partial_download_tracker.h"

namespace tarnel {

AppServices::AppServices(const AppPaths& paths, std::unique_ptr<SoundPlayer> soundPlayer,
                         std::function<void(const std::string&)> logEcho)
    : paths_(paths),
      settingsStore_(paths.settingsFile),
      settings_(settingsStore_, paths.autostartFile),
      logService_(loop_, clock_, paths.logFile),
      statsService_(settingsStore_, clock_),
      // Beside the stores it replaces; an unreadable one is reported in the log and set aside.
      journal_(Journal::open(paths.historyFile.parent_path() / "journal.db",
                             [this](const std::string& problem) {
                                 logService_.log(problem, LogLevel::error);
                             })),
      historyService_(loop_, journal_, paths.historyFile),
      notifier_(std::make_unique<DBusNotifier>()),
      notifications_(settings_, *notifier_),
      sleepMonitor_(std::make_unique<LogindSleepMonitor>()),
      soundPlayer_(std::move(soundPlayer)),
      networkMonitor_(std::make_unique<QtNetworkMonitor>()),
      sleepInhibitor_(std::make_unique<LogindInhibitor>()),
      keyring_(std::make_unique<QtKeyring>()) {
    if (logEcho) logService_.setEcho(std::move(logEcho));
    std::error_code ignored;
    std::filesystem::create_directories(paths.historyFile.parent_path(), ignored);
    manager_ = std::make_shared<ConnectionsManager>(FleetServices{
        runtime_, settingsStore_, settings_, logService_, statsService_, historyService_,
        notifications_, *sleepMonitor_, *soundPlayer_, paths.partialsFile, paths.knownHostsFile,
        networkMonitor_.get(), sleepInhibitor_.get(), keyring_.get(), journal_});
}

AppServices::~AppServices() {
    shutdown();
}

void AppServices::shutdown() {
    if (shutDown_) return;
    shutDown_ = true;
    manager_->stopAll();
    // Transfers end where they are, their temporary files and records kept for the next start;
    // a listing on a worker fails. Then no thread is left in an engine, and the polls that
    // waited for them are freed here, while the stores and the log they use are still there.
    manager_->endTransfers();
    workers_.waitIdle();
    loop_.abandonWork();
    // A password the keyring has not confirmed stays in the settings file: waiting longer only
    // delays the exit.
    keyring_->finish(std::chrono::seconds(10));
    logService_.flush();
    historyService_.flush();
    manager_->partialTracker().flush();
    settingsStore_.flush();
}

}  // namespace tarnel
