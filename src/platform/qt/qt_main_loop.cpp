#include "platform/qt/qt_main_loop.h"

#include <QCoreApplication>
#include <QMetaObject>
#include <QPointer>
#include <QTimer>

namespace tarnel {

namespace {
class QtTimer final : public Timer {
public:
    explicit QtTimer(QTimer* timer) : timer_(timer) {}
    ~QtTimer() override {
        if (timer_) {
            timer_->stop();
            timer_->deleteLater();  // may be destroyed from inside its own timeout
        }
    }

private:
    QPointer<QTimer> timer_;
};
}  // namespace

QtMainLoop::QtMainLoop() = default;

QtMainLoop::~QtMainLoop() {
    destroyDetached();
}

void QtMainLoop::abandonWork() {
    // First: a posted resumption of a frame freed below must never run.
    QCoreApplication::removePostedEvents(&context_);
    destroyDetached();
}

void QtMainLoop::post(std::function<void()> fn) {
    QMetaObject::invokeMethod(&context_, std::move(fn), Qt::QueuedConnection);
}

std::unique_ptr<Timer> QtMainLoop::startTimer(Duration interval, bool repeats,
                                              std::function<void()> fire) {
    auto* timer = new QTimer(&context_);
    timer->setTimerType(Qt::PreciseTimer);
    timer->setSingleShot(!repeats);
    timer->setInterval(interval);
    QObject::connect(timer, &QTimer::timeout, &context_, std::move(fire));
    timer->start();
    return std::make_unique<QtTimer>(timer);
}

}  // namespace tarnel
