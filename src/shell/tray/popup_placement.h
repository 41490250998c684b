#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>

namespace tarnel {

// Where a popup of `size` opens for a tray icon at `icon`: centred on it, on the side of it that
// faces the middle of the screen (below an icon in a top panel, above one in a bottom panel),
// and always inside `available`, the screen's area without its panels.
QPoint popupPosition(const QRect& icon, const QSize& size, const QRect& available);

}  // namespace tarnel
