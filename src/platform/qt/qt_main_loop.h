#pragma once

#include <QObject>

#include "platform/main_loop.h"

namespace tarnel {

// The main loop of the application: Qt's event loop on the GUI (or core) thread.
class QtMainLoop final : public MainLoop {
public:
    QtMainLoop();
    ~QtMainLoop() override;

    void post(std::function<void()> fn) override;
    std::unique_ptr<Timer> startTimer(Duration interval, bool repeats,
                                      std::function<void()> fire) override;

    // At quit, once no other thread can post any more: drops what was posted and not yet run,
    // and frees the tasks still suspended while the services they point at are still there.
    void abandonWork();

private:
    QObject context_;
};

}  // namespace tarnel
