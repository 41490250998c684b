#pragma once

namespace tarnel {

// Whether the desktop has a tray to show the status icon in now: a StatusNotifierItem host
// (KDE Plasma, GNOME with the AppIndicator extension), or under X11 an old-style tray.
//
// Qt decides once per process whether it talks to a StatusNotifierItem host, at its first look,
// and never looks again: a program started before the panel (an autostart racing plasmashell at
// login) would have no icon for good. So the host is asked here over D-Bus, and Qt only once it
// is known to be there.
bool trayHostExists();

}  // namespace tarnel
