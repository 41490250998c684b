#include "platform/qt/dbus_notifier.h"

#include <functional>
#include <vector>

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDBusConnection>
#include <QElapsedTimer>
#include <QVariantMap>

namespace tarnel {

// Stands in for the desktop's notification server: owns org.freedesktop.Notifications on its
// own connection to the session bus and records what it is asked to show.
class NotificationsReceiver : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Notifications")
public:
    struct Call {
        QString appIcon;
        uint replacesId, id;
        QString summary, body;
        QVariantMap hints;
    };
    std::vector<Call> calls;
    uint nextId = 1;

public Q_SLOTS:
    uint Notify(const QString&, uint replacesId, const QString& appIcon, const QString& summary,
                const QString& body, const QStringList&, const QVariantMap& hints, int) {
        const uint id = replacesId != 0 ? replacesId : nextId++;
        calls.push_back({appIcon, replacesId, id, summary, body, hints});
        return id;
    }
    QStringList GetCapabilities() {
        return {QStringLiteral("body"), QStringLiteral("body-markup")};
    }
};

namespace {

bool spinUntil(const std::function<bool()>& done) {
    QElapsedTimer guard;  // a failure guard only; nothing here depends on timing
    guard.start();
    while (!done() && guard.elapsed() < 10'000)
        QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
    return done();
}

TEST(DBusNotifier, AFixedIdentifierReplacesItsEarlierNotification) {
    int argc = 1;
    char name[] = "dbus_notifier_test";
    char* argv[] = {name, nullptr};
    QCoreApplication app(argc, argv);

    auto serverBus =
        QDBusConnection::connectToBus(QDBusConnection::SessionBus, QStringLiteral("receiver"));
    ASSERT_TRUE(serverBus.isConnected()) << "run under dbus-run-session";
    NotificationsReceiver receiver;
    ASSERT_TRUE(serverBus.registerObject(
        QStringLiteral("/org/freedesktop/Notifications"), &receiver,
        QDBusConnection::ExportAllSlots | QDBusConnection::ExportAllSignals));
    ASSERT_TRUE(serverBus.registerService(QStringLiteral("org.freedesktop.Notifications")));

    DBusNotifier notifier;
    // The second error comes before the server has answered the first: it still replaces it.
    notifier.post("error-Shop", "Tarnel: Connection error", "[Shop] one", true);
    notifier.post("error-Shop", "Tarnel: Connection error", "[Shop] two", true);
    notifier.post("9F2C", "Tarnel: 1 file downloaded", "[Shop] a<b>.txt", false);
    ASSERT_TRUE(spinUntil([&] { return receiver.calls.size() == 3; }));
    const auto first = receiver.calls[0];
    EXPECT_EQ(first.replacesId, 0u);
    // The desktop names the sender by its desktop entry and shows the application's icon.
    for (const auto& call : receiver.calls) {
        EXPECT_EQ(call.hints.value(QStringLiteral("desktop-entry")).toString(), QStringLiteral("tarnel"));
        EXPECT_EQ(call.appIcon, QStringLiteral("tarnel"));
    }
    EXPECT_EQ(first.hints.value(QStringLiteral("sound-name")).toString(),
              QStringLiteral("message-new-instant"));
    EXPECT_EQ(receiver.calls[1].replacesId, 0u);  // another identifier adds its own
    EXPECT_TRUE(receiver.calls[1].hints.value(QStringLiteral("suppress-sound")).toBool());
    EXPECT_EQ(receiver.calls[2].body, QStringLiteral("[Shop] two"));
    EXPECT_EQ(receiver.calls[2].replacesId, first.id);

    // The server renders markup, so text is escaped.
    notifier.post("folder-Shop", "Tarnel: Local folder problem", "[Shop] <gone>", true);
    ASSERT_TRUE(spinUntil([&] { return receiver.calls.size() == 4; }));
    EXPECT_EQ(receiver.calls[3].body, QStringLiteral("[Shop] &lt;gone&gt;"));
}

}  // namespace
}  // namespace tarnel

#include "dbus_notifier_test.moc"
