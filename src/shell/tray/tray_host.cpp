#include "shell/tray/tray_host.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusInterface>
#include <QDBusReply>
#include <QGuiApplication>
#include <QSystemTrayIcon>

namespace tarnel {

namespace {

const QString watcherService = QStringLiteral("org.kde.StatusNotifierWatcher");

bool statusNotifierHostRegistered() {
    auto bus = QDBusConnection::sessionBus();
    if (!bus.isConnected() || !bus.interface()->isServiceRegistered(watcherService)) return false;
    QDBusInterface properties(watcherService, QStringLiteral("/StatusNotifierWatcher"),
                              QStringLiteral("org.freedesktop.DBus.Properties"), bus);
    properties.setTimeout(2000);
    const QDBusReply<QDBusVariant> reply = properties.call(
        QStringLiteral("Get"), watcherService, QStringLiteral("IsStatusNotifierHostRegistered"));
    return reply.isValid() && reply.value().variant().toBool();
}

}  // namespace

bool trayHostExists() {
    if (statusNotifierHostRegistered()) return true;
    // An old-style tray is looked for afresh at each call; only X11 has them.
    return QGuiApplication::platformName() == QLatin1String("xcb") &&
           QSystemTrayIcon::isSystemTrayAvailable();
}

}  // namespace tarnel
