"""The world around a station, made to fail: files and clocks, through the library of outside/Faults.cpp."""

import os
import tempfile

FAULTS = os.environ["STATION_FAULTS"]
SIZE = 4096


class World:
    """`with World() as world, Station(environment={**environment, **world.environment}): world.fail(…)`"""

    def __enter__(self):
        self.orders = tempfile.NamedTemporaryFile(prefix="fallos-", buffering=0)
        self.heal()
        self.environment = {"LD_PRELOAD": FAULTS, "FAULTS": self.orders.name}
        return self

    def __exit__(self, *_):
        self.orders.close()

    def order(self, text):
        os.pwrite(self.orders.fileno(), text.encode().ljust(SIZE, b"\0"), 0)

    def fail(self, calls, number, path):
        """From now on these calls (a list as "write,rename") fail with errno `number` where the path holds `path`."""
        self.order(f"{calls} {number} {path}")

    def move_clock(self, seconds):
        self.order(f"clock {seconds}")

    def heal(self):
        self.order("")
