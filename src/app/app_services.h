#pragma once

#include <functional>
#include <memory>
#include <string>

#include "app/app_paths.h"
#include "fleet/connections_manager.h"
#include "platform/clock.h"
#include "platform/keyring.h"
#include "platform/network_monitor.h"
#include "platform/notifier.h"
#include "platform/qt/qt_main_loop.h"
#include "platform/qt/qt_settings_store.h"
#include "platform/runtime.h"
#include "platform/sleep_inhibitor.h"
#include "platform/sleep_monitor.h"
#include "platform/sound_player.h"
#include "platform/worker_pool.h"
#include "records/app_settings.h"
#include "records/history_service.h"
#include "records/journal.h"
#include "records/log_service.h"
#include "records/notification_service.h"
#include "records/stats_service.h"

namespace tarnel {

// Owns everything the program is made of, for the life of the process, in the order they are
// built. The tray application and the headless runner build the same.
class AppServices {
public:
    // `logEcho`, when given, also receives every log line from the first one on (the headless
    // runner prints them).
    AppServices(const AppPaths& paths, std::unique_ptr<SoundPlayer> soundPlayer,
                std::function<void(const std::string&)> logEcho = {});
    ~AppServices();

    ConnectionsManager& manager() { return *manager_; }
    LogService& logService() { return logService_; }
    AppSettings& settings() { return settings_; }
    StatsService& statsService() { return statsService_; }
    HistoryService& historyService() { return historyService_; }
    SoundPlayer& soundPlayer() { return *soundPlayer_; }
    const Clock& clock() const { return clock_; }
    MainLoop& loop() { return loop_; }

    // Stops the fleet, ends the transfers under way (their temporary files and records are what
    // the next start resumes from), and waits until the log, the history, the partial records
    // and the passwords on their way into the keyring are stored. Once; the destructor calls it
    // if nobody did.
    void shutdown();

private:
    AppPaths paths_;
    QtMainLoop loop_;
    SystemClock clock_;
    WorkerPool workers_;
    Runtime runtime_{loop_, clock_, workers_};
    QtSettingsStore settingsStore_;
    AppSettings settings_;
    LogService logService_;
    StatsService statsService_;
    std::shared_ptr<Journal> journal_;
    HistoryService historyService_;
    std::unique_ptr<Notifier> notifier_;
    NotificationService notifications_;
    std::unique_ptr<SleepMonitor> sleepMonitor_;
    std::unique_ptr<SoundPlayer> soundPlayer_;
    std::unique_ptr<NetworkMonitor> networkMonitor_;
    std::unique_ptr<SleepInhibitor> sleepInhibitor_;
    std::unique_ptr<Keyring> keyring_;
    std::shared_ptr<ConnectionsManager> manager_;
    bool shutDown_ = false;
};

}  // namespace tarnel
