#include "shell/popover/sync_indicator.h"

#include <QPainter>

#include "shell/icons/symbol_icon.h"
#include "shell/popover/popover_widgets.h"

namespace tarnel {

namespace {
constexpr int markSize = 14;
constexpr int framesPerTurn = 30;
}  // namespace

SyncIndicator::SyncIndicator(Mode mode) {
    setFixedSize(markSize, markSize);
    frameClock_.setInterval(1000 / framesPerTurn);
    connect(&frameClock_, &QTimer::timeout, this, [this] {
        rotation_ += 360.0 / framesPerTurn;
        if (rotation_ >= 360.0) rotation_ -= 360.0;
        update();
    });
    setMode(mode);
}

void SyncIndicator::setMode(Mode mode) {
    if (mode == mode_) return;
    mode_ = mode;
    if (mode != Mode::none) {
        const char* name = mode == Mode::downloading ? "arrow.down.circle.fill" : "arrow.2.circlepath";
        pixmap_ = tintedPixmap(symbolIcon(name), markSize, toneColor(Tone::blue), 2.0);
    }
    if (mode == Mode::syncing && isVisible())
        frameClock_.start();
    if (mode != Mode::syncing) {
        frameClock_.stop();
        rotation_ = 0;  // only the sync arrows turn
    }
    update();
}

void SyncIndicator::paintEvent(QPaintEvent*) {
    if (mode_ == Mode::none) return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.translate(markSize / 2.0, markSize / 2.0);
    painter.rotate(rotation_);
    painter.translate(-markSize / 2.0, -markSize / 2.0);
    painter.drawPixmap(0, 0, pixmap_);
}

void SyncIndicator::showEvent(QShowEvent* event) {
    if (mode_ == Mode::syncing) frameClock_.start();
    QWidget::showEvent(event);
}

void SyncIndicator::hideEvent(QHideEvent* event) {
    frameClock_.stop();
    QWidget::hideEvent(event);
}

}  // namespace tarnel
