#pragma once

#include <map>
#include <optional>
#include <string>

#include <QDBusConnection>
#include <QObject>
#include <QString>

#include "platform/notifier.h"

namespace tarnel {

// Notifications through org.freedesktop.Notifications on the session bus. An identifier posted
// again replaces the notification it showed (the server's replaces_id) while that one is still
// open. Calls never block the loop: a post for an identifier whose first notification is still
// being answered waits for that answer, so it replaces instead of adding one.
class DBusNotifier final : public QObject, public Notifier {
    Q_OBJECT
public:
    explicit DBusNotifier(QDBusConnection bus = QDBusConnection::sessionBus());

    void post(const std::string& identifier, const std::string& title, const std::string& body,
              bool withSound) override;

private Q_SLOTS:
    void notificationClosed(uint id, uint reason);

private:
    struct Message {
        QString title, body;
        bool withSound = false;
    };
    struct Shown {
        uint id = 0;  // the server's number, 0 until it answers
        bool awaitingId = false;
        std::optional<Message> next;  // posted while awaiting the id
    };

    void send(const std::string& identifier, const Message& message);

    QDBusConnection bus_;
    std::map<std::string, Shown> shown_;
    bool bodyMarkup_ = false;
    bool reportedFailure_ = false;
};

}  // namespace tarnel
