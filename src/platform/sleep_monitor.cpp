#include "platform/sleep_monitor.h"

namespace tarnel {

Subscription ManualSleepMonitor::observe(std::function<void()> willSleep,
                                         std::function<void()> didWake) {
    auto a = std::make_shared<Subscription>(
        sleeps_.subscribe([f = std::move(willSleep)](int) { f(); }, false));
    auto b = std::make_shared<Subscription>(
        wakes_.subscribe([f = std::move(didWake)](int) { f(); }, false));
    return Subscription([a, b] {
        a->reset();
        b->reset();
    });
}

void ManualSleepMonitor::fireSleep() {
    sleeps_.set(sleeps_() + 1);
}
void ManualSleepMonitor::fireWake() {
    wakes_.set(wakes_() + 1);
}

}  // namespace tarnel
