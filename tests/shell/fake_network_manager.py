#!/usr/bin/python3
"""A stand-in for NetworkManager on the bus at argv[1] (given to the program as its system bus),
enough for Qt's network information: wired and online at start; SIGUSR1 takes the network away,
SIGUSR2 brings it back. Needs Debian's python3-dbus and python3-gi."""
import signal
import sys

import dbus
import dbus.service
from dbus.mainloop.glib import DBusGMainLoop
from gi.repository import GLib

NM = "org.freedesktop.NetworkManager"
PROPS = "org.freedesktop.DBus.Properties"
CONNECTED_GLOBAL, DISCONNECTED = 70, 20
CONNECTIVITY_FULL, CONNECTIVITY_NONE = 4, 1
ETHERNET = 1


class Properties(dbus.service.Object):
    def __init__(self, bus, path, interface, values):
        super().__init__(bus, path)
        self.interface, self.values = interface, values

    @dbus.service.method(PROPS, in_signature="ss", out_signature="v")
    def Get(self, interface, name):
        return self.values[name]

    @dbus.service.method(PROPS, in_signature="s", out_signature="a{sv}")
    def GetAll(self, interface):
        return self.values if interface == self.interface else {}

    @dbus.service.signal(PROPS, signature="sa{sv}as")
    def PropertiesChanged(self, interface, changed, invalidated):
        pass

    def change(self, **values):
        self.values.update(values)
        self.PropertiesChanged(self.interface, values, [])


def main():
    DBusGMainLoop(set_as_default=True)
    bus = dbus.bus.BusConnection(sys.argv[1])
    device = "/org/freedesktop/NetworkManager/Devices/1"
    active = "/org/freedesktop/NetworkManager/ActiveConnection/1"
    Properties(bus, device, NM + ".Device", {"DeviceType": dbus.UInt32(ETHERNET)})
    Properties(bus, active, NM + ".Connection.Active",
               {"Devices": dbus.Array([dbus.ObjectPath(device)], signature="o"),
                "Type": "802-3-ethernet"})
    manager = Properties(bus, "/org/freedesktop/NetworkManager", NM, {
        "State": dbus.UInt32(CONNECTED_GLOBAL),
        "Connectivity": dbus.UInt32(CONNECTIVITY_FULL),
        "PrimaryConnection": dbus.ObjectPath(active),
        "Metered": dbus.UInt32(0),
    })
    name = dbus.service.BusName(NM, bus, do_not_queue=True)  # noqa: F841 (held while we run)
    offline = lambda *_: manager.change(State=dbus.UInt32(DISCONNECTED),
                                        Connectivity=dbus.UInt32(CONNECTIVITY_NONE))
    online = lambda *_: manager.change(State=dbus.UInt32(CONNECTED_GLOBAL),
                                       Connectivity=dbus.UInt32(CONNECTIVITY_FULL))
    GLib.unix_signal_add(GLib.PRIORITY_DEFAULT, signal.SIGUSR1, lambda: offline() or True)
    GLib.unix_signal_add(GLib.PRIORITY_DEFAULT, signal.SIGUSR2, lambda: online() or True)
    print("ready", flush=True)
    GLib.MainLoop().run()


if __name__ == "__main__":
    main()
