"""SFTP on asyncssh, chrooted at the root folder, password and public-key
login, with the faults of server_faults."""

import asyncio
import os

import asyncssh

import server_keys
from server_faults import DownloadLimits, grow_before_download


def _sftp_server(root, faults):
    class FaultySftpServer(asyncssh.SFTPServer):
        def __init__(self, chan):
            super().__init__(chan, chroot=root)
            self._downloads = {}

        def open(self, path, pflags, attrs):
            reading = pflags & asyncssh.FXF_READ and not pflags & asyncssh.FXF_WRITE
            if reading:
                grow_before_download(faults, root, os.fsdecode(self.map_path(path)))
            file_obj = super().open(path, pflags, attrs)
            if reading:
                self._downloads[file_obj] = DownloadLimits(faults)
            return file_obj

        def close(self, file_obj):
            self._downloads.pop(file_obj, None)
            return super().close(file_obj)

        async def read(self, file_obj, offset, size):
            limits = self._downloads.get(file_obj)
            if limits is None:
                return super().read(file_obj, offset, size)
            # Reads are answered whole: libssh2 takes a short read for an error. So the
            # cut falls on the first read that starts at or past the limit, and close()
            # still delivers every reply sent before it.
            if limits.must_cut():
                self.connection.close()
                raise asyncssh.SFTPConnectionLost("Connection cut")
            data = super().read(file_obj, offset, size)
            pause = limits.pause_after(len(data))
            if pause:
                await asyncio.sleep(pause)
            return data

        def remove(self, path):
            if faults.refuse_delete():
                raise asyncssh.SFTPPermissionDenied("Permission denied")
            return super().remove(path)

    return FaultySftpServer


def _ssh_server(args, faults, client_key):
    class Server(asyncssh.SSHServer):
        def begin_auth(self, username):
            return True

        def password_auth_supported(self):
            return True

        def validate_password(self, username, password):
            return (
                not faults.refuse_login() and username == args.user and password == args.password
            )

        def public_key_auth_supported(self):
            return True

        def validate_public_key(self, username, key):
            return (
                not faults.refuse_login()
                and username == args.user
                and key.public_data == client_key.public_data
            )

    return Server


def serve(args, faults, announce):
    root = os.path.realpath(args.root)
    host_key = server_keys.ed25519_key(os.path.join(args.state_dir, "host_ed25519"))
    client_key = server_keys.ed25519_key(os.path.join(args.state_dir, "client_ed25519"))

    async def run():
        acceptor = await asyncssh.listen(
            "127.0.0.1",
            args.port,
            server_factory=_ssh_server(args, faults, client_key),
            server_host_keys=[host_key],
            sftp_factory=_sftp_server(root, faults),
            allow_scp=False,
            reuse_address=True,
        )
        announce(acceptor.sockets[0].getsockname()[1])
        await acceptor.wait_closed()

    asyncio.run(run())
