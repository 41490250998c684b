#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>

namespace tarnel {

// Where a popup of `size` opens for a tray icon: centred on the icon's rectangle, on the side of
// it that faces the middle of the screen (below an icon in a top panel, above one in a bottom
// panel). Trays that report no rectangle (an empty `icon`) get the pointer's position instead.
// The result always lies inside `available`, the screen's area without its panels.
QPoint popupPosition(const QRect& icon, const QPoint& pointer, const QSize& size,
                     const QRect& available);

}  // namespace tarnel
