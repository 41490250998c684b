#!/usr/bin/python3
"""What scripts/kde-screenshots asks of a running KWin and Plasma, over the session bus.

    kwin_session.py shot FILE.png     the whole workspace (org.kde.KWin.ScreenShot2)
    kwin_session.py windows LOG       JSON list of the windows, as KWin sees them
    kwin_session.py activate TITLE LOG  gives the focus to the window titled TITLE
    kwin_session.py items             JSON list of the registered StatusNotifierItems: their
                                      service, object path, process id, Id and Title
    kwin_session.py pointer X Y       moves the pointer to X,Y (org_kde_kwin_fake_input)

KWin answers scripts only in its own log, so `windows` and `activate` run a small KWin script
that prints a marked line, and read it from LOG, KWin's standard error (started with
QT_LOGGING_RULES="kwin_scripting=true").
"""

import json
import os
import socket
import struct
import subprocess
import sys
import tempfile
import time
import uuid

import dbus


bus = dbus.SessionBus()


# KWin gives screenshots over D-Bus to the programs whose desktop entry asks for them, found
# through its service cache.
ENTRY = """[Desktop Entry]
Type=Application
Name=Screenshots of this session
Exec=%s
NoDisplay=true
X-KDE-DBUS-Restricted-Interfaces=org.kde.KWin.ScreenShot2
X-KDE-Wayland-Interfaces=org_kde_kwin_fake_input
"""


def write_entry():
    """Writes the entry under a name not used before, so that KWin sees a new file."""
    folder = os.path.join(os.environ["HOME"], ".local/share/applications")
    os.makedirs(folder, exist_ok=True)
    for old in os.listdir(folder):
        if old.startswith("tarnel-kwin-session"):
            os.unlink(os.path.join(folder, old))
    name = "tarnel-kwin-session-%s.desktop" % uuid.uuid4().hex[:8]
    with open(os.path.join(folder, name), "w") as f:
        f.write(ENTRY % os.path.realpath(sys.executable))


def shot(path):
    kwin = bus.get_object("org.kde.KWin", "/org/kde/KWin/ScreenShot2")
    # A file, not a pipe: KWin may write the whole picture before it answers, and a pipe's
    # buffer is far smaller than a picture. It may also answer first and write after.
    with tempfile.TemporaryFile() as f:
        for attempt in range(120):
            try:
                reply = kwin.CaptureWorkspace({"native-resolution": True}, dbus.types.UnixFd(f.fileno()),
                                              dbus_interface="org.kde.KWin.ScreenShot2", timeout=20)
                break
            except dbus.exceptions.DBusException as e:
                if not e.get_dbus_name().endswith("NoAuthorized") or attempt == 119:
                    raise
                # KWin reads its cache afresh when the applications folder changes, a little
                # later; a cache rebuilt meanwhile by another program (kded at its start) it
                # does not notice.
                if attempt % 20 == 0:
                    write_entry()
                time.sleep(0.5)
        width, height, stride = (int(reply[k]) for k in ("width", "height", "stride"))
        for _ in range(100):
            if os.fstat(f.fileno()).st_size >= stride * height:
                break
            time.sleep(0.1)
        f.seek(0)
        data = f.read()
    # QImage's 32-bit formats lie in memory as B, G, R, A on this machine.
    raw = b"".join(data[y * stride: y * stride + width * 4] for y in range(height))
    subprocess.run(["convert", "-size", f"{width}x{height}", "-depth", "8", "bgra:-", path],
                   input=raw, check=True)


WINDOWS_JS = """
var out = [];
var all = workspace.clientList();
for (var i = 0; i < all.length; ++i) {
    var c = all[i];
    if (!c.normalWindow && !c.dialog && !c.popupWindow) continue;
    var g = c.frameGeometry;
    out.push({title: c.caption, appId: c.desktopFileName, resourceClass: String(c.resourceClass),
              active: c.active, x: g.x, y: g.y, w: g.width, h: g.height,
              maximizable: c.maximizable, minimized: c.minimized, popup: c.popupWindow});
    %s
}
print("%s " + JSON.stringify(out));
"""


def run_script(action, log):
    """Runs a KWin script over every window and returns the windows it printed."""
    mark = "tarnel-" + uuid.uuid4().hex
    with tempfile.NamedTemporaryFile("w", suffix=".js", delete=False) as f:
        f.write(WINDOWS_JS % (action, mark))
    scripting = bus.get_object("org.kde.KWin", "/Scripting")
    try:
        # Two methods share the name; the file and plugin name one.
        bus.call_blocking("org.kde.KWin", "/Scripting", "org.kde.kwin.Scripting", "loadScript",
                          "ss", (f.name, mark))
        # Runs the scripts loaded and not yet running: this one.
        scripting.start(dbus_interface="org.kde.kwin.Scripting")
        for _ in range(50):
            with open(log, errors="replace") as lines:
                for line in lines:
                    if mark + " " in line:
                        return json.loads(line.split(mark + " ", 1)[1])
            time.sleep(0.1)
        raise SystemExit("kwin_session: KWin's script printed nothing in " + log)
    finally:
        scripting.unloadScript(mark, dbus_interface="org.kde.kwin.Scripting")
        os.unlink(f.name)


def items():
    watcher = bus.get_object("org.kde.StatusNotifierWatcher", "/StatusNotifierWatcher")
    registered = watcher.Get("org.kde.StatusNotifierWatcher", "RegisteredStatusNotifierItems",
                             dbus_interface="org.freedesktop.DBus.Properties")
    daemon = bus.get_object("org.freedesktop.DBus", "/org/freedesktop/DBus")
    found = []
    for entry in map(str, registered):
        # "service/path", or "service@path" from some hosts
        service, _, path = entry.partition("/") if "/" in entry else entry.partition("@")
        path = "/" + path.lstrip("/")
        item = bus.get_object(service, path)
        properties = item.GetAll("org.kde.StatusNotifierItem",
                                 dbus_interface="org.freedesktop.DBus.Properties")
        found.append({"service": service, "path": path,
                      "pid": int(daemon.GetConnectionUnixProcessID(service, dbus_interface="org.freedesktop.DBus")),
                      "id": str(properties.get("Id", "")), "title": str(properties.get("Title", ""))})
    return found


class WaylandClient:
    """Just enough of the Wayland wire protocol to bind one global and send it requests."""

    def __init__(self):
        self.sock = socket.socket(socket.AF_UNIX, socket.SOCK_STREAM)
        self.sock.connect(os.path.join(os.environ["XDG_RUNTIME_DIR"], os.environ["WAYLAND_DISPLAY"]))
        self.last_id = 1  # wl_display
        self.received = b""

    def new_id(self):
        self.last_id += 1
        return self.last_id

    def send(self, target, opcode, *args):
        payload = b""
        for arg in args:
            if isinstance(arg, str):
                data = arg.encode() + b"\0"
                payload += struct.pack("=I", len(data)) + data + b"\0" * (-len(data) % 4)
            else:
                payload += struct.pack("=I", arg & 0xFFFFFFFF)
        self.sock.sendall(struct.pack("=II", target, (8 + len(payload)) << 16 | opcode) + payload)

    def roundtrip(self):
        """The events that came before the compositor answered a wl_display.sync."""
        callback = self.new_id()
        self.send(1, 0, callback)
        events = []
        while True:
            while len(self.received) < 8:
                self.received += self.sock.recv(4096) or sys.exit("kwin_session: KWin hung up")
            target, size_opcode = struct.unpack_from("=II", self.received)
            size = size_opcode >> 16
            while len(self.received) < size:
                self.received += self.sock.recv(4096) or sys.exit("kwin_session: KWin hung up")
            body, self.received = self.received[8:size], self.received[size:]
            if target == callback:
                return events
            if target == 1 and size_opcode & 0xFFFF == 0:
                sys.exit("kwin_session: Wayland protocol error: %r" % body)
            events.append((target, size_opcode & 0xFFFF, body))

    def bind(self, interface, version):
        registry = self.new_id()
        self.send(1, 1, registry)
        for target, opcode, body in self.roundtrip():
            if target != registry or opcode != 0:
                continue
            name, length = struct.unpack_from("=II", body)
            if body[8:8 + length - 1].decode() == interface:
                bound = self.new_id()
                self.send(registry, 0, name, interface, version, bound)
                return bound
        sys.exit("kwin_session: KWin offers no %s to this program (its desktop entry must "
                 "list it in X-KDE-Wayland-Interfaces)" % interface)


def pointer(x, y):
    client = WaylandClient()
    fake_input = client.bind("org_kde_kwin_fake_input", 4)
    client.send(fake_input, 0, "kwin_session", "screenshots of this session")  # authenticate
    client.roundtrip()
    client.send(fake_input, 9, int(x * 256), int(y * 256))  # pointer_motion_absolute, fixed
    client.roundtrip()
    # KWin drops the device with its client; the surface under the pointer must see it stay.
    time.sleep(1)


def main(argv):
    command = argv[1] if len(argv) > 1 else ""
    if command == "shot" and len(argv) == 3:
        shot(argv[2])
    elif command == "windows" and len(argv) == 3:
        print(json.dumps(run_script("", argv[2])))
    elif command == "activate" and len(argv) == 4:
        action = "if (c.caption == %s) workspace.activeClient = c;" % json.dumps(argv[2])
        run_script(action, argv[3])
    elif command == "pointer" and len(argv) == 4:
        pointer(float(argv[2]), float(argv[3]))
    elif command == "items" and len(argv) == 2:
        print(json.dumps(items()))
    else:
        sys.exit(__doc__)


if __name__ == "__main__":
    main(sys.argv)
