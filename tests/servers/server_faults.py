"""Faults the C++ fixture switches at any time through a JSON control file.

The file is replaced atomically by the writer and guarded by an flock on a
sibling lock file, because taking a one-shot fault rewrites it from here.
"""

import contextlib
import fcntl
import json
import os


class Faults:
    def __init__(self, state_dir):
        self._path = os.path.join(state_dir, "faults.json")
        self._lock_path = os.path.join(state_dir, "faults.lock")

    @contextlib.contextmanager
    def _locked(self, mode):
        with open(self._lock_path, "a") as lock:
            fcntl.flock(lock, mode)
            yield

    def _read(self):
        try:
            with open(self._path, encoding="utf-8") as f:
                return json.load(f)
        except FileNotFoundError:
            return {}

    def current(self):
        with self._locked(fcntl.LOCK_SH):
            return self._read()

    def refuse_login(self):
        return bool(self.current().get("refuse_login"))

    def refuse_delete(self):
        return bool(self.current().get("refuse_delete"))

    def corrupt_checksums(self):
        return bool(self.current().get("corrupt_checksums"))

    def refuse_mlsd(self):
        return bool(self.current().get("refuse_mlsd"))

    def take_growth(self, name):
        """The bytes to append to `name` before this download, consumed once."""
        with self._locked(fcntl.LOCK_EX):
            faults = self._read()
            grow = faults.get("grow_on_download") or {}
            if name not in grow:
                return None
            # Each code point stands for one byte, so binary content survives JSON.
            data = grow.pop(name).encode("latin-1")
            temporary = self._path + ".taken"
            with open(temporary, "w", encoding="utf-8") as f:
                json.dump(faults, f)
            os.replace(temporary, self._path)
            return data


# How long a stalled download waits before it goes on: longer than any client waits.
STALL_SECONDS = 3600


class DownloadLimits:
    """The cut, stall and throttle in force for one download, fixed when it starts."""

    def __init__(self, faults):
        current = faults.current()
        self.cut_after = current.get("cut_after_bytes")
        self.stall_after = current.get("stall_after_bytes")
        self.rate = current.get("slow_bytes_per_second") or 0
        self.sent = 0

    def allowed(self, wanted):
        """How many of `wanted` bytes may go out now; 0 once the cut or stall is reached."""
        for end in (self.cut_after, self.stall_after):
            if end is not None:
                wanted = min(wanted, max(0, end - self.sent))
        if self.rate:
            # Small slices keep a throttled stream smooth rather than bursty.
            wanted = min(wanted, max(1, self.rate // 10))
        return wanted

    def must_cut(self):
        return self.cut_after is not None and self.sent >= self.cut_after

    def pause_after(self, count):
        """Seconds to wait after sending `count` bytes."""
        self.sent += count
        if self.stall_after is not None and self.sent >= self.stall_after:
            # Silent with the connection open, as a hung server or a dead route is.
            return STALL_SECONDS
        return count / self.rate if self.rate else 0


def grow_before_download(faults, root, local_path):
    """Applies a pending growth of the file about to be downloaded."""
    name = os.path.relpath(local_path, root)
    data = faults.take_growth(name)
    if data is not None:
        with open(local_path, "ab") as f:
            f.write(data)
