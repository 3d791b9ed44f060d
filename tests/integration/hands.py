"""Uses windows and controls of a station by their names, through the plugin of outside/Hands.cpp."""

import os
import socket
import tempfile
from pathlib import Path

from station import PATIENCE, wait_for

PLUGINS = Path(os.environ["STATION_PLUGINS"])


class Hands:
    """`with Hands() as hands, Station(environment={**environment, **hands.environment}) as station: hands.press(…)`"""

    def __enter__(self):
        self.folder = tempfile.TemporaryDirectory(prefix="manos-")
        self.path = f"{self.folder.name}/socket"
        self.environment = {"QT_PLUGIN_PATH": str(PLUGINS), "QT_QPA_GENERIC_PLUGINS": f"hands:{self.path}"}
        self.socket = None
        return self

    def __exit__(self, *_):
        self.forget()
        self.folder.cleanup()

    def forget(self):
        """After the station has ended: the next one may have them."""
        if self.socket:
            self.socket.close()
            self.socket = None
        Path(self.path).unlink(missing_ok=True)

    def connect(self):
        connection = socket.socket(socket.AF_UNIX, socket.SOCK_SEQPACKET)
        connection.settimeout(PATIENCE)
        connection.connect(self.path)
        return connection

    def tell(self, *words):
        if self.socket is None:
            wait_for(lambda: os.path.exists(self.path), "the plugin to be loaded")
            self.socket = self.connect()
        self.socket.sendall(" ".join(words).encode())
        answer = self.socket.recv(16)
        assert answer in (b"yes", b"no"), f"the station ended at {words}"
        return answer == b"yes"

    def shown(self, window):
        return self.tell("shown", window)

    def checked(self, window, control):
        return self.tell("checked", window, control)

    def press(self, window, control, patience=PATIENCE):
        """Waits until the control can be used, and clicks it."""
        wait_for(lambda: self.tell("press", window, control), f"{control} of {window} to be usable", patience)

    def trigger(self, window, action, patience=PATIENCE):
        wait_for(lambda: self.tell("trigger", window, action), f"{action!r} of {window} to be usable", patience)

    def close(self, window, patience=PATIENCE):
        wait_for(lambda: self.tell("close", window), f"{window} to be there", patience)
        wait_for(lambda: not self.shown(window), f"{window} to close", patience)

    def wait_for_shown(self, window, shown=True, patience=PATIENCE):
        wait_for(lambda: self.shown(window) == shown, f"{window} to be {'shown' if shown else 'hidden'}", patience)
