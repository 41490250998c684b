// The tray icon's cost: what one animation frame takes to draw, and the CPU the process spends
// per minute showing one face: turning (syncing) or still (basic). Run it inside a desktop with
// a tray (bench/tray_cpu does) so that every frame really reaches the panel.
//   tray_animation_bench [seconds, default 30] [syncing|basic, default syncing]
#include <time.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QTimer>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "shell/icons/shell_resources.h"
#include "shell/tray/status_icon.h"

namespace {

double processCpuSeconds() {
    timespec t{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &t);
    return t.tv_sec + t.tv_nsec / 1e9;
}

}  // namespace

int main(int argc, char** argv) {
    using namespace tarnel;
    QApplication app(argc, argv);
    initShellResources();
    const int seconds = argc > 1 ? std::atoi(argv[1]) : 30;
    const bool turning = argc <= 2 || std::string(argv[2]) != "basic";
    auto nothing = [] {};
    StatusIcon icon(TrayActions{nothing, nothing, nothing, nothing, nothing}, nothing);

    // The panel docks the icon first: frames sent meanwhile measure nothing real.
    QTimer::singleShot(2000, &app, &QCoreApplication::quit);
    app.exec();

    // One frame, drawn many times in a row.
    icon.updateStatusIcon(ConnectionState::syncing, false, false);
    constexpr int frames = 3000;
    QElapsedTimer clock;
    clock.start();
    for (int i = 0; i < frames; ++i) icon.renderSyncFrame();
    const double frameMicros = clock.nsecsElapsed() / 1e3 / frames;
    std::printf("one frame: %.1f us to draw and hand to the tray\n", frameMicros);
    std::fflush(stdout);
    std::printf("  at %d frames/s: %.1f ms CPU a minute; at 60 frames/s: %.1f ms\n",
                StatusIcon::framesPerSecond, frameMicros * StatusIcon::framesPerSecond * 60 / 1e3,
                frameMicros * 60 * 60 / 1e3);

    // The process as it runs, the face shown for `seconds`, CPU scaled to a minute.
    icon.stopSyncAnimation();
    icon.updateStatusIcon(turning ? ConnectionState::syncing : ConnectionState::connected, false, false);
    const double before = processCpuSeconds();
    QTimer::singleShot(seconds * 1000, &app, &QCoreApplication::quit);
    app.exec();
    const double used = processCpuSeconds() - before;
    std::printf("%s: %.0f ms CPU a minute in this process (%d s measured)\n",
                turning ? "syncing (turning)" : "basic (still)", used * 1000 * 60 / seconds, seconds);
    return 0;
}
