#pragma once

#include <QObject>
#include <QString>
#include <deque>

#include "platform/keyring.h"

class QEventLoop;

namespace QKeychain {
class Job;
}

namespace tarnel {

// The Secret Service on the session bus, through QtKeychain: entries under the service name
// "Tarnel", keyed as asked. One job runs at a time, the next when it has answered.
class QtKeyring final : public Keyring {
public:
    // A session bus with a current owner of org.freedesktop.secrets. An owner that the bus would
    // only start on demand does not count: started outside a desktop session it would hold a
    // locked keyring nobody can open.
    bool isAvailable() const override;
    void read(const std::string& key, Handler done) override;
    void write(const std::string& key, const std::string& secret, Handler done) override;
    void remove(const std::string& key, Handler done) override;
    void finish(std::chrono::milliseconds limit) override;

private:
    struct Pending {
        QKeychain::Job* job;
        Handler done;
    };

    void enqueue(QKeychain::Job* job, const std::string& key, Handler done);
    void startNext();
    void finished(QKeychain::Job* job);

    QObject context_;  // parent of the jobs, receiver of their answers
    std::deque<Pending> queue_;  // the front one runs, once started
    bool running_ = false;
    QEventLoop* waiting_ = nullptr;  // finish() running
};

}  // namespace tarnel
