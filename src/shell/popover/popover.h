#pragma once

#include <QWidget>

#include "shell/popover/menu_bar_view.h"

namespace tarnel {

// The frameless popup that holds `MenuBarView`, opened from the tray icon; it closes when it
// loses focus. Without a tray it is a small ordinary window instead, so the program stays
// reachable.
class Popover final : public QWidget {
public:
    enum class Kind { popup, window };

    Popover(Kind kind, MenuBarView* view);

    Kind kind() const { return kind_; }
    MenuBarView& view() { return *view_; }
    // Shows it with its top-left corner at `position` (a popup) or where the window manager
    // puts it (a window).
    void showAt(const QPoint& position);

protected:
    void showEvent(QShowEvent* event) override;

private:
    Kind kind_;
    MenuBarView* view_;
};

}  // namespace tarnel
