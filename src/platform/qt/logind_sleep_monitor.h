#pragma once

#include <QObject>
#include <functional>
#include <memory>
#include <vector>

#include "platform/sleep_monitor.h"

namespace tarnel {

// Sleep and wake from logind: PrepareForSleep(true) before suspend, (false) after resume.
// Without a system bus (a container, a server without logind) it stays silent.
class LogindSleepMonitor final : public QObject, public SleepMonitor {
    Q_OBJECT
public:
    LogindSleepMonitor();
    Subscription observe(std::function<void()> willSleep, std::function<void()> didWake) override;

private Q_SLOTS:
    void prepareForSleep(bool sleeping);

private:
    struct Observer {
        std::function<void()> willSleep, didWake;
    };
    std::vector<std::shared_ptr<Observer>> observers_;
};

}  // namespace tarnel
