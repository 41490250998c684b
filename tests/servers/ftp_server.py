"""FTP and explicit-TLS FTP on pyftpdlib, with the faults of server_faults."""

import hashlib
import os

from pyftpdlib.authorizers import AuthenticationFailed, DummyAuthorizer
from pyftpdlib.handlers import FTPHandler
from pyftpdlib.servers import FTPServer

from server_faults import DownloadLimits, grow_before_download


class _Authorizer(DummyAuthorizer):
    def __init__(self, faults):
        super().__init__()
        self._faults = faults

    def validate_authentication(self, username, password, handler):
        if self._faults.refuse_login():
            raise AuthenticationFailed("Authentication failed.")
        super().validate_authentication(username, password, handler)


def _download_channel(base):
    """A data channel whose downloads obey the cut and throttle faults."""

    class DownloadChannel(base):
        limits = None
        _pause = None
        _cut_done = False

        def push_with_producer(self, producer):
            # Only RETR hands over a file; listings stay untouched.
            if self.file_obj is not None:
                self.limits = DownloadLimits(self.cmd_channel.faults)
            super().push_with_producer(producer)

        def send(self, data):
            limits = self.limits
            if limits is None:
                return super().send(data)
            if limits.must_cut():
                self._cut()
                return 0
            sent = super().send(data[: limits.allowed(len(data))])
            pause = limits.pause_after(sent)
            if limits.must_cut():
                # Closing here would pull the socket from under the send loop.
                self.ioloop.call_later(0, self._cut)
            elif pause:
                self.del_channel()
                self._pause = self.ioloop.call_later(pause, self._resume)
            return sent

        def _resume(self):
            self._pause = None
            self.add_channel(events=self.ioloop.WRITE)

        def _cut(self):
            """Drop data and control connection as a failing network would."""
            if self._cut_done:
                return
            self._cut_done = True
            control = self.cmd_channel
            # No TLS close_notify: the client must not see an orderly end.
            self._error = True
            control._error = True
            control.close()
            self.close()

        def close(self):
            if self._pause is not None and not self._pause.cancelled:
                self._pause.cancel()
            super().close()

    return DownloadChannel


def _handler(base, faults, root):
    class Handler(base):
        # sendfile would bypass send(), where cuts and throttling act.
        use_sendfile = False
        auth_failed_timeout = 0.05
        dtp_handler = _download_channel(base.dtp_handler)
        # The server's own checksum of a file, as proftpd's mod_digest offers it.
        proto_cmds = dict(base.proto_cmds, XSHA256=dict(
            perm="r", auth=True, arg=True, help="Syntax: XSHA256 <SP> file-name"))

        def __init__(self, *args, **kwargs):
            super().__init__(*args, **kwargs)
            self._extra_feats = self._extra_feats + ["XSHA256"]

        def ftp_XSHA256(self, path):
            digest = hashlib.sha256()
            try:
                with open(path, "rb") as f:
                    for block in iter(lambda: f.read(65536), b""):
                        digest.update(block)
            except OSError as error:
                self.respond("550 %s." % error.strerror)
                return None
            if faults.corrupt_checksums():
                digest.update(b"corrupt")
            answer = "250 " + digest.hexdigest().upper()
            pause = faults.current().get("checksum_reply_pause_seconds")
            if pause:
                # As a server reading a large file would, without holding up other sessions.
                self.ioloop.call_later(pause, self.respond, answer)
            else:
                self.respond(answer)
            return path

        def ftp_MLSD(self, path):
            if faults.refuse_mlsd():
                self.respond("502 Command not implemented.")
                return None
            return super().ftp_MLSD(path)

        # A client asks SIZE before RETR, so the file grows at whichever comes first.
        def ftp_SIZE(self, path):
            grow_before_download(faults, root, path)
            return super().ftp_SIZE(path)

        def ftp_RETR(self, file):
            grow_before_download(faults, root, file)
            return super().ftp_RETR(file)

        def ftp_DELE(self, path):
            if faults.refuse_delete():
                self.respond("550 Permission denied.")
                return None
            pause = faults.current().get("delete_reply_pause_seconds")
            if not pause:
                return super().ftp_DELE(path)
            # The file goes at once, its reply later, without holding up the other sessions.
            answer = self.respond
            self.respond = lambda *args: self.ioloop.call_later(pause, answer, *args)
            try:
                return super().ftp_DELE(path)
            finally:
                del self.respond

    Handler.faults = faults
    return Handler


def _tls_handler(certificate, key):
    from pyftpdlib.handlers import TLS_DTPHandler, TLS_FTPHandler

    class TlsDataChannel(TLS_DTPHandler):
        def readable(self):
            # libcurl starts the TLS handshake the moment it connects, before the command
            # that uses the channel; the stock channel takes that early data for a hang-up.
            return self._ssl_accepting or super().readable()

    class TlsHandler(TLS_FTPHandler):
        certfile = certificate
        keyfile = key
        dtp_handler = TlsDataChannel

    return TlsHandler


def serve(args, faults, announce, certificate=None, key=None):
    root = os.path.realpath(args.root)
    authorizer = _Authorizer(faults)
    authorizer.add_user(args.user, args.password, root, perm="elradfmwMT")
    base = FTPHandler if certificate is None else _tls_handler(certificate, key)
    handler = _handler(base, faults, root)
    handler.authorizer = authorizer
    handler.banner = "Tarnel test server ready."
    server = FTPServer(("127.0.0.1", args.port), handler)
    announce(server.address[1])
    server.serve_forever()
