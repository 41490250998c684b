#include "shell/tray/popup_placement.h"

#include <algorithm>

namespace tarnel {

QPoint popupPosition(const QRect& icon, const QSize& size, const QRect& available) {
    const bool opensDownward = icon.center().y() < available.center().y();
    int x = icon.center().x() - size.width() / 2;
    int y = opensDownward ? icon.bottom() + 1 : icon.top() - size.height();
    // Wider or taller than the area: its top-left corner stays visible.
    x = std::max(available.left(), std::min(x, available.right() + 1 - size.width()));
    y = std::max(available.top(), std::min(y, available.bottom() + 1 - size.height()));
    return {x, y};
}

}  // namespace tarnel
