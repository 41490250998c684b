// Shows the status icon in the desktop's tray and switches its face on command, one word a
// line on standard input: basic, pause, download, error, syncing. The screenshot script uses
// it to capture every face of the real icon in a real tray.
#include <QApplication>
#include <QSocketNotifier>
#include <iostream>
#include <string>
#include <unistd.h>

#include "shell/icons/shell_resources.h"
#include "shell/tray/status_icon.h"

int main(int argc, char** argv) {
    using namespace tarnel;
    QApplication app(argc, argv);
    initShellResources();
    auto nothing = [] {};
    StatusIcon icon(TrayActions{nothing, nothing, nothing, nothing, nothing}, nothing);
    QSocketNotifier input(STDIN_FILENO, QSocketNotifier::Read);
    QObject::connect(&input, &QSocketNotifier::activated, &app, [&] {
        std::string word;
        if (!std::getline(std::cin, word)) return QApplication::quit();
        if (word == "basic") icon.updateStatusIcon(ConnectionState::connected, false, false);
        if (word == "pause") icon.updateStatusIcon(ConnectionState::error, true, false);
        if (word == "download") icon.updateStatusIcon(ConnectionState::syncing, false, true);
        if (word == "error") icon.updateStatusIcon(ConnectionState::error, false, false);
        if (word == "syncing") icon.updateStatusIcon(ConnectionState::syncing, false, false);
        std::cout << word << std::endl;
    });
    return app.exec();
}
