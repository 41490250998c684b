#pragma once

#include <functional>

#include "platform/observable.h"

namespace tarnel {

// The system's sleep and wake signals, delivered on the main loop. In the application, logind's
// PrepareForSleep over D-Bus; in tests, a source fired by hand.
class SleepMonitor {
public:
    virtual ~SleepMonitor() = default;
    [[nodiscard]] virtual Subscription observe(std::function<void()> willSleep,
                                               std::function<void()> didWake) = 0;
};

// A sleep monitor that fires when told to: tests, and hosts without logind.
class ManualSleepMonitor final : public SleepMonitor {
public:
    Subscription observe(std::function<void()> willSleep, std::function<void()> didWake) override;
    void fireSleep();
    void fireWake();

private:
    Observable<int> sleeps_{0};
    Observable<int> wakes_{0};
};

}  // namespace tarnel
