#include "app/tray_application.h"

#include <QApplication>

#include "app/app_delegate.h"
#include "shell/icons/shell_resources.h"
#include "shell/icons/symbol_icon.h"

namespace tarnel {

int runTrayApplication(int argc, char** argv) {
    QApplication app(argc, argv);
    initShellResources();
    // The program lives in the tray: closing its last window does not end it.
    QApplication::setQuitOnLastWindowClosed(false);
    QApplication::setWindowIcon(artworkIcon("tarnel"));
    QApplication::setDesktopFileName(QStringLiteral("tarnel"));

    AppDelegate delegate(AppPaths::fromEnvironment());
    QObject::connect(&app, &QCoreApplication::aboutToQuit, &app,
                     [&delegate] { delegate.applicationWillTerminate(); });
    delegate.applicationDidFinishLaunching();
    return app.exec();
}

}  // namespace tarnel
