"""The masters of the soak: those whose every answer is checked against a naive model, and those that misbehave."""

import contextlib
import random
import socket
import struct
import threading
import time

PATIENCE = 60.0
READ, READ_INPUT, WRITE = 3, 4, 6
HOSTILE_UNITS = range(128, 136)
SCRIPT_UNIT = SERIAL_REGISTER = 60


class Tally:
    """What happened, counted from every thread."""

    def __init__(self):
        self.lock = threading.Lock()
        self.counts = {}
        self.faults = []

    def add(self, what, count=1):
        with self.lock:
            self.counts[what] = self.counts.get(what, 0) + count

    def fault(self, text):
        with self.lock:
            self.faults.append(text)
        print(f"soak: FALLO: {text}", flush=True)

    def __getitem__(self, what):
        return self.counts.get(what, 0)


def frame(transaction, unit, function, address, value):
    return struct.pack(">HHHBBHH", transaction, 0, 6, unit, function, address, value)


def receive(connection, count):
    data = b""
    while len(data) < count:
        block = connection.recv(count - len(data))
        if not block:
            raise ConnectionResetError("the station closed")
        data += block
    return data


def connect(soak):
    """A connection to the port of the moment; waits while it moves."""
    deadline = time.monotonic() + PATIENCE
    while True:
        try:
            return socket.create_connection(("127.0.0.1", soak.port), timeout=PATIENCE)
        except OSError:
            if time.monotonic() > deadline:
                raise
            if soak.stopped.wait(0.05):
                raise


class Model:
    """The registers of one slave and the answers that they give."""

    def __init__(self, unit):
        self.unit = unit
        self.registers = {}

    def answer(self, request):
        _, _, _, unit, function, address, value = struct.unpack(">HHHBBHH", request)
        if function == WRITE:
            self.registers[address] = value
            return request[:5] + bytes([6, 1, WRITE]) + request[8:]
        if function not in (READ, READ_INPUT):
            return request[:5] + bytes([3, 0, 128, 2])
        if value >= 127:
            return request[:5] + bytes([3, 0, 128, 1])
        words = [self.registers.get(address + i, 0) for i in range(value)]
        data = struct.pack(f">{value}H", *words)
        return request[:5] + bytes([3 + len(data)]) + request[6:8] + bytes([len(data)]) + data


class Master:
    """Polls and writes one slave of its own; now and then it leaves, politely or not, and comes again."""

    ADDRESSES = 400

    def __init__(self, soak, unit):
        self.soak, self.tally, self.unit = soak, soak.tally, unit
        self.random = random.Random(unit)
        self.model = Model(unit)
        self.transaction = 0

    def run(self):
        with contextlib.suppress(OSError):
            while not self.soak.stopped.is_set():
                with connect(self.soak) as connection:
                    self.visit(connection)
                self.tally.add("connections")

    def visit(self, connection):
        pending = None
        try:
            self.resume(connection)
            for _ in range(self.random.randrange(50, 2000)):
                requests = [self.request() for _ in range(self.random.choice((1, 1, 1, 2, 4)))]
                if self.random.random() < 0.05:  # alone: behind others a refused request has an answer of its own kind
                    requests = [self.refused()]
                pending = dict(self.model.registers), requests
                self.exchange(connection, requests)
                pending = None
                if self.soak.stopped.wait(0.003):
                    return
            if self.random.random() < 0.3:
                reset(connection)
        except TimeoutError:
            self.tally.fault(f"slave {self.unit}: no answer in {PATIENCE} s")
        except OSError:
            self.tally.add("cut off")
        if pending:  # sent, perhaps served: the registers say so at the next visit
            self.model.registers, self.uncertain = pending[0], pending[1]

    uncertain = ()

    def resume(self, connection):
        """Takes over what became of writes whose answer never came."""
        for request in self.uncertain:
            *_, function, address, value = struct.unpack(">HHHBBHH", request)
            if function != WRITE:
                continue
            question = self.numbered(READ, address, 1)
            connection.sendall(question)
            found = struct.unpack(">H", receive(connection, 11)[9:])[0]
            if found not in (value, self.model.registers.get(address, 0)) and len(self.uncertain) == 1:
                self.tally.fault(f"slave {self.unit}: register {address} holds {found}")
            self.model.registers[address] = found
        self.uncertain = ()
        self.exchange(connection, [self.numbered(READ, first, 100) for first in range(0, self.ADDRESSES, 100)])

    def numbered(self, function, address, value):
        self.transaction = (self.transaction + 1) % 65536
        return frame(self.transaction, self.unit, function, address, value)

    def request(self):
        kind = self.random.random()
        address = self.random.randrange(self.ADDRESSES)
        if kind < 0.5:
            return self.numbered(WRITE, address, self.random.randrange(65536))
        count = self.random.randrange(1, min(126, self.ADDRESSES - address) + 1)
        return self.numbered(self.random.choice((READ, READ_INPUT)), address, count)

    def refused(self):
        """Too many registers, or a function that is not served."""
        return self.random.choice((self.numbered(READ, 0, 200), self.numbered(16, 0, 1)))

    def exchange(self, connection, requests):
        connection.sendall(asked := b"".join(requests))
        expected = b"".join(self.model.answer(request) for request in requests)
        answer = receive(connection, len(expected))
        self.tally.add("answers", len(requests))
        if answer != expected:
            self.tally.add("wrong answers")
            self.tally.fault(f"slave {self.unit}: {asked.hex()} gives {answer.hex()} not {expected.hex()}")


class ScriptReader:
    """Reads what the script writes: all fifty registers of one pass are alike, and passes go on."""

    def __init__(self, soak):
        self.soak, self.tally = soak, soak.tally

    def run(self):
        last, moved = None, time.monotonic()
        with contextlib.suppress(OSError):
            while not self.soak.stopped.wait(0.02):
                try:
                    with connect(self.soak) as connection:
                        while not self.soak.stopped.wait(0.02):
                            connection.sendall(frame(1, SCRIPT_UNIT, READ, 0, 50))
                            words = set(struct.unpack(">50H", receive(connection, 109)[9:]))
                            if len(words) != 1:
                                self.tally.fault(f"half a pass: {sorted(words)}")
                            if words != last:
                                self.tally.add("passes seen")
                                last, moved = words, time.monotonic()
                            if time.monotonic() - moved > PATIENCE:
                                self.tally.fault("the script stands still")
                                moved = time.monotonic()
                except ConnectionError:
                    self.tally.add("cut off")


def reset(connection):
    connection.setsockopt(socket.SOL_SOCKET, socket.SO_LINGER, struct.pack("ii", 1, 0))
    connection.close()


class Vandal:
    """Comes with garbage, half frames and nothing at all; leaves in every way there is."""

    def __init__(self, soak, number):
        self.soak, self.tally = soak, soak.tally
        self.random = random.Random(1000 + number)

    def run(self):
        acts = (self.garbage, self.half_frame, self.flood_unread, self.silence)
        while not self.soak.stopped.wait(self.random.random() * 0.2):
            with contextlib.suppress(OSError), connect(self.soak) as connection:
                self.random.choice(acts)(connection)
                self.tally.add("misbehaving connections")
                if self.random.random() < 0.5:
                    reset(connection)

    def garbage(self, connection):
        # Wherever the station takes a frame to begin, the unit is one of these: no slave of the others', none that is
        # new (each takes memory, which would look like a leak), and no function that writes.
        for _ in range(self.random.randrange(1, 20)):
            block = bytes(self.random.choices(HOSTILE_UNITS, k=self.random.randrange(1, 300)))
            connection.sendall(block)

    def half_frame(self, connection):
        unit = self.random.choice(HOSTILE_UNITS)
        whole = frame(7, unit, self.random.choice((3, 4, 6)), self.random.randrange(400), 1)
        connection.sendall(whole[: self.random.randrange(1, 12)])
        self.soak.stopped.wait(self.random.random())

    def flood_unread(self, connection):
        """Asks as much as the station takes, and never reads an answer."""
        connection.setblocking(False)
        asked = rest = frame(9, HOSTILE_UNITS[0], READ, 0, 100) * 50
        until = time.monotonic() + self.random.uniform(1, 5)
        while time.monotonic() < until and not self.soak.stopped.wait(0.02):
            with contextlib.suppress(BlockingIOError):
                rest = rest[connection.send(rest):] or asked

    def silence(self, _connection):
        self.soak.stopped.wait(self.random.uniform(0, 3))


class Bridge:
    """Two clients of the bridge: one sends a known sequence at full speed, the other reads it slowly."""

    BLOCK = bytes((i * 7 + i // 256) % 256 for i in range(65521))

    def __init__(self, soak):
        self.soak, self.tally = soak, soak.tally
        self.random = random.Random(3)

    def run(self):
        while not self.soak.stopped.wait(1.5):
            try:
                with socket.create_connection(("127.0.0.1", 500), 10) as one, \
                        socket.create_connection(("127.0.0.1", 501), 10) as two:
                    self.wait_for_pair(one, two)
                    for source, target in ((one, two), (two, one)):
                        self.relay(source, target)
            except OSError:
                self.tally.add("bridge cut off")

    def wait_for_pair(self, one, two):
        """A client may have to wait for the second's check of the state: asks until the other side hears."""
        two.settimeout(0.5)
        for _ in range(20):
            one.sendall(b"?")
            with contextlib.suppress(TimeoutError):
                two.recv(1)
                break
        for side in (one, two):
            side.settimeout(PATIENCE)
        one.sendall(b"!")
        while receive(two, 1) != b"!":  # what was asked before may still be on its way
            pass

    def relay(self, source, target):
        total = self.random.randrange(1, 60) * len(self.BLOCK)
        sender = threading.Thread(target=self.send, args=(source, total))
        sender.start()
        received = 0
        try:
            while received < total and not self.soak.stopped.is_set():
                block = receive(target, min(16384, total - received))
                start = received % len(self.BLOCK)
                if block != (self.BLOCK * 2)[start:start + len(block)]:
                    self.tally.fault(f"the bridge alters what passes, after {received} bytes")
                    break
                received += len(block)
                self.tally.add("bridge bytes", len(block))
                self.soak.stopped.wait(0.05)
        finally:
            if received < total:
                source.shutdown(socket.SHUT_RDWR)
            sender.join()

    def send(self, source, total):
        with contextlib.suppress(OSError):
            for _ in range(total // len(self.BLOCK)):
                source.sendall(self.BLOCK)
