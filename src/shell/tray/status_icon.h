#pragma once

#include <QAction>
#include <QImage>
#include <QMenu>
#include <QObject>
#include <QSystemTrayIcon>
#include <QTimer>
#include <functional>
#include <memory>

#include "shell/tray/status_icon_rules.h"

namespace tarnel {

// What the icon's context menu does; some panels only ever show this menu.
struct TrayActions {
    std::function<void()> open, syncNow, togglePause, settings, quit;
};

// The status icon in the desktop's tray: its five faces, the turning arrows while the fleet
// syncs, and its context menu. A left click calls `onActivated`. When no tray exists yet, the
// icon waits for one and shows itself once it appears.
class StatusIcon final : public QObject {
    Q_OBJECT
public:
    // The arrows turn 180° a second: 15 frames of 12°. Each frame is a new picture sent to the
    // tray, so fewer frames cost less than following the display's refresh.
    static constexpr int framesPerSecond = 15;
    static constexpr double degreesPerFrame = 12.0;

    StatusIcon(TrayActions actions, std::function<void()> onActivated);

    void updateStatusIcon(ConnectionState state, bool paused, bool downloading);
    void startSyncAnimation();
    void stopSyncAnimation();
    void renderSyncFrame();

    StatusIconImage image() const { return image_; }
    bool isAnimating() const { return frameClock_.isActive(); }
    double syncAnimationAngle() const { return syncAnimationAngle_; }
    // The icon's rectangle on screen; empty where the tray does not tell.
    QRect geometry() const { return tray_ ? tray_->geometry() : QRect(); }
    bool isVisible() const { return tray_ && tray_->isVisible(); }
    // The label of the menu's pause entry follows the fleet: "Pause" or "Resume".
    void setPaused(bool paused);
    const QIcon& currentIcon() const { return current_; }

Q_SIGNALS:
    // The tray appeared after start; the icon is now shown in it.
    void trayAppeared();

private:
    void setIcon(const QIcon& icon);
    void waitForTray();
    // Made only once a tray exists: Qt settles how it reaches the tray when the icon is made.
    void showInTray();

    std::unique_ptr<QSystemTrayIcon> tray_;
    QMenu menu_;
    QAction* pauseAction_ = nullptr;
    QTimer frameClock_;
    QTimer trayWatch_;
    std::function<void()> onActivated_;
    StatusIconImage image_ = StatusIconImage::basic;
    QIcon current_;
    double syncAnimationAngle_ = 0;
    QImage cachedCloud_;
    QImage cachedArrows_;
};

}  // namespace tarnel
