#include "shell/popover/popover.h"

#include <QApplication>
#include <QKeyEvent>
#include <QScreen>
#include <QTimer>
#include <QVBoxLayout>

#include "shell/bridge/qt_text.h"
#include "shell/tray/popup_placement.h"

namespace tarnel {

namespace {

// A click on the tray icon reaches the program well within this time after the focus loss
// that the same click caused.
constexpr qint64 sameClickMs = 400;

bool compositorPlacesWindows() {
    return QGuiApplication::platformName().startsWith(QLatin1String("wayland"));
}

QPoint positionAtIcon(const QRect& icon, const QSize& size) {
    QScreen* screen = QGuiApplication::screenAt(icon.center());
    if (!screen) screen = QGuiApplication::primaryScreen();
    return popupPosition(icon, size, screen->availableGeometry());
}

}  // namespace

Popover::Kind Popover::kindFor(bool trayShown, const QRect& icon, bool compositorPlacesWindows) {
    if (!trayShown) return Kind::window;
    if (compositorPlacesWindows || icon.isEmpty()) return Kind::popupWindow;
    return Kind::popup;
}

Popover::Popover(Kind kind, MenuBarView* view)
    : kind_(kind),
      view_(view),
      backgroundNote_(new QLabel(
          ui("Tarnel keeps running in the background when you close this window. To open it "
             "again, launch Tarnel from the applications menu."))) {
    setWindowTitle(QStringLiteral("Tarnel"));
    setObjectName(QStringLiteral("popover"));
    setAttribute(Qt::WA_StyledBackground);
    backgroundNote_->setWordWrap(true);
    backgroundNote_->setContentsMargins(14, 10, 14, 4);
    backgroundNote_->setFixedWidth(MenuBarView::width);
    backgroundNote_->setFixedHeight(backgroundNote_->heightForWidth(MenuBarView::width));
    view->setFixedSize(MenuBarView::width, MenuBarView::height);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    // Fixed in both directions, so that no window manager offers to maximise it.
    layout->setSizeConstraint(QLayout::SetFixedSize);
    layout->addWidget(backgroundNote_);
    layout->addWidget(view);
    setKind(kind);
}

void Popover::setKind(Kind kind) {
    kind_ = kind;
    // Changing the flags hides the widget; callers show it again.
    setWindowFlags(kind == Kind::popup
                       ? Qt::Popup | Qt::FramelessWindowHint
                       : Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                             Qt::WindowCloseButtonHint);
    setStyleSheet(kind == Kind::popup
                      ? QStringLiteral("QWidget#popover { border: 1px solid rgba(0,0,0,0.3); }")
                      : QString());
    backgroundNote_->setVisible(kind == Kind::window);
    layout()->activate();
}

void Popover::open(bool trayShown, const QRect& icon) {
    const Kind kind = kindFor(trayShown, icon, compositorPlacesWindows());
    if (kind != kind_) setKind(kind);
    if (kind_ == Kind::popup) move(positionAtIcon(icon, size()));
    show();
    raise();
    activateWindow();
}

void Popover::toggle(bool trayShown, const QRect& icon) {
    if (isVisible()) {
        hide();
        return;
    }
    if (sinceFocusLoss_.isValid() && sinceFocusLoss_.elapsed() < sameClickMs) return;
    open(trayShown, icon);
}

void Popover::showEvent(QShowEvent* event) {
    wasActive_ = false;
    view_->appeared();
    QWidget::showEvent(event);
}

void Popover::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape && kind_ != Kind::window) {
        hide();
        return;
    }
    QWidget::keyPressEvent(event);
}

void Popover::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    // Qt's own title bar under Wayland offers Maximize whatever the size hints say.
    if (event->type() == QEvent::WindowStateChange && isMaximized()) {
        setWindowState(windowState() & ~Qt::WindowMaximized);
        return;
    }
    if (event->type() != QEvent::ActivationChange || kind_ != Kind::popupWindow) return;
    if (isActiveWindow())
        wasActive_ = true;
    else if (wasActive_)
        // Decided once the loop is back: a menu of its own that takes the focus keeps it open.
        QTimer::singleShot(0, this, &Popover::closeOnFocusLoss);
}

void Popover::closeOnFocusLoss() {
    if (!isVisible() || isActiveWindow() || QApplication::activePopupWidget()) return;
    hide();
    sinceFocusLoss_.start();
}

}  // namespace tarnel
