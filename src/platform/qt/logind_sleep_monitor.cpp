#include "platform/qt/logind_sleep_monitor.h"

#include <QDBusConnection>
#include <algorithm>
#include <cstdio>

namespace tarnel {

LogindSleepMonitor::LogindSleepMonitor() {
    auto bus = QDBusConnection::systemBus();
    // QtDBus offers only the string-slot form for bus signals.
    if (!bus.isConnected() ||
        !bus.connect(QStringLiteral("org.freedesktop.login1"),
                     QStringLiteral("/org/freedesktop/login1"),
                     QStringLiteral("org.freedesktop.login1.Manager"),
                     QStringLiteral("PrepareForSleep"), this, SLOT(prepareForSleep(bool)))) {
        std::fprintf(stderr, "Tarnel: no logind on the system bus; sleep and wake go unseen\n");
    }
}

Subscription LogindSleepMonitor::observe(std::function<void()> willSleep,
                                         std::function<void()> didWake) {
    auto o = std::make_shared<Observer>(Observer{std::move(willSleep), std::move(didWake)});
    observers_.push_back(o);
    return Subscription([this, o] { std::erase(observers_, o); });
}

void LogindSleepMonitor::prepareForSleep(bool sleeping) {
    auto current = observers_;
    for (auto& o : current) (sleeping ? o->willSleep : o->didWake)();
}

}  // namespace tarnel
