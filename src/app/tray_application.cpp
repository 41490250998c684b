#include "app/tray_application.h"

#include <QApplication>
#include <QSocketNotifier>
#include <iostream>

#include "app/app_delegate.h"
#include "app/app_language.h"
#include "app/instance_channel.h"
#include "app/instance_lock.h"
#include "app/instance_requests.h"
#include "app/stop_signals.h"
#include "shell/icons/shell_resources.h"
#include "shell/icons/symbol_icon.h"

namespace tarnel {

int runTrayApplication(int argc, char** argv, const AppPaths& paths, int stopSignals) {
    QApplication app(argc, argv);
    // One fleet per set of stores: a second launch shows the running one's popup.
    const InstanceLock lock(paths.instanceLockFiles, paths.instanceSocket);
    if (lock.error()) {
        std::cerr << "tarnel: " << *lock.error() << "\nCheck that the folder is yours and writable.\n";
        return 2;
    }
    if (!lock.held()) {
        const auto answer = askHolder(lock, InstanceRequestKind::show, {});
        if (!answer.ok) std::cerr << "tarnel: " << answer.text << "\n";
        return answer.ok ? 0 : 2;
    }

    initShellResources();
    // The program lives in the tray: closing its last window does not end it.
    QApplication::setQuitOnLastWindowClosed(false);
    QApplication::setWindowIcon(artworkIcon("tarnel"));
    QApplication::setDesktopFileName(QStringLiteral("tarnel"));
    // StatusNotifierItem hosts (Plasma's tray, its list of hidden icons, the icon's tooltip) show
    // the application name; the default is the executable's. Not the display name: Qt would
    // append that to every window title.
    QApplication::setApplicationName(QStringLiteral("Tarnel"));

    const AppLanguage language(paths.settingsFile);
    AppDelegate delegate(paths);
    QObject::connect(&app, &QCoreApplication::aboutToQuit, &app,
                     [&delegate] { delegate.applicationWillTerminate(); });
    delegate.applicationDidFinishLaunching();

    InstanceChannel channel(paths.instanceSocket);
    channel.setHandler(InstanceRequestKind::show, [&delegate](const std::string&) {
        delegate.showPopover();
        return InstanceAnswer{true, {}};
    });
    serveRequests(channel, delegate.services());
    listenForLaterLaunches(channel, delegate.services().logService());

    // A stop from the session or `kill` quits as the menu's Quit does: the fleet stops and the
    // stores are written.
    QSocketNotifier stopNotifier(stopSignals, QSocketNotifier::Read);
    QObject::connect(&stopNotifier, &QSocketNotifier::activated, &app, [&] {
        delegate.services().logService().log(takeStopSignal(stopSignals));
        QApplication::quit();
    });
    return app.exec();
}

}  // namespace tarnel
