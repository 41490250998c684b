#!/usr/bin/python3
"""A real FTP, FTPS or SFTP server on 127.0.0.1 for Tarnel's tests.

Serves --root as the user's home, writes its port to --port-file once it
accepts connections, reads faults from <state-dir>/faults.json before each
operation and exits when the process that started it goes away.
"""

import argparse
import logging
import os
import shutil
import signal
import sys
import threading
import time
import warnings

from server_faults import Faults


def parse_args():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--protocol", choices=("ftp", "ftps", "sftp"), required=True)
    parser.add_argument("--root", required=True)
    parser.add_argument("--state-dir", required=True, help="keys, certificate, faults.json")
    parser.add_argument("--user", default="tarnel")
    parser.add_argument("--password", default="secret")
    parser.add_argument("--port", type=int, default=0, help="0 picks a free port")
    parser.add_argument("--port-file", required=True)
    parser.add_argument("--parent-pid", type=int, help="exit once this process is gone")
    return parser.parse_args()


def watch_parent(parent_pid, state_dir):
    while os.getppid() == parent_pid:
        time.sleep(0.2)
    # Nobody is left to clean up after us.
    shutil.rmtree(state_dir, ignore_errors=True)
    os._exit(0)


def announcer(port_file):
    def announce(port):
        temporary = port_file + ".tmp"
        with open(temporary, "w") as f:
            f.write(f"{port}\n")
        os.replace(temporary, port_file)

    return announce


def main():
    args = parse_args()
    signal.signal(signal.SIGTERM, lambda *_: os._exit(0))
    if args.parent_pid:
        threading.Thread(
            target=watch_parent, args=(args.parent_pid, args.state_dir), daemon=True
        ).start()
    logging.basicConfig(level=logging.WARNING, stream=sys.stderr)
    warnings.simplefilter("ignore")
    os.makedirs(args.root, exist_ok=True)
    os.makedirs(args.state_dir, exist_ok=True)
    faults = Faults(args.state_dir)
    announce = announcer(args.port_file)

    if args.protocol == "sftp":
        import sftp_server

        sftp_server.serve(args, faults, announce)
    else:
        import ftp_server

        tls = {}
        if args.protocol == "ftps":
            import server_keys

            tls = dict(zip(("certificate", "key"), server_keys.certificate(args.state_dir)))
        ftp_server.serve(args, faults, announce, **tls)


if __name__ == "__main__":
    main()
