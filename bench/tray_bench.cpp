// The tray's cost, in one of three modes:
//   tray_bench [seconds, default 30] [syncing|basic|popover, default syncing]
// syncing, basic: what one animation frame takes to draw, and the CPU the process spends per
// minute showing one face, turning (syncing) or still (basic).
// popover: the whole tray application with four connections, each downloading one throttled
// file from a local FTP test server; the process's CPU with the popover closed and then open,
// and the widgets made and painted while it is open (updates must not make rows again).
// Run it inside a desktop with a tray (bench/tray_cpu does) so that every frame really reaches
// the panel; offscreen the popover opens as a window.
#include <time.h>

#include <QApplication>
#include <QChildEvent>
#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QTimer>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <map>
#include <string>

#include "app/app_delegate.h"
#include "servers/test_server.h"
#include "shell/icons/shell_resources.h"
#include "shell/tray/status_icon.h"

namespace {

using namespace tarnel;

double processCpuSeconds() {
    timespec t{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &t);
    return t.tv_sec + t.tv_nsec / 1e9;
}

// Runs events for `ms`. A loop of its own: the application's quit would close the windows.
void runFor(int ms) {
    QEventLoop loop;
    QTimer::singleShot(ms, &loop, &QEventLoop::quit);
    loop.exec();
}

// Runs events for `seconds`; the process's CPU meanwhile, in milliseconds a minute.
double cpuPerMinute(int seconds) {
    const double before = processCpuSeconds();
    runFor(seconds * 1000);
    return (processCpuSeconds() - before) * 1000 * 60 / seconds;
}

int iconFaces(int seconds, bool turning) {
    auto nothing = [] {};
    StatusIcon icon(TrayActions{nothing, nothing, nothing, nothing, nothing}, nothing);

    // The panel docks the icon first: frames sent meanwhile measure nothing real.
    runFor(2000);

    // One frame, drawn many times in a row.
    icon.updateStatusIcon(ConnectionState::syncing, false, false);
    constexpr int frames = 3000;
    QElapsedTimer clock;
    clock.start();
    for (int i = 0; i < frames; ++i) icon.renderSyncFrame();
    const double frameMicros = clock.nsecsElapsed() / 1e3 / frames;
    std::printf("one frame: %.1f us to draw and hand to the tray\n", frameMicros);
    std::printf("  at %d frames/s: %.1f ms CPU a minute; at 60 frames/s: %.1f ms\n",
                StatusIcon::framesPerSecond, frameMicros * StatusIcon::framesPerSecond * 60 / 1e3,
                frameMicros * 60 * 60 / 1e3);
    std::fflush(stdout);

    // The process as it runs, the face shown for `seconds`.
    icon.stopSyncAnimation();
    icon.updateStatusIcon(turning ? ConnectionState::syncing : ConnectionState::connected, false, false);
    std::printf("%s: %.0f ms CPU a minute in this process (%d s measured)\n",
                turning ? "syncing (turning)" : "basic (still)", cpuPerMinute(seconds), seconds);
    return 0;
}

// Counts the widgets of the whole process that are shown for the first time (each is polished
// once, fully made, so its class is known) and the paint events, while it is installed.
class WidgetWatch final : public QObject {
public:
    std::map<std::string, int> made;
    int paints = 0;

protected:
    bool eventFilter(QObject* object, QEvent* event) override {
        if (event->type() == QEvent::Polish && object->isWidgetType())
            ++made[object->metaObject()->className()];
        else if (event->type() == QEvent::Paint)
            ++paints;
        return false;
    }
};

std::size_t activeDownloads(ConnectionsManager& manager) {
    std::size_t count = 0;
    for (const auto& [id, engine] : manager.engines()) count += engine->activeDownloads()().size();
    return count;
}

int popoverOpenAndClosed(QApplication& app, int seconds) {
    namespace fs = std::filesystem;
    constexpr int connections = 4;
    // Slow enough that the four downloads outlast both windows and the start.
    constexpr std::int64_t bytesPerSecond = 64 * 1024;
    QTemporaryDir dir;
    const fs::path root = dir.path().toStdString();
    testing::TestServer server({.protocol = testing::ServerProtocol::ftp, .root = root / "served"});
    server.throttleDownloads(bytesPerSecond);
    for (int i = 1; i <= connections; ++i) {
        const fs::path folder = root / "served" / ("feed" + std::to_string(i));
        fs::create_directories(folder);
        std::ofstream(folder / ("batch-" + std::to_string(i) + ".bin")).close();
        fs::resize_file(folder / ("batch-" + std::to_string(i) + ".bin"),
                        bytesPerSecond * (2 * seconds + 60));
    }

    AppDelegate delegate(AppPaths{root / "Tarnel.conf", root / "autostart" / "tarnel.desktop",
                                  root / "history.json", root / "partials.json",
                                  root / "known_hosts", root / "Tarnel.log",
                                  {root / "instance.lock"}, root / "instance.socket"});
    delegate.applicationDidFinishLaunching();
    auto& manager = delegate.services().manager();
    for (int i = 1; i <= connections; ++i) {
        auto config = server.connectionConfig();
        config.name = "Feed " + std::to_string(i);
        config.remotePath = "/feed" + std::to_string(i);
        config.localPath = (root / ("downloads" + std::to_string(i))).string();
        fs::create_directories(config.localPath);
        config.requiredStableChecks = 0;
        config.deleteAfterDownload = false;
        manager.addConnection(config);
    }
    delegate.popover().hide();  // offscreen, with no tray, it opened at start

    QElapsedTimer waited;
    waited.start();
    while (activeDownloads(manager) < connections && waited.elapsed() < 60'000)
        QCoreApplication::processEvents(QEventLoop::AllEvents, 100);
    if (activeDownloads(manager) < connections) {
        std::fprintf(stderr, "only %zu of %d downloads started\n", activeDownloads(manager), connections);
        return 1;
    }
    std::printf("%d downloads running at %lld KiB/s each (popover: %s)\n", connections,
                static_cast<long long>(bytesPerSecond / 1024),
                QGuiApplication::platformName().toUtf8().constData());
    std::fflush(stdout);

    std::printf("popover closed: %.0f ms CPU a minute\n", cpuPerMinute(seconds));
    std::fflush(stdout);

    delegate.showPopover();
    // Opening builds what is new since it last showed; the window starts after that.
    runFor(2000);
    WidgetWatch watch;
    app.installEventFilter(&watch);
    const double open = cpuPerMinute(seconds);
    app.removeEventFilter(&watch);
    const bool stillRunning = activeDownloads(manager) == connections;
    std::printf("popover open:   %.0f ms CPU a minute; %d paint events; widgets made:", open,
                watch.paints);
    int made = 0;
    for (const auto& [name, count] : watch.made) {
        std::printf(" %s %d,", name.c_str(), count);
        made += count;
    }
    std::printf(" %d in all (%d s measured)%s\n", made, seconds,
                stillRunning ? "" : "; some downloads ended during the window");
    delegate.applicationWillTerminate();
    return stillRunning ? 0 : 1;
}

}  // namespace

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    initShellResources();
    const int seconds = argc > 1 ? std::atoi(argv[1]) : 30;
    const std::string mode = argc > 2 ? argv[2] : "syncing";
    if (mode == "popover") return popoverOpenAndClosed(app, seconds);
    return iconFaces(seconds, mode != "basic");
}
