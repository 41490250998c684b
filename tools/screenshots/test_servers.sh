# Sourced by the screenshot scripts, which set `repo` and a `pids` array that their cleanup stops.
# start_server PROTOCOL ROOT STATE-DIR: one of the project's test servers (ftp, ftps, sftp) on
# 127.0.0.1, user "tarnel", password "secret", serving ROOT; its port is then in STATE-DIR/port.
start_server() {
    mkdir -p "$3"
    /usr/bin/python3 "$repo/tests/servers/tarnel_test_server.py" --protocol "$1" --root "$2" \
        --state-dir "$3" --user tarnel --password secret --port 0 --port-file "$3/port" \
        --parent-pid $$ 2>"$3/server.log" &
    pids+=($!)
    for _ in $(seq 100); do [ -s "$3/port" ] && return; sleep 0.1; done
    echo "$(basename "$0"): the $1 server did not start" >&2
    cat "$3/server.log" >&2
    exit 1
}
