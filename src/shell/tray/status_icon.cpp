#include "shell/tray/status_icon.h"

#include <QPainter>
#include <QPixmap>
#include <QSvgRenderer>

#include "shell/bridge/qt_text.h"
#include "shell/icons/symbol_icon.h"
#include "shell/tray/tray_host.h"

namespace tarnel {

namespace {

// Frames are drawn at twice the panel's usual 22 pixels, so that they stay sharp at 2×.
constexpr int frameSize = 44;
// The middle of the cloud's body in the 22-unit artwork, which the arrows turn about.
constexpr QPointF turnCentre(11.2 * frameSize / 22.0, 13.3 * frameSize / 22.0);

QImage renderLayer(const char* name) {
    QSvgRenderer renderer(QStringLiteral(":/icons/tray/%1.svg").arg(QLatin1String(name)));
    if (!renderer.isValid()) return {};
    QImage image(frameSize, frameSize, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    renderer.render(&painter);
    return image;
}

}  // namespace

StatusIcon::StatusIcon(TrayActions actions, std::function<void()> onActivated)
    : onActivated_(std::move(onActivated)) {
    connect(menu_.addAction(ui("Open Tarnel")), &QAction::triggered, this,
            [open = actions.open] { open(); });
    connect(menu_.addAction(ui("Sync Now")), &QAction::triggered, this,
            [sync = actions.syncNow] { sync(); });
    pauseAction_ = menu_.addAction(ui("Pause"));
    connect(pauseAction_, &QAction::triggered, this, [toggle = actions.togglePause] { toggle(); });
    menu_.addSeparator();
    connect(menu_.addAction(ui("Settings...")), &QAction::triggered, this,
            [settings = actions.settings] { settings(); });
    menu_.addSeparator();
    connect(menu_.addAction(ui("Quit")), &QAction::triggered, this,
            [quit = actions.quit] { quit(); });

    frameClock_.setInterval(1000 / framesPerSecond);
    connect(&frameClock_, &QTimer::timeout, this, &StatusIcon::renderSyncFrame);

    setIcon(artworkIcon("Navbar-Basic"));
    if (trayHostExists())
        showInTray();
    else
        waitForTray();
}

void StatusIcon::showInTray() {
    tray_ = std::make_unique<QSystemTrayIcon>(current_);
    tray_->setContextMenu(&menu_);
    tray_->setToolTip(QStringLiteral("Tarnel"));
    connect(tray_.get(), &QSystemTrayIcon::activated, this, [this](QSystemTrayIcon::ActivationReason why) {
        if (why == QSystemTrayIcon::Trigger || why == QSystemTrayIcon::DoubleClick) onActivated_();
    });
    tray_->show();
}

void StatusIcon::waitForTray() {
    trayWatch_.setInterval(2000);
    connect(&trayWatch_, &QTimer::timeout, this, [this] {
        if (!trayHostExists()) return;
        trayWatch_.stop();
        showInTray();
        Q_EMIT trayAppeared();
    });
    trayWatch_.start();
}

void StatusIcon::setIcon(const QIcon& icon) {
    if (icon.isNull()) return;  // missing artwork leaves the icon as it was
    current_ = icon;
    if (tray_) tray_->setIcon(icon);
}

void StatusIcon::setPaused(bool paused) {
    pauseAction_->setText(paused ? ui("Resume") : ui("Pause"));
}

void StatusIcon::updateStatusIcon(ConnectionState state, bool paused, bool downloading) {
    image_ = statusIconImage(state, paused, downloading);
    setPaused(paused);
    if (image_ == StatusIconImage::syncing) {
        startSyncAnimation();
        return;
    }
    stopSyncAnimation();
    setIcon(artworkIcon(artworkName(image_)));
}

void StatusIcon::startSyncAnimation() {
    if (frameClock_.isActive()) return;
    syncAnimationAngle_ = 0;
    cachedCloud_ = renderLayer("Navbar-CloudAlone");
    cachedArrows_ = renderLayer("Navbar-SyncArrows");
    if (cachedCloud_.isNull() || cachedArrows_.isNull()) return;
    renderSyncFrame();
    frameClock_.start();
}

void StatusIcon::stopSyncAnimation() {
    frameClock_.stop();
    syncAnimationAngle_ = 0;
    cachedCloud_ = {};
    cachedArrows_ = {};
}

void StatusIcon::renderSyncFrame() {
    if (cachedCloud_.isNull() || cachedArrows_.isNull()) return;
    syncAnimationAngle_ += degreesPerFrame;
    if (syncAnimationAngle_ >= 360.0) syncAnimationAngle_ -= 360.0;
    QImage canvas(frameSize, frameSize, QImage::Format_ARGB32_Premultiplied);
    canvas.fill(Qt::transparent);
    QPainter painter(&canvas);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(0, 0, cachedCloud_);
    // Qt's y axis points down, so a positive angle turns clockwise.
    painter.translate(turnCentre);
    painter.rotate(syncAnimationAngle_);
    painter.translate(-turnCentre);
    painter.drawImage(0, 0, cachedArrows_);
    painter.end();
    auto frame = QPixmap::fromImage(canvas);
    frame.setDevicePixelRatio(2.0);
    setIcon(QIcon(frame));
}

}  // namespace tarnel
