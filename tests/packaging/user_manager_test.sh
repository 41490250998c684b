#!/usr/bin/env bash
# user_manager_test.sh WORK CGROUP...: the installed unit under a real `systemd --user`, started
# by hand (this machine's PID 1 need not be systemd). Run by package_install_test.sh inside a
# private mount namespace (unshare -m), where /run/systemd/system can say "booted with systemd"
# to this tree of processes alone; it moves itself into the fresh CGROUP folders first, which
# the caller removes afterwards with whatever is left in them.
# Exits 0 when the unit ran as it must, 1 when not, 77 when no user manager can run here.
set -euo pipefail
work=$1
shift
for cgroup in "$@"; do echo $$ >"$cgroup/cgroup.procs"; done

fail() { echo "FAILED: $*" >&2; exit 1; }
mount -t tmpfs tarnel-user-manager /run/systemd
mkdir /run/systemd/system

export HOME="$work/home" XDG_RUNTIME_DIR="$work/run" XDG_CONFIG_HOME="$work/config"
export XDG_DATA_HOME="$work/data" XDG_STATE_HOME="$work/state"
mkdir -p "$HOME" "$XDG_CONFIG_HOME/systemd/user/tarnel-headless.service.d"
mkdir -m 0700 "$XDG_RUNTIME_DIR"
# The unit as installed, with a watchdog short enough to wait for here.
printf '[Service]\nWatchdogSec=3s\nRestartSec=1s\n' \
    >"$XDG_CONFIG_HOME/systemd/user/tarnel-headless.service.d/quick-watchdog.conf"

/lib/systemd/systemd --user >"$work/manager.log" 2>&1 &
manager=$!
trap 'kill -TERM $manager 2>/dev/null; wait $manager 2>/dev/null || true' EXIT
state=
for _ in $(seq 100); do
    state=$(systemctl --user is-system-running 2>/dev/null) && break
    kill -0 $manager 2>/dev/null || break
    sleep 0.1
done
[ "$state" = running ] || { echo "systemd --user did not start ($state): $(cat "$work/manager.log")"; exit 77; }
systemctl --user set-environment XDG_CONFIG_HOME="$XDG_CONFIG_HOME" \
    XDG_DATA_HOME="$XDG_DATA_HOME" XDG_STATE_HOME="$XDG_STATE_HOME"

show() { systemctl --user show -p "$1" --value tarnel-headless; }
# Type=notify: start returns once the fleet said READY=1, with its summary as the status line.
systemctl --user start tarnel-headless || fail "systemctl --user start: $(systemctl --user status tarnel-headless 2>&1)"
[ "$(show ActiveState)" = active ] || fail "the unit is $(show ActiveState) after start"
grep -q '^0 connection(s); today 0 files' <<<"$(show StatusText)" ||
    fail "the unit's status line reads \"$(show StatusText)\""

# A loop that answers keeps its process past the watchdog's time; one that stops answering is
# killed by the watchdog and started again.
frozen=$(show MainPID)
[ "$frozen" -gt 1 ] || fail "the unit has no main process"
sleep 5
[ "$(show NRestarts)" = 0 ] && [ "$(show MainPID)" = "$frozen" ] ||
    fail "the watchdog restarted a fleet that runs: $(systemctl --user status tarnel-headless 2>&1)"
kill -STOP "$frozen"
for _ in $(seq 200); do
    pid=$(show MainPID)
    [ "$pid" -gt 1 ] && [ "$pid" != "$frozen" ] && [ "$(show ActiveState)" = active ] && break
    sleep 0.1
done
[ "$(show NRestarts)" -ge 1 ] && [ "$(show MainPID)" != "$frozen" ] ||
    fail "a stopped fleet was not restarted by the watchdog: $(systemctl --user status tarnel-headless 2>&1)"
kill -0 "$frozen" 2>/dev/null && fail "the frozen fleet $frozen still runs beside its successor"

systemctl --user stop tarnel-headless
[ "$(show ActiveState)" = inactive ] || fail "the unit is $(show ActiveState) after stop"
echo "systemd --user started the unit, read its status line and restarted it when its loop froze"
