#pragma once

#include <QElapsedTimer>
#include <QLabel>
#include <QRect>
#include <QWidget>

#include "shell/popover/menu_bar_view.h"

namespace tarnel {

// The container of `MenuBarView`, in the form that suits what the desktop's tray can do.
class Popover final : public QWidget {
public:
    enum class Kind {
        // Frameless, at the tray icon, where the tray says where the icon is (X11 trays).
        popup,
        // An ordinary window titled "Tarnel" that the compositor places, for trays that cannot
        // say where their icon is (StatusNotifierItem hosts) and under Wayland, where no client
        // places its own window. It takes the focus and closes on Escape and when it loses it.
        popupWindow,
        // No tray at all: a window that stays until closed, and says how to come back.
        window,
    };

    // The form for a tray that is shown or not, whose icon lies at `icon` (empty where the
    // tray does not say), on a desktop whose compositor places every window itself.
    static Kind kindFor(bool trayShown, const QRect& icon, bool compositorPlacesWindows);

    Popover(Kind kind, MenuBarView* view);

    Kind kind() const { return kind_; }
    MenuBarView& view() { return *view_; }

    // Opens it in the form `kindFor` chooses from what the tray reports, focused.
    void open(bool trayShown, const QRect& icon);
    // What a click on the tray icon does: opens it, or closes it when it is open. A click on
    // the icon takes the focus from the popup window first, which closes it; that click does
    // not open it again.
    void toggle(bool trayShown, const QRect& icon);

protected:
    void showEvent(QShowEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void setKind(Kind kind);
    void closeOnFocusLoss();

    Kind kind_;
    MenuBarView* view_;
    QLabel* backgroundNote_;
    bool wasActive_ = false;
    QElapsedTimer sinceFocusLoss_;
};

}  // namespace tarnel
