#pragma once

#include <cstdint>
#include <map>

#include <QDBusConnection>

#include "platform/sleep_inhibitor.h"

namespace tarnel {

// Holds idle sleep off through logind: Inhibit("sleep:idle", "Tarnel", why, "block") hands out a
// file descriptor, and the hold lasts while it stays open. The system bus in the application;
// tests pass a session bus with a stand-in for logind.
class LogindInhibitor final : public SleepInhibitor {
public:
    explicit LogindInhibitor(QDBusConnection bus = QDBusConnection::systemBus());
    ~LogindInhibitor() override;

    LogindInhibitor(const LogindInhibitor&) = delete;
    LogindInhibitor& operator=(const LogindInhibitor&) = delete;

    std::optional<std::uint32_t> inhibit(const std::string& why) override;
    void release(std::uint32_t handle) override;

private:
    QDBusConnection bus_;
    std::map<std::uint32_t, int> held_;  // handle to our descriptor of the lock
    std::uint32_t nextHandle_ = 1;
    bool reportedFailure_ = false;
};

}  // namespace tarnel
