// tarnel: the tray application, the headless runner and the connection import.
#include <QCoreApplication>
#include <QSocketNotifier>
#include <cstdio>
#include <iostream>

#include "app/app_paths.h"
#include "app/app_services.h"
#include "app/command_line.h"
#include "app/connection_import.h"
#include "app/fleet_status.h"
#include "app/instance_channel.h"
#include "app/instance_lock.h"
#include "app/instance_requests.h"
#include "app/service_manager.h"
#include "app/status_command.h"
#include "app/stop_signals.h"
#include "app/tray_application.h"
#include "connections/connection_config_json.h"
#include "platform/qt/qt_settings_store.h"

namespace {

// A server has no one to hear a sound.
class SilentSoundPlayer final : public tarnel::SoundPlayer {
public:
    void play(const std::string&) override {}
};

}  // namespace

int main(int argc, char** argv) {
    using namespace tarnel;
    const auto options = CommandLine::parse(argc, argv);
    if (options.error) {
        std::cerr << "tarnel: " << *options.error << "\n\n" << CommandLine::helpText();
        return 2;
    }
    if (options.help) {
        std::cout << CommandLine::helpText();
        return 0;
    }
    const auto paths = AppPaths::fromEnvironment();
    if (options.list) {
        try {
            const QtSettingsStore store(paths.settingsFile);
            const auto text = store.stringValue("tarnel_connections_v2");
            std::cout << connectionListText(text ? decodeConnectionList(*text)
                                                 : std::vector<ConnectionConfig>{});
        } catch (const std::exception& e) {
            std::cerr << "tarnel: the stored connections do not read: " << e.what() << "\n";
            return 2;
        }
        return 0;
    }
    if (options.status) return runStatusCommand(paths, options.json);
    if (!options.headless && !options.importFile)
        return runTrayApplication(argc, argv, paths, blockStopSignals());

    // A file that does not read imports nothing, before anything is built.
    ConnectionImport import;
    if (options.importFile) {
        try {
            import = readConnectionImport(*options.importFile);
            if (const auto defaults = import.defaultsText(); !defaults.empty())
                std::cout << defaults << "\n";
        } catch (const std::exception& e) {
            std::cerr << "tarnel: cannot import " << *options.importFile << ": " << e.what()
                      << "\nNothing was imported.\n";
            return 2;
        }
    }

    const int signals = blockStopSignals();
    QCoreApplication app(argc, argv);

    // One fleet per set of stores: a later launch hands its import to the running one.
    const InstanceLock lock(paths.instanceLockFiles, paths.instanceSocket);
    if (lock.error()) {
        std::cerr << "tarnel: " << *lock.error() << "\nCheck that the folder is yours and writable.\n";
        return 2;
    }
    if (!lock.held()) {
        bool importedThere = true;
        if (options.importFile) {
            const auto answer =
                askHolder(lock, InstanceRequestKind::import,
                          encodeConnectionList(import.records, import.passwordsInKeyring));
            (answer.ok ? std::cout : std::cerr) << answer.text << "\n";
            importedThere = answer.ok;
        }
        if (options.headless) {
            const auto pid = lock.holder();
            std::cerr << "tarnel: Tarnel is already running on these stores (process "
                      << (pid ? std::to_string(*pid) : std::string("unknown")) << ")\n";
            return 2;
        }
        return importedThere ? 0 : 2;
    }
    std::function<void(const std::string&)> echo;
    if (options.headless) {
        // Under systemd the journal takes the line's level from its prefix.
        echo = [journal = standardOutputIsJournal()](const std::string& line) {
            std::fputs(((journal ? withJournalPriority(line) : line) + "\n").c_str(), stdout);
            std::fflush(stdout);
        };
    }
    AppServices services(paths, std::make_unique<SilentSoundPlayer>(),
                         std::move(echo));

    if (!options.headless) {
        std::cout << importConnections(services.manager(), import) << "\n";
        services.shutdown();
        return 0;
    }

    services.manager().startAll();
    if (options.importFile)
        services.logService().log(importConnections(services.manager(), import));
    if (services.manager().engines().empty())
        services.logService().log(
            "No enabled connection with a host to watch; add one with 'tarnel --import FILE' "
            "(see 'tarnel --help')",
            LogLevel::warning);

    InstanceChannel channel(paths.instanceSocket);
    serveRequests(channel, services);
    listenForLaterLaunches(channel, services.logService());

    ServiceManager serviceManager(services.loop(), [&services] {
        return statusSummary(fleetStatus(services.manager(), services.historyService(),
                                         services.statsService(), services.clock()));
    });
    serviceManager.ready();

    QSocketNotifier stopNotifier(signals, QSocketNotifier::Read);
    QObject::connect(&stopNotifier, &QSocketNotifier::activated, &app, [&] {
        services.logService().log(takeStopSignal(signals));
        QCoreApplication::quit();
    });
    const int status = app.exec();
    serviceManager.stopping();
    services.shutdown();
    return status;
}
