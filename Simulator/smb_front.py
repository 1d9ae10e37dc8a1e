#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Publishes the pipe files of a running kelp-server as real SMB shares.

    smb_front.py --address 127.0.0.2 --kelp-port N [--folder NAME=PATH]

Logins are NTLM with the accounts of kelp-server (all with the password PASSWORD when --password is
given: one that can be told from other text), sessions are signed. A folder is published as a share
beside the pipe files, as a volume is. Prints "ready" as soon as it
listens, then answers lines on standard input, until that ends:

    sessions    the clients that are logged in now, and the files they have open: "1 2"
    drop        "ok"; ends every connection, as a server does that loses its power
    logins      how many logins were asked for so far
    fail HOW PLACE
                "ok"; from now on what is read fails at a PLACE: before the reply, within it (after 90 bytes) or
                after it (where it would end). HOW is close or reset, of the connection; silence, of the whole
                server; drip, a byte at a time; endless. A login fails by "fail guest -": it makes a guest.
    mend        "ok"; nothing fails any more
"""
import argparse
import errno
import logging
import secrets
import socket
import struct
import sys
import threading
import time

from impacket import nt_errors, ntlm, smb3structs as smb2
from impacket.smbserver import PIPE_FILE_DESCRIPTOR, SimpleSMBServer, SMBSERVERHandler
from impacket.uuid import generate

SHARES = ("IPC$", "_admin")
STATUS_OF_ERRNO = {
    errno.ENOENT: nt_errors.STATUS_OBJECT_NAME_NOT_FOUND,
    errno.EACCES: nt_errors.STATUS_ACCESS_DENIED,
    errno.EINTR: nt_errors.STATUS_RETRY,
    errno.EIO: nt_errors.STATUS_IO_DEVICE_ERROR,
}


def nt_status(number):
    return STATUS_OF_ERRNO.get(number, nt_errors.STATUS_UNSUCCESSFUL)


class KelpError(OSError):
    """An "error NUMBER" answer."""


class KelpConnection:
    """One conversation with kelp-server."""

    pieces = 0  # of the reply that is being read

    def __init__(self, port):
        self.socket = socket.create_connection(("127.0.0.1", port))
        self.stream = self.socket.makefile("rwb")

    def ask(self, *words, data=b""):
        self.stream.write("\t".join(str(word) for word in words).encode() + b"\n" + data)
        self.stream.flush()
        outcome, _, number = self.stream.readline().decode().strip().partition(" ")
        if outcome == "error":
            raise KelpError(int(number), " ".join(str(word) for word in words[:1]))
        if outcome != "ok":
            raise ConnectionAbortedError("kelp-server has hung up")
        return self.stream.read(int(number))

    def close(self):
        self.stream.close()
        self.socket.close()


class TrackedHandler(SMBSERVERHandler):
    """A client connection that can be ended from outside, in a thread of its own."""

    open_sockets = set()
    own = threading.local()
    speaks = threading.Event()  # cleared, no connection gets an answer

    def handle(self):
        self.open_sockets.add(self.request)
        self.own.socket = self.request
        self.speaks.wait()
        try:
            super().handle()
        finally:
            self.open_sockets.discard(self.request)

    @classmethod
    def end(cls, how):
        """Ends the connection of this thread."""
        if how == "silence":
            cls.speaks.clear()
            cls.speaks.wait()
        if how == "reset":  # what is closed without lingering is
            cls.own.socket.setsockopt(socket.SOL_SOCKET, socket.SO_LINGER, struct.pack("ii", 1, 0))
            cls.own.socket.close()
        else:
            cls.own.socket.shutdown(socket.SHUT_RDWR)
        raise ConnectionAbortedError


class Front:
    """SMB2 commands on the pipe files; everything else is impacket's own doing."""

    def __init__(self, server, kelp_port, folders):
        self.kelp_port = kelp_port
        self.fault = ("", "")
        self.logins = 0
        self.folders = [name.upper() for name in folders]
        self.original = {
            command: server.hookSmb2Command(command, hook)
            for command, hook in (
                (smb2.SMB2_SESSION_SETUP, self.session_setup),
                (smb2.SMB2_TREE_CONNECT, self.tree_connect),
                (smb2.SMB2_CREATE, self.create),
                (smb2.SMB2_WRITE, self.write),
                (smb2.SMB2_READ, self.read),
            )
        }

    def session_setup(self, conn_id, server, packet):
        answer = self.original[smb2.SMB2_SESSION_SETUP](conn_id, server, packet)
        if answer[2] != nt_errors.STATUS_MORE_PROCESSING_REQUIRED:
            self.logins += 1
            if self.fault[0] == "guest":
                answer[0][0]["SessionFlags"] = 1
                server.getConnectionData(conn_id)["SignatureEnabled"] = False
        return answer

    def tree_connect(self, conn_id, server, packet):
        request = smb2.SMB2TreeConnect(packet["Data"])
        path = packet.getData()[request["PathOffset"]:][:request["PathLength"]].decode("utf-16le")
        if path.rpartition("\\")[2].upper() not in [share.upper() for share in SHARES] + self.folders:
            return [smb2.SMB2Error()], None, nt_errors.STATUS_BAD_NETWORK_NAME
        return self.original[smb2.SMB2_TREE_CONNECT](conn_id, server, packet)

    def create(self, conn_id, server, packet):
        data = server.getConnectionData(conn_id)
        request = smb2.SMB2Create(packet["Data"])
        name = request["Buffer"][:request["NameLength"]].decode("utf-16le")
        share = data["ConnectedShares"].get(packet["TreeID"], {}).get("shareName", "")
        if share.upper() in self.folders:
            return self.original[smb2.SMB2_CREATE](conn_id, server, packet)
        kelp = KelpConnection(self.kelp_port)
        try:
            kelp.ask("open", data["AUTHENTICATE_MESSAGE"]["user_name"].decode("utf-16le"), share, name)
        except (KelpError, ConnectionAbortedError) as error:
            kelp.close()
            return [smb2.SMB2Error()], None, nt_status(error.errno)
        file_id = generate()
        response = smb2.SMB2Create_Response()
        response["Buffer"] = b"\x00"
        response["FileID"] = file_id
        response["CreateAction"] = smb2.FILE_OPEN
        response["FileAttributes"] = 0x80
        for time in ("CreationTime", "LastAccessTime", "LastWriteTime", "ChangeTime"):
            response[time] = 0
        response["AllocationSize"] = 4096
        response["EndOfFile"] = 0
        data["OpenedFiles"][file_id] = {
            "FileHandle": PIPE_FILE_DESCRIPTOR,  # impacket then closes "Socket" on SMB2 CLOSE
            "FileName": name,
            "DeleteOnClose": False,
            "Socket": kelp,
        }
        data["LastRequest"]["SMB2_CREATE"] = response
        return [response], None, nt_errors.STATUS_SUCCESS

    def on_pipe(self, conn_id, server, packet, request, action):
        """The answer to a request on an open file; losing kelp-server loses the client, too."""
        file = server.getConnectionData(conn_id)["OpenedFiles"].get(request["FileID"].getData())
        if file is None:
            return [smb2.SMB2Error()], None, nt_errors.STATUS_INVALID_HANDLE
        if file["FileHandle"] != PIPE_FILE_DESCRIPTOR:
            return self.original[packet["Command"]](conn_id, server, packet)
        TrackedHandler.speaks.wait()
        try:
            return action(file["Socket"])
        except KelpError as error:
            return [smb2.SMB2Error()], None, nt_status(error.errno)

    def write(self, conn_id, server, packet):
        request = smb2.SMB2Write(packet["Data"])

        def send(kelp):
            content = request["Buffer"][:request["Length"]]
            kelp.ask("write", request["Offset"], len(content), data=content)
            kelp.pieces = 0
            response = smb2.SMB2Write_Response()
            response["Buffer"] = b"\x00"
            response["Count"] = len(content)
            response["Remaining"] = 0
            return [response], None, nt_errors.STATUS_SUCCESS

        return self.on_pipe(conn_id, server, packet, request, send)

    def spoil(self, kelp, length):
        """The next piece of a reply, with the fault that is due in it."""
        how, place = self.fault
        is_due = how == "endless" or place == "before" or (place == "within" and kelp.pieces > 0)
        content = b"" if is_due else kelp.ask("read", length)
        if is_due or (place == "after" and not content):
            if how == "drip":
                time.sleep(0.1)
            elif how != "endless":
                TrackedHandler.end(how)
            content = b" " * (1 if how == "drip" else length)
        elif place == "within":
            content = content[:90]
        kelp.pieces += 1
        return content

    def read(self, conn_id, server, packet):
        request = smb2.SMB2Read(packet["Data"])

        def receive(kelp):
            content = self.spoil(kelp, request["Length"])
            if not content:
                return [smb2.SMB2Error()], None, nt_errors.STATUS_END_OF_FILE
            response = smb2.SMB2Read_Response()
            response["DataOffset"] = 0x50
            response["DataLength"] = len(content)
            response["DataRemaining"] = 0
            response["Buffer"] = content
            return [response], None, nt_errors.STATUS_SUCCESS

        return self.on_pipe(conn_id, server, packet, request, receive)


def obey(server, front):
    for line in sys.stdin:
        words = line.split()
        if words[0] in ("fail", "mend"):
            front.fault = tuple(words[1:]) or ("", "")
            TrackedHandler.speaks.set()
            print("ok", flush=True)
        elif words[0] == "logins":
            print(front.logins, flush=True)
        elif line.strip() == "sessions":
            clients = [data for data in list(server.getActiveConnections().values()) if data["SignatureEnabled"]]
            print(len(clients), sum(len(data["OpenedFiles"]) for data in clients), flush=True)
        elif line.strip() == "drop":
            for connection in list(TrackedHandler.open_sockets):
                connection.shutdown(socket.SHUT_RDWR)
            print("ok", flush=True)


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--address", required=True)
    parser.add_argument("--port", type=int, default=445)
    parser.add_argument("--kelp-port", type=int, required=True)
    parser.add_argument("--password")
    parser.add_argument("--folder", action="append", default=[])
    parser.add_argument("--verbose", action="store_true")
    arguments = parser.parse_args()
    logging.basicConfig(stream=sys.stderr, level=logging.DEBUG if arguments.verbose else logging.CRITICAL)

    front = SimpleSMBServer(arguments.address, arguments.port)
    server = front._SimpleSMBServer__server
    server.RequestHandlerClass = TrackedHandler
    server.daemon_threads = True
    front.setSMB2Support(True)
    front.setSMBChallenge(secrets.token_hex(8))
    front.addShare("_admin", "/nonexistent")
    folders = dict(folder.split("=", 1) for folder in arguments.folder)
    for name, path in folders.items():
        front.addShare(name, path)
    accounts = KelpConnection(arguments.kelp_port)
    for line in accounts.ask("accounts").decode().splitlines():
        user, password, _ = line.split("\t")
        front.addCredential(user, 0, ntlm.compute_lmhash("").hex(), ntlm.compute_nthash(arguments.password or password).hex())
    accounts.close()
    hooks = Front(server, arguments.kelp_port, folders)
    TrackedHandler.speaks.set()
    threading.Thread(target=front.start, daemon=True).start()
    print("ready", flush=True)
    obey(server, hooks)


if __name__ == "__main__":
    main()
