#!/usr/bin/env bash
# package_install_test.sh BUILD_DIR VERSION: builds the Debian package from the build tree,
# installs it on this machine with dpkg, runs the installed program as a person and systemd
# would, and purges it again, leaving every path the package touches as it was. It installs as
# root onto the machine it runs on, so it skips (status 77) where that is not safe.
set -euo pipefail
build=$(cd "$1" && pwd)
version=$2
marker="$build/tarnel-installed-by-package-test"
unit=/usr/lib/systemd/user/tarnel-headless.service
expected_files="./usr/bin/tarnel
./usr/lib/systemd/user/tarnel-headless.service
./usr/share/applications/tarnel.desktop
./usr/share/doc/tarnel/README.md
./usr/share/icons/hicolor/scalable/apps/tarnel.svg
./usr/share/metainfo/tarnel.metainfo.xml
./usr/share/tarnel/screenshots/popover.png"

skip() { echo "SKIPPED: $*"; exit 77; }
fail() { echo "FAILED: $*" >&2; exit 1; }
status_of_tarnel() { dpkg-query -W -f='${db:Status-Status}' tarnel 2>/dev/null || true; }

# dpkg has no lock timeout, and other package work may run on this machine at the same time.
dpkg_waiting() {
    local out
    for _ in $(seq 90); do
        if out=$(dpkg "$@" 2>&1); then return 0; fi
        grep -q 'lock' <<<"$out" || { echo "$out" >&2; return 1; }
        sleep 2
    done
    echo "$out" >&2
    return 1
}

[ "$(id -u)" -eq 0 ] || skip "installing the package needs root"
if [ -e "$marker" ]; then
    # An earlier run was stopped before it could remove what it installed.
    dpkg_waiting --purge tarnel
    rm -f "$marker"
fi
case "$(status_of_tarnel)" in
    ""|not-installed) ;;
    *) skip "a tarnel package is installed that this test did not install; remove it first (dpkg --purge tarnel)" ;;
esac
[ ! -e /usr/bin/tarnel ] || skip "/usr/bin/tarnel exists outside any package; the test would replace and then remove it"

# In the build tree, so that a run killed outright leaves nothing elsewhere.
work="$build/packaging-test"
rm -rf "$work"
mkdir "$work"
headless=
cgroups=()
cleanup() {
    [ -z "$headless" ] || kill -KILL "$headless" 2>/dev/null || true
    # What the user manager left: its processes, then its folders, deepest first.
    local cgroup
    for cgroup in "${cgroups[@]}"; do
        find "$cgroup" -name cgroup.procs -exec cat {} + 2>/dev/null | xargs -r kill -KILL 2>/dev/null || true
    done
    for cgroup in "${cgroups[@]}"; do
        for _ in $(seq 50); do
            find "$cgroup" -depth -type d -exec rmdir {} + 2>/dev/null || true
            [ -d "$cgroup" ] || break
            sleep 0.1
        done
    done
    if [ -e "$marker" ]; then dpkg_waiting --purge tarnel && rm -f "$marker"; fi
    rm -rf "$work"
}
trap cleanup EXIT

# The package, from this build tree as it stands.
(cd "$build" && cpack -G DEB -B "$work/out" >"$work/cpack.log" 2>&1) || { cat "$work/cpack.log"; fail "cpack"; }
deb="$work/out/tarnel_${version}_$(dpkg --print-architecture).deb"
[ -f "$deb" ] || fail "no $deb; cpack wrote: $(ls "$work/out")"

# Exactly the program and its desktop files: no test programs, servers or benchmarks. Of the
# icon's fixed sizes, 48 is the one every icon theme must have; the others may vary.
all_files=$(dpkg-deb -c "$deb" | awk '$1 !~ /^d/ {print $6}')
fixed_size_icon='\./usr/share/icons/hicolor/[0-9]+x[0-9]+/apps/tarnel\.png'
files=$(grep -v -x -E "$fixed_size_icon" <<<"$all_files" | sort)
[ "$files" = "$(sort <<<"$expected_files")" ] || fail "the package holds:
$all_files"
grep -q -x -F ./usr/share/icons/hicolor/48x48/apps/tarnel.png <<<"$all_files" || fail "no 48x48 icon in:
$all_files"
# What dpkg-shlibdeps found, and what the program loads that it cannot see.
depends=$(dpkg-deb -f "$deb" Depends)
for needed in libqt6widgets6 qt6-qpa-plugins; do
    grep -q "\b$needed\b" <<<"$depends" || fail "Depends lacks $needed: $depends"
done

# What exists before, to compare after the purge.
paths=$(dpkg-deb -c "$deb" | awk '{sub(/^\./, "", $6); sub(/\/$/, "", $6); if ($6 != "") print $6}')
existing() { while read -r p; do [ ! -e "$p" ] || echo "$p"; done <<<"$paths"; }
before=$(existing)

touch "$marker"
dpkg_waiting -i "$deb" || fail "dpkg -i (are the Depends installed?)"

# The installed program, with nothing of the build on PATH and stores of its own.
mkdir -m 0700 "$work/run"
clean_env=(env -i PATH=/usr/bin:/bin HOME="$work/home" XDG_CONFIG_HOME="$work/config"
           XDG_DATA_HOME="$work/data" XDG_STATE_HOME="$work/state" XDG_RUNTIME_DIR="$work/run")
[ "$("${clean_env[@]}" sh -c 'command -v tarnel')" = /usr/bin/tarnel ] || fail "tarnel is not /usr/bin/tarnel"
"${clean_env[@]}" tarnel --help | grep -q '^Usage: tarnel' || fail "tarnel --help"

# As the unit runs it: the fleet starts, and SIGTERM (systemd's stop) ends it with status 0.
"${clean_env[@]}" tarnel --headless >"$work/headless.log" 2>&1 &
headless=$!
for _ in $(seq 100); do
    grep -q 'No enabled connection' "$work/headless.log" && break
    sleep 0.1
done
grep -q 'No enabled connection' "$work/headless.log" || fail "tarnel --headless did not start: $(cat "$work/headless.log")"
# Asked from outside the unit's environment (no runtime folder), --status still finds it.
"${clean_env[@]:0:7}" tarnel --status >"$work/status.txt" 2>&1 ||
    fail "tarnel --status while the fleet runs: status $?: $(cat "$work/status.txt")"
grep -q '^0 connection(s); today 0 files' "$work/status.txt" || fail "tarnel --status said: $(cat "$work/status.txt")"
kill -TERM "$headless"
wait "$headless" || fail "tarnel --headless stopped with status $? on SIGTERM"
headless=
status=0
"${clean_env[@]}" tarnel --status >/dev/null 2>&1 || status=$?
[ "$status" = 3 ] || fail "tarnel --status with no fleet running: status $status, not 3"

# systemd waits for the fleet's readiness and watches its loop; libsystemd comes with the package.
grep -qx 'Type=notify' "$unit" && grep -q '^WatchdogSec=' "$unit" || fail "the unit is not Type=notify with a watchdog"
dpkg-deb -f "$deb" Depends | grep -q 'libsystemd0' || fail "the package does not depend on libsystemd0"

verify=$(systemd-analyze verify "$unit" 2>&1) || fail "systemd-analyze verify: $verify"
[ -z "$verify" ] || fail "systemd-analyze verify warns: $verify"
# Enabling reads the unit's [Install] section; done in a copy of the package's files, not on
# this machine.
dpkg-deb -x "$deb" "$work/root"
enable=$(systemctl --root="$work/root" --global enable tarnel-headless.service 2>&1) ||
    fail "systemctl enable: $enable"
[ -L "$work/root/etc/systemd/user/default.target.wants/tarnel-headless.service" ] ||
    fail "enabling does not start the unit with the user's session"

# A real systemd --user runs the installed unit, in a cgroup of its own: the two hierarchies of
# a hybrid layout, or the one of cgroup v2.
if [ -e /sys/fs/cgroup/cgroup.procs ]; then
    cgroups=("/sys/fs/cgroup/tarnel-package-test-$$")
else
    for hierarchy in systemd unified; do
        [ ! -d "/sys/fs/cgroup/$hierarchy" ] || cgroups+=("/sys/fs/cgroup/$hierarchy/tarnel-package-test-$$")
    done
fi
if [ ${#cgroups[@]} -gt 0 ] && mkdir "${cgroups[@]}" 2>"$work/cgroup.err"; then
    status=0
    unshare -m --propagation private "$(dirname "$0")/user_manager_test.sh" "$work/user" "${cgroups[@]}" ||
        status=$?
    [ "$status" = 0 ] || [ "$status" = 77 ] || fail "the unit under systemd --user"
else
    echo "NOTE: no cgroup of our own for systemd --user here: $(cat "$work/cgroup.err")"
    cgroups=()
fi

# The desktop entry starts the installed program and names an installed icon.
entry=/usr/share/applications/tarnel.desktop
exec_program=$(sed -n 's/^Exec=\([^ ]*\).*/\1/p' "$entry")
[ "$("${clean_env[@]}" sh -c "command -v $exec_program")" = /usr/bin/tarnel ] || fail "Exec=$exec_program"
icon=$(sed -n 's/^Icon=//p' "$entry")
compgen -G "/usr/share/icons/hicolor/*/apps/$icon.*" >/dev/null || fail "no installed icon for Icon=$icon"

dpkg_waiting --purge tarnel || fail "dpkg --purge"
rm -f "$marker"
[ "$(status_of_tarnel)" = not-installed ] || [ -z "$(status_of_tarnel)" ] || fail "tarnel still known to dpkg: $(status_of_tarnel)"
after=$(existing)
[ "$before" = "$after" ] || fail "the purge left the machine changed:
$(diff <(echo "$before") <(echo "$after") || true)"
echo "package $(basename "$deb") built, installed, run and removed"
