#include "platform/qt/logind_inhibitor.h"

#include <cstdio>

#include <fcntl.h>
#include <unistd.h>

#include <QDBusMessage>
#include <QDBusUnixFileDescriptor>

namespace tarnel {

namespace {
// logind answers at once; a bus that hangs must not freeze the loop for the default 25 s.
constexpr int callTimeoutMs = 3000;
}  // namespace

LogindInhibitor::LogindInhibitor(QDBusConnection bus) : bus_(std::move(bus)) {}

LogindInhibitor::~LogindInhibitor() {
    for (const auto& [handle, fd] : held_)
        ::close(fd);
}

std::optional<std::uint32_t> LogindInhibitor::inhibit(const std::string& why) {
    auto call = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.login1"), QStringLiteral("/org/freedesktop/login1"),
        QStringLiteral("org.freedesktop.login1.Manager"), QStringLiteral("Inhibit"));
    call << QStringLiteral("sleep:idle") << QStringLiteral("Tarnel") << QString::fromStdString(why)
         << QStringLiteral("block");
    const QDBusMessage reply = bus_.call(call, QDBus::Block, callTimeoutMs);
    int fd = -1;
    if (reply.type() == QDBusMessage::ReplyMessage && !reply.arguments().isEmpty()) {
        const auto lock = qvariant_cast<QDBusUnixFileDescriptor>(reply.arguments().constFirst());
        // Our own copy: the reply's closes with it.
        if (lock.isValid())
            fd = ::fcntl(lock.fileDescriptor(), F_DUPFD_CLOEXEC, 0);
    }
    if (fd < 0) {
        // Asked again at the next trigger; said once.
        if (!reportedFailure_)
            std::fprintf(stderr, "Tarnel: logind would not hold off idle sleep: %s\n",
                         qPrintable(reply.errorMessage()));
        reportedFailure_ = true;
        return std::nullopt;
    }
    const std::uint32_t handle = nextHandle_++;
    held_[handle] = fd;
    return handle;
}

void LogindInhibitor::release(std::uint32_t handle) {
    auto it = held_.find(handle);
    if (it == held_.end())
        return;
    ::close(it->second);
    held_.erase(it);
}

}  // namespace tarnel
