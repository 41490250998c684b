#include "platform/qt/logind_inhibitor.h"

#include <mutex>
#include <vector>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <poll.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusUnixFileDescriptor>
#include <QThread>

#include "fleet_fixture.h"

namespace tarnel::testing {

// Stands in for logind: owns org.freedesktop.login1 on its own connection to the session bus
// and hands out the write end of a pipe for each lock, keeping the read end to see it closed.
// Lives on its own thread, since the inhibitor's call blocks the test's.
class LogindStandIn : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.login1.Manager")
public:
    struct Lock {
        QString what, who, why, mode;
        int readEnd;
    };

    ~LogindStandIn() override {
        for (const auto& lock : locks_)
            ::close(lock.readEnd);
    }
    std::vector<Lock> locks() const {
        std::lock_guard guard(mutex_);
        return locks_;
    }
    // Whether every copy of lock `i`'s descriptor is closed, waiting up to `waitMs` for it.
    bool released(std::size_t i, int waitMs = 0) const {
        pollfd p{locks().at(i).readEnd, POLLIN, 0};
        return ::poll(&p, 1, waitMs) == 1 && (p.revents & POLLHUP);
    }

public Q_SLOTS:
    QDBusUnixFileDescriptor Inhibit(const QString& what, const QString& who, const QString& why,
                                    const QString& mode) {
        int ends[2];
        if (::pipe2(ends, O_CLOEXEC) != 0)
            return {};
        QDBusUnixFileDescriptor lock(ends[1]);  // a copy of its own
        ::close(ends[1]);
        std::lock_guard guard(mutex_);
        locks_.push_back({what, who, why, mode, ends[0]});
        return lock;
    }

private:
    mutable std::mutex mutex_;
    std::vector<Lock> locks_;
};

namespace {

using namespace std::chrono_literals;

constexpr int closeGuardMs = 10'000;  // a failure guard only: the close is seen at once

struct LogindInhibitorTest : FleetFixture {
    int argc = 1;
    char name[32] = "logind_inhibitor_test";
    char* argv[2] = {name, nullptr};
    QCoreApplication app{argc, argv};
    QThread standInThread;
    LogindStandIn* standIn = new LogindStandIn;
    QDBusConnection standInBus =
        QDBusConnection::connectToBus(QDBusConnection::SessionBus, QStringLiteral("logind"));

    void SetUp() override {
        ASSERT_TRUE(standInBus.isConnected()) << "run under dbus-run-session";
        standIn->moveToThread(&standInThread);
        standInThread.start();
        ASSERT_TRUE(standInBus.registerObject(QStringLiteral("/org/freedesktop/login1"), standIn,
                                              QDBusConnection::ExportAllSlots));
        ASSERT_TRUE(standInBus.registerService(QStringLiteral("org.freedesktop.login1")));
    }
    void TearDown() override {
        standInBus.unregisterObject(QStringLiteral("/org/freedesktop/login1"));
        standInThread.quit();
        standInThread.wait();
        delete standIn;
    }
};

TEST_F(LogindInhibitorTest,
       ALockIsHeldFromTwoSecondsIntoSyncingUntilTwoSecondsAfterOrTheSettingGoes) {
    LogindInhibitor logind(QDBusConnection::sessionBus());
    inhibitor = &logind;
    settings.setPreventSleepDuringDownloads(true);
    auto manager = makeManager();
    manager->addConnection(connection("A", "a"));
    servers.at("a")->listingDelay = 1s;
    loop.advance(40s);  // a poll shorter than two seconds takes nothing
    servers.at("a")->listingDelay = 10s;

    loop.advance(21s);  // polling since 60 s
    EXPECT_TRUE(standIn->locks().empty());
    loop.advance(1s);
    ASSERT_EQ(standIn->locks().size(), 1u);
    const auto lock = standIn->locks()[0];
    EXPECT_EQ(
        (QStringList{lock.what, lock.who, lock.why, lock.mode}),
        (QStringList{QStringLiteral("sleep:idle"), QStringLiteral("Tarnel"),
                     QStringLiteral("Tarnel is downloading files"), QStringLiteral("block")}));
    EXPECT_TRUE(hasLogLine("INFO Sleep prevention activated \u2014 downloading"));

    loop.advance(9s);  // the poll ended at 70 s
    EXPECT_FALSE(standIn->released(0));
    loop.advance(1s);
    EXPECT_TRUE(standIn->released(0, closeGuardMs));
    EXPECT_FALSE(manager->isPreventingSleep()());

    loop.advance(20s);  // the next poll, from 90 s, takes a new lock at 92 s
    ASSERT_EQ(standIn->locks().size(), 2u);
    EXPECT_FALSE(standIn->released(1));
    settings.setPreventSleepDuringDownloads(false);
    EXPECT_TRUE(standIn->released(1, closeGuardMs));
    EXPECT_FALSE(manager->isPreventingSleep()());
    EXPECT_EQ(countLogLines("INFO Sleep prevention released"), 2);
}

}  // namespace
}  // namespace tarnel::testing

#include "logind_inhibitor_test.moc"
