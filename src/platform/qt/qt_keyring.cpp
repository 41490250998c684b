#include "platform/qt/qt_keyring.h"

#include <qt6keychain/keychain.h>

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QEventLoop>
#include <QTimer>

namespace tarnel {

namespace {
const QString serviceName = QStringLiteral("Tarnel");
}  // namespace

bool QtKeyring::isAvailable() const {
    const auto bus = QDBusConnection::sessionBus();
    if (!bus.isConnected() || !bus.interface()) return false;
    const auto owned = bus.interface()->isServiceRegistered(QStringLiteral("org.freedesktop.secrets"));
    return owned.isValid() && owned.value();
}

void QtKeyring::read(const std::string& key, Handler done) {
    enqueue(new QKeychain::ReadPasswordJob(serviceName, &context_), key, std::move(done));
}

void QtKeyring::write(const std::string& key, const std::string& secret, Handler done) {
    auto* job = new QKeychain::WritePasswordJob(serviceName, &context_);
    job->setTextData(QString::fromStdString(secret));
    enqueue(job, key, std::move(done));
}

void QtKeyring::remove(const std::string& key, Handler done) {
    enqueue(new QKeychain::DeletePasswordJob(serviceName, &context_), key, std::move(done));
}

void QtKeyring::enqueue(QKeychain::Job* job, const std::string& key, Handler done) {
    job->setAutoDelete(false);
    job->setKey(QString::fromStdString(key));
    QObject::connect(job, &QKeychain::Job::finished, &context_,
                     [this](QKeychain::Job* j) { finished(j); });
    queue_.push_back({job, std::move(done)});
    startNext();
}

void QtKeyring::startNext() {
    if (running_ || queue_.empty()) return;
    running_ = true;
    queue_.front().job->start();
}

void QtKeyring::finished(QKeychain::Job* job) {
    Pending answered = std::move(queue_.front());
    queue_.pop_front();
    running_ = false;
    Reply reply;
    const bool deleting = qobject_cast<QKeychain::DeletePasswordJob*>(job) != nullptr;
    reply.ok = job->error() == QKeychain::NoError ||
               (deleting && job->error() == QKeychain::EntryNotFound);
    if (!reply.ok)
        reply.error = job->error() == QKeychain::EntryNotFound
                          ? "the keyring holds no password for it"
                          : job->errorString().toStdString();
    else if (auto* reading = qobject_cast<QKeychain::ReadPasswordJob*>(job))
        reply.secret = reading->textData().toStdString();
    job->deleteLater();
    // The answer goes out before the next job starts: answers keep the order of the jobs, also
    // when a job answers at once.
    answered.done(reply);
    startNext();
    if (queue_.empty() && waiting_) waiting_->quit();
}

void QtKeyring::finish(std::chrono::milliseconds limit) {
    if (queue_.empty()) return;
    QEventLoop waiting;
    QTimer::singleShot(limit, &waiting, &QEventLoop::quit);
    waiting_ = &waiting;
    waiting.exec();
    waiting_ = nullptr;
}

}  // namespace tarnel
