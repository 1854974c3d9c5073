# SPDX-FileCopyrightText: 2026 The Nascor developers
# SPDX-License-Identifier: MIT

"""Plays a DICOM server, right or wrong: the upper layer's units (PS3.8, 9.3) and messages (PS3.7, 6.3), by hand."""

import socket
import struct
import threading

ECHO, FIND, GET = "1.2.840.10008.1.1", "1.2.840.10008.5.1.4.1.2.2.1", "1.2.840.10008.5.1.4.1.2.2.3"
COMPREHENSIVE = "1.2.840.10008.5.1.4.1.1.88.33"
NOTHING_FOLLOWS = 0x0101
PENDING = 0xFF00
STOP = 0x0FFF


def unit(kind, body):
    return struct.pack(">BBI", kind, 0, len(body)) + body


def item(kind, body):
    return struct.pack(">BBH", kind, 0, len(body)) + body


def items(body):
    while body:
        kind, length = body[0], struct.unpack(">H", body[2:4])[0]
        yield kind, body[4:4 + length]
        body = body[4 + length:]


def element(group, number, value):
    """Implicit, little endian. A text is padded; a number takes two bytes."""
    if isinstance(value, int):
        value = struct.pack("<H", value)
    if isinstance(value, str):
        value = value.encode()
    value += b"\0" * (len(value) % 2)
    return struct.pack("<HHI", group, number, len(value)) + value


def command(field, **extra):
    """extra: class, asked, status, follows, instance, message."""
    body = element(0, 2, extra.get("kind", ""))
    body += element(0, 0x100, field)
    if "message" in extra:
        body += element(0, 0x110, extra["message"])
    if "asked" in extra:
        body += element(0, 0x120, extra["asked"])
    if "message" in extra:
        body += element(0, 0x700, 0)
    body += element(0, 0x800, 1 if extra.get("follows") else NOTHING_FOLLOWS)
    if "status" in extra:
        body += element(0, 0x900, extra["status"])
    if "instance" in extra:
        body += element(0, 0x1000, extra["instance"])
    return element(0, 0, struct.pack("<I", len(body))) + body


def data_units(context, body, is_command):
    """The parts of a message, each in a unit of its own."""
    flag, parts = 1 if is_command else 0, [body[at:at + 16000] for at in range(0, len(body), 16000)] or [b""]
    return b"".join(
        unit(4, struct.pack(">IBB", len(part) + 2, context, flag | (2 if at == len(parts) - 1 else 0)) + part)
        for at, part in enumerate(parts))


def values(body):
    """The elements of a command or a plain data set, implicit; texts without what fills them up."""
    found = {}
    while body:
        group, number, length = struct.unpack("<HHI", body[:8])
        value = body[8:8 + length]
        is_text = group != 0 or number in (0x2, 0x1000)
        found[group, number] = value.rstrip(b"\0 ") if is_text else value
        body = body[8 + length:]
    return found


def acceptance(request, accepts=lambda kind: True):
    """The answer to a request to connect: each context in implicit syntax, and the roles that were asked for."""
    body, contexts, user = request[:68], b"", b""
    for kind, value in items(request[68:]):
        if kind == 0x20:
            wanted = dict(items(value[4:]))[0x30].decode()
            contexts += item(0x21, bytes([value[0], 0, 0 if accepts(wanted) else 3, 0]) + item(0x40, b"1.2.840.10008.1.2"))
        elif kind == 0x50:
            for sub, text in items(value):
                if sub in (0x51, 0x54):
                    user += item(sub, text)
    application = item(0x10, b"1.2.840.10008.3.1.1.1")
    return unit(2, body + application + contexts + item(0x50, user + item(0x52, b"1.2.3")))


class Connection:
    """One connection, once a client has made it."""

    def __init__(self, stream):
        self.stream = stream
        self.contexts = {}

    def read(self, count):
        data = b""
        while len(data) < count:
            part = self.stream.recv(count - len(data))
            if not part:
                raise EOFError
            data += part
        return data

    def read_unit(self):
        kind, _, length = struct.unpack(">BBI", self.read(6))
        return kind, self.read(length)

    def write(self, data):
        self.stream.sendall(data)

    def accept(self, accepts=lambda kind: True):
        _, request = self.read_unit()
        for kind, value in items(request[68:]):
            if kind == 0x20:
                self.contexts[dict(items(value[4:]))[0x30].decode()] = value[0]
        self.write(acceptance(request, accepts))

    def read_message(self):
        """A command with the data that follow it; None when the client says goodbye."""
        message, data, follows = b"", b"", True
        is_command = True
        while is_command or follows:
            kind, body = self.read_unit()
            if kind != 4:
                if kind == 5:
                    self.write(unit(6, bytes(4)))
                return None
            while body:
                length, _, flags = struct.unpack(">IBB", body[:6])
                part, body = body[6:4 + length], body[4 + length:]
                if flags & 1:
                    message += part
                    if flags & 2:
                        is_command = False
                        follows = values(message)[0, 0x800] != struct.pack("<H", NOTHING_FOLLOWS)
                else:
                    data += part
                    if flags & 2:
                        follows = False
        return values(message), data

    def say(self, kind, message, data=None):
        context = self.contexts[kind]
        self.write(data_units(context, message, True) + (data_units(context, data, False) if data is not None else b""))


def number(value):
    return struct.unpack("<H", value)[0]


class PlayedServer:
    """Listens at `port` on this machine alone, and hands each connection to `play`. What goes wrong there for want of a
    client is none of its business."""

    def __init__(self, play, wrap=None):
        self.play = play
        self.wrap = wrap
        self.connections = 0
        self.listener = socket.create_server(("127.0.0.1", 0))
        self.port = self.listener.getsockname()[1]
        threading.Thread(target=self.run, daemon=True).start()

    def run(self):
        while True:
            try:
                stream, _ = self.listener.accept()
            except OSError:
                return
            self.connections += 1
            stream.setsockopt(socket.IPPROTO_TCP, socket.TCP_NODELAY, 1)
            threading.Thread(target=self.serve, args=(stream,), daemon=True).start()

    def serve(self, stream):
        try:
            with (self.wrap(stream) if self.wrap else stream) as stream:
                self.play(Connection(stream))
        except (OSError, EOFError):
            pass

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.listener.close()


def silent(connection):
    """Says nothing as long as the client listens."""
    while connection.stream.recv(65536):
        pass


class Archive:
    """A server that does what it should: `reports` are the data sets by instance, as (keys, elements)."""

    def __init__(self, reports=(), **overrides):
        self.reports = list(reports)
        self.overrides = overrides
        self.is_stopped = False

    def __call__(self, connection):
        connection.accept()
        while (message := connection.read_message()) is not None:
            asked, data = message
            field = number(asked[0, 0x100])
            self.is_stopped = self.is_stopped or field == STOP
            if field != STOP:  # it is late for that
                self.answer(connection, field, number(asked[0, 0x110]), asked, data)

    def answer(self, connection, field, message, asked, data):
        if field == 0x30:
            connection.say(ECHO, command(0x8030, kind=ECHO, asked=message, status=0))
        elif field == 0x20:
            self.find(connection, message, values(data))
        elif field == 0x10:
            self.get(connection, message, values(data))
        elif field == 0x01:
            kind = asked[0, 2].decode()
            connection.say(kind, command(0x8001, kind=kind, asked=message, instance=asked[0, 0x1000],
                                         status=self.overrides.get("store", 0)))

    def find(self, connection, message, keys):
        """Answers with the reports that match by their UIDs: what else is asked for, this one overlooks."""
        for report in self.reports:
            found = values(report)
            if all(not keys.get(tag) or found.get(tag) == keys[tag] for tag in [(0x20, 0xD), (0x20, 0xE)]):
                connection.say(FIND, command(0x8020, kind=FIND, asked=message, status=PENDING, follows=True), report)
        connection.say(FIND, command(0x8020, kind=FIND, asked=message, status=0))

    def get(self, connection, message, keys):
        for report in self.reports:
            found = values(report)
            if found.get((8, 0x18)) == keys.get((8, 0x18)):
                self.give(connection, report, found)
        connection.say(GET, command(0x8010, kind=GET, asked=message, status=self.overrides.get("get", 0)))

    def give(self, connection, report, found):
        change = self.overrides.get("give", lambda report: report)
        connection.say(COMPREHENSIVE,
                       command(0x0001, kind=COMPREHENSIVE, message=7, follows=True, instance=found[8, 0x18]),
                       change(report))
        connection.read_message()


def report(patient="AB-123", instance="1.2.3.3", series="1.2.3.2", study="1.2.3.1", day="20261113", kind=COMPREHENSIVE,
           rest=b""):
    return (element(8, 0x16, kind) + element(8, 0x18, instance) + element(8, 0x20, day) + element(8, 0x60, "SR") +
            element(0x10, 0x20, patient) + element(0x20, 0xD, study) + element(0x20, 0xE, series) + rest)
