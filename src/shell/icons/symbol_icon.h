#pragma once

#include <QColor>
#include <QIcon>
#include <QPixmap>

namespace tarnel {

// The small pictures of the popover and the windows by their names ("wifi.slash", "gear"):
// the desktop's icon theme where it has a match, else a drawing of our own, so that nothing
// depends on a theme being installed.
QIcon symbolIcon(const char* name);

// `icon` at `size` device-independent pixels, recoloured in `color` where it is not clear.
QPixmap tintedPixmap(const QIcon& icon, int size, const QColor& color, qreal devicePixelRatio);

// The program's own artwork by name ("Navbar-Basic", "DropdownLogo"); a null icon if unknown.
QIcon artworkIcon(const char* name);

}  // namespace tarnel
