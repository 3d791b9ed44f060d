"""Starts the real program in a folder of its own, without a screen, and ends it again."""

import contextlib
import os
import re
import resource
import shutil
import signal
import socket
import subprocess
import tempfile
import time
from pathlib import Path

BINARY = Path(os.environ["ESCLAVO_MODBUS"])
# Generous: the tests also run under sanitizers, on a loaded machine.
PATIENCE = 30.0


def free_port():
    with socket.socket() as probe:
        probe.bind(("127.0.0.1", 0))
        return probe.getsockname()[1]


def wait_for(condition, what, patience=PATIENCE):
    """Returns the first true value of condition(); fails after `patience` seconds."""
    deadline = time.monotonic() + patience
    while not (value := condition()):
        if time.monotonic() > deadline:
            raise AssertionError(f"waited {patience} s for: {what}")
        time.sleep(0.01)
    return value


def receive(connection, count):
    """Exactly `count` bytes, or fewer when the peer ends the connection."""
    data = b""
    while len(data) < count and (block := connection.recv(count - len(data))):
        data += block
    return data


class Station:
    """A running station: `with Station() as station: … station.port …`.

    `config` is the text or the bytes of Sis_Config.ini; without it the file holds the port alone. `descriptors` limits
    the process as `ulimit -n` does. `user` is the number of the user (and group) whose process it becomes.
    """

    def __init__(self, config=None, arguments=(), descriptors=None, environment=None, user=None):
        self.port = free_port()
        self.folder = Path(tempfile.mkdtemp(prefix="estacion-"))
        self.ini = self.folder / "Sis_Config.ini"
        self.binary = self.folder / BINARY.name
        shutil.copy2(BINARY, self.binary)
        if config is None:
            config = f"[Trelvano]\nPUERTO_VALOR={self.port}\n"
        if isinstance(config, str):
            config = config.replace("@PORT@", str(self.port)).encode("cp1252")
        if config:
            self.ini.write_bytes(config)
        self.arguments = list(arguments)
        self.descriptors = descriptors
        self.environment = {**os.environ, "QT_QPA_PLATFORM": "offscreen"} if environment is None else environment
        self.user = user
        self.process = None

    def __enter__(self):
        self.launch()
        self.wait_until_listening()
        return self

    def __exit__(self, *_):
        try:
            if self.process and self.process.poll() is None:
                assert self.stop() == 0, f"the station ended with {self.process.returncode}: {self.errors()}"
        finally:
            if self.process and self.process.poll() is None:
                self.process.kill()
                self.process.wait()
            shutil.rmtree(self.folder, ignore_errors=True)

    def launch(self):
        def limit():
            if self.descriptors:
                resource.setrlimit(resource.RLIMIT_NOFILE, (self.descriptors, self.descriptors))

        with open(self.folder / "stderr.txt", "wb") as errors:
            self.process = subprocess.Popen(
                [self.binary, *self.arguments],
                stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL, stderr=errors,
                env=self.environment, preexec_fn=limit,
                user=self.user, group=self.user)

    def second_copy(self):
        """Starts the same program once more; the caller waits for its end."""
        return subprocess.Popen([str(self.binary)], env=self.environment, stdout=subprocess.DEVNULL,
                                stderr=subprocess.DEVNULL)

    def wait_until_listening(self):
        wait_for(lambda: self.alive() and self.accepts(), "the station to listen")

    def alive(self):
        assert self.process.poll() is None, f"the station ended: {self.process.returncode} {self.errors()}"
        return True

    def accepts(self):
        try:
            self.connect().close()
            return True
        except ConnectionRefusedError:
            return False

    def settled(self):
        """Whether this very process listens on the port or has said that it cannot: another program may hold it."""
        return self.alive() and (self.listens() or str(self.port) in self.errors())

    def listens(self):
        own = set()
        for descriptor in Path(f"/proc/{self.process.pid}/fd").iterdir():
            with contextlib.suppress(FileNotFoundError):  # closed meanwhile
                own.add(os.readlink(descriptor))
        tables = [table.read_text() for table in Path("/proc/net").glob("tcp*")]
        sockets = [line.split() for text in tables for line in text.splitlines()[1:]]
        return any(state == "0A" and int(address.rsplit(":", 1)[1], 16) == self.port and f"socket:[{inode}]" in own
                   for _, address, _, state, _, _, _, _, _, inode, *_ in sockets)

    def connect(self):
        return socket.create_connection(("127.0.0.1", self.port), timeout=PATIENCE)

    def ask(self, request, answer_length):
        """Sends one arrival on a connection of its own and returns the answer."""
        with self.connect() as master:
            master.sendall(bytes(request))
            return receive(master, answer_length)

    def stop(self, number=signal.SIGTERM, patience=PATIENCE):
        self.process.send_signal(number)
        return self.process.wait(patience)

    def errors(self):
        return (self.folder / "stderr.txt").read_text("utf-8", errors="replace")

    def setting(self, key):
        match = re.search(rf"^{key}=(.*?)\r?$", self.ini.read_text("cp1252"), re.MULTILINE | re.IGNORECASE)
        return match and match[1]

    def processor_seconds(self):
        fields = Path(f"/proc/{self.process.pid}/stat").read_text().rsplit(")", 1)[1].split()
        return (int(fields[11]) + int(fields[12])) / os.sysconf("SC_CLK_TCK")

    def resident_bytes(self):
        return int(Path(f"/proc/{self.process.pid}/statm").read_text().split()[1]) * os.sysconf("SC_PAGE_SIZE")
