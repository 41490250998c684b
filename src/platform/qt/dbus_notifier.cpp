#include "platform/qt/dbus_notifier.h"

#include <cstdio>
#include <utility>

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QStringList>
#include <QVariantMap>

namespace tarnel {

namespace {

const QString service = QStringLiteral("org.freedesktop.Notifications");
const QString path = QStringLiteral("/org/freedesktop/Notifications");
const QString interface = QStringLiteral("org.freedesktop.Notifications");
// The installed desktop entry, and the icon of the same name beside it: the desktop shows the
// notification under the application's own name and icon, and lists it in its settings.
const QString desktopEntry = QStringLiteral("tarnel");

}  // namespace

DBusNotifier::DBusNotifier(QDBusConnection bus) : bus_(std::move(bus)) {
    // QtDBus offers only the string-slot form for bus signals.
    bus_.connect(service, path, interface, QStringLiteral("NotificationClosed"), this,
                 SLOT(notificationClosed(uint, uint)));
    // Servers that render markup would swallow a file name like "a<b>.txt" unless escaped.
    auto call = bus_.asyncCall(QDBusMessage::createMethodCall(service, path, interface,
                                                              QStringLiteral("GetCapabilities")));
    auto* watcher = new QDBusPendingCallWatcher(call, this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this](QDBusPendingCallWatcher* w) {
        QDBusPendingReply<QStringList> reply = *w;
        if (reply.isValid())
            bodyMarkup_ = reply.value().contains(QStringLiteral("body-markup"));
        w->deleteLater();
    });
}

void DBusNotifier::post(const std::string& identifier, const std::string& title,
                        const std::string& body, bool withSound) {
    Message message{QString::fromStdString(title), QString::fromStdString(body), withSound};
    auto& shown = shown_[identifier];
    if (shown.awaitingId) {
        shown.next = std::move(message);
        return;
    }
    send(identifier, message);
}

void DBusNotifier::send(const std::string& identifier, const Message& message) {
    auto& shown = shown_[identifier];
    shown.awaitingId = true;
    QVariantMap hints{{QStringLiteral("desktop-entry"), desktopEntry}};
    if (message.withSound)
        hints.insert(QStringLiteral("sound-name"), QStringLiteral("message-new-instant"));
    else
        hints.insert(QStringLiteral("suppress-sound"), true);
    auto call = QDBusMessage::createMethodCall(service, path, interface, QStringLiteral("Notify"));
    call << QStringLiteral("Tarnel") << shown.id << desktopEntry << message.title
         << (bodyMarkup_ ? message.body.toHtmlEscaped() : message.body) << QStringList() << hints
         << -1;

    auto* watcher = new QDBusPendingCallWatcher(bus_.asyncCall(call), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this,
            [this, identifier](QDBusPendingCallWatcher* w) {
                w->deleteLater();
                QDBusPendingReply<uint> reply = *w;
                auto& shown = shown_[identifier];
                shown.awaitingId = false;
                if (reply.isValid()) {
                    shown.id = reply.value();
                } else if (!reportedFailure_) {
                    reportedFailure_ = true;
                    std::fprintf(stderr, "Tarnel: notifications cannot be shown: %s\n",
                                 qPrintable(reply.error().message()));
                }
                if (auto next = std::exchange(shown.next, std::nullopt))
                    send(identifier, *next);
            });
}

// A closed notification cannot be replaced: the identifier starts afresh next time.
void DBusNotifier::notificationClosed(uint id, uint) {
    std::erase_if(shown_, [id](const auto& entry) {
        return entry.second.id == id && !entry.second.awaitingId;
    });
}

}  // namespace tarnel
