"""Faults from outside: disks, folders, memory, clocks and screens that fail. The station serves on, and loses nothing."""

import errno
import os
import re
import resource
import shutil
import signal
import struct
import time
import unittest
from contextlib import contextmanager
from pathlib import Path

from hands import Hands
from screen import Screen
from station import Station, receive, wait_for
from world import World

OFFSCREEN = {**os.environ, "QT_QPA_PLATFORM": "offscreen"}
READ_TEN = bytes([0, 1, 0, 0, 0, 6, 1, 3, 0, 0, 0, 10])
COUNTING = "n = (n + 1) Mod 60000\nmw.escribir 60, 0, n"
RUNNING = "[Trelvano]\r\n; se queda\r\nPUERTO_VALOR=@PORT@\r\nCodigo_Ejecutar=1\r\nEjecucion_Codigo_Milisegundos=10\r\n"


@contextmanager
def station_in_a_world(config=None, script=None):
    """A station whose files and clock can be made to fail, and hands to use its windows."""
    with World() as world, Hands() as hands:
        environment = {**OFFSCREEN, **world.environment, **hands.environment}
        station = Station(config=config, environment=environment)
        if script is not None:
            (station.folder / "codigoTrelvano.txt").write_text(script)
        with station:
            yield station, world, hands


def serves(station):
    return len(station.ask(READ_TEN, 29)) == 29


def counted(station):
    """What the counting script has reached."""
    return struct.unpack(">H", station.ask(struct.pack(">HHHBBHH", 1, 0, 6, 60, 3, 0, 1), 11)[9:])[0]


def counts_on(station):
    before = counted(station)
    return wait_for(lambda: counted(station) != before, "the script to run on")


class Settings(unittest.TestCase):
    FAULTS = (("write", errno.ENOSPC), ("write", errno.EIO), ("fsync", errno.EIO), ("fsync", errno.ENOSPC),
              ("rename", errno.ENOSPC), ("rename", errno.EIO), ("open", errno.EROFS), ("open", errno.EIO),
              ("open", errno.ENOSPC), ("read", errno.EIO))

    def test_no_failing_call_costs_a_line_and_afterwards_they_are_written_again(self):
        with station_in_a_world(RUNNING, COUNTING) as (station, world, hands):
            hands.wait_for_shown("FrmPrincipal")
            wait_for(lambda: station.setting("ver"), "the defaults in the file")
            whole = station.ini.read_bytes()
            for calls, number in self.FAULTS:
                with self.subTest(calls=calls, error=errno.errorcode[number]):
                    world.fail(calls, number, "Sis_Config.ini")
                    hands.press("FrmPrincipal", "chScript")
                    wait_for(lambda: not hands.checked("FrmPrincipal", "chScript"), "the box to be off")
                    self.assertEqual(station.ini.read_bytes(), whole)
                    self.assertEqual([p.name for p in station.folder.iterdir() if p.name.endswith(".tmp")], [])
                    self.assertTrue(serves(station))
                    world.heal()
                    hands.press("FrmPrincipal", "chScript")
                    wait_for(lambda: hands.checked("FrmPrincipal", "chScript"), "the box to be on")
            hands.press("FrmPrincipal", "chScript")
            wait_for(lambda: station.setting("Codigo_Ejecutar") == "0", "the setting to be written")
            self.assertIn(b"; se queda", station.ini.read_bytes())

    def test_a_full_disk_is_told_with_its_reason(self):
        with station_in_a_world(RUNNING) as (station, world, hands):
            wait_for(lambda: station.setting("ver"), "the defaults in the file")
            world.fail("write", errno.ENOSPC, "Sis_Config.ini")
            hands.press("FrmPrincipal", "chScript")
            wait_for(lambda: "Disco lleno" in station.errors(), "the reason on stderr")
            self.assertEqual(station.errors().count("Disco lleno"), 1)

    def test_a_first_start_on_a_full_disk_serves(self):
        with World() as world, Hands() as hands:
            world.fail("write,open", errno.ENOSPC, "Sis_Config.ini")
            environment = {**OFFSCREEN, **world.environment, **hands.environment}
            station = Station(config="", environment=environment)
            try:
                station.launch()
                station.port = 502
                wait_for(station.settled, "port 502")
            finally:
                station.__exit__()


class ScriptFile(unittest.TestCase):
    def test_while_it_cannot_be_read_masters_are_served_and_afterwards_it_runs_on(self):
        with station_in_a_world(RUNNING, COUNTING) as (station, world, _):
            for calls, number in (("open", errno.EIO), ("read", errno.EIO), ("open", errno.EACCES)):
                counts_on(station)
                world.fail(calls, number, "codigoTrelvano.txt")
                wait_for(lambda: self.stands_still(station), "the script to stop")
                self.assertTrue(serves(station))
                world.heal()
            counts_on(station)

    @staticmethod
    def stands_still(station):
        before = counted(station)
        time.sleep(0.2)  # twenty passes
        return counted(station) == before


class Logs(unittest.TestCase):
    def test_a_log_that_cannot_be_written_stops_nothing_and_is_written_again_later(self):
        with station_in_a_world(RUNNING, COUNTING) as (station, world, hands):
            (station.folder / "com1").symlink_to(station.folder / "no hay")
            world.fail("write,open", errno.ENOSPC, "LOGS_Trelvano")
            hands.press("FrmPrincipal", "btnVerFormularioRS232")
            hands.wait_for_shown("frmRS232")
            for _ in range(3):
                hands.press("frmRS232", "BtnAbrirPuerto")
            counts_on(station)
            self.assertEqual(self.lines(station), 0)
            world.heal()
            hands.press("frmRS232", "BtnAbrirPuerto")
            wait_for(lambda: self.lines(station) > 0, "a line in the log")

    @staticmethod
    def lines(station):
        return sum(len(log.read_bytes().splitlines()) for log in station.folder.glob("LOGS_Trelvano/*"))


class Folders(unittest.TestCase):
    def test_a_folder_that_vanishes_takes_nothing_with_it_and_may_come_back(self):
        with station_in_a_world(RUNNING, COUNTING) as (station, _, hands):
            hands.wait_for_shown("FrmPrincipal")
            counts_on(station)
            shutil.rmtree(station.folder)
            hands.press("FrmPrincipal", "chScript")  # wants to write the settings
            hands.press("FrmPrincipal", "btnVerFormularioRS232")  # wants to write the log
            hands.wait_for_shown("frmRS232")
            self.assertTrue(serves(station))
            station.folder.mkdir()
            (station.folder / "stderr.txt").touch()
            with Station() as other:
                port = other.port
            station.ini.write_text(f"[Trelvano]\nPUERTO_VALOR={port}\n")
            station.port = port
            wait_for(station.accepts, "the new port of the new file")

    def test_a_folder_that_becomes_read_only_keeps_its_settings(self):
        user = 65534 if os.geteuid() == 0 else None
        with Hands() as hands:
            os.chmod(hands.folder.name, 0o777)
            station = Station(config=RUNNING, environment={**OFFSCREEN, **hands.environment}, user=user)
            for path in (station.folder, station.ini, station.binary):
                os.chown(path, user or -1, -1)
            with station:
                wait_for(lambda: station.setting("ver"), "the defaults in the file")
                station.ini.chmod(0o444)
                station.folder.chmod(0o555)
                try:
                    whole = station.ini.read_bytes()
                    hands.press("FrmPrincipal", "chScript")
                    wait_for(lambda: "Permiso denegado" in station.errors(), "the reason on stderr")
                    self.assertEqual(station.ini.read_bytes(), whole)
                    self.assertTrue(serves(station))
                finally:
                    station.folder.chmod(0o755)
                    station.ini.chmod(0o644)


class Memory(unittest.TestCase):
    def test_when_it_runs_out_masters_go_without_answers_and_the_station_serves_on(self):
        if "san" in station_flavour():
            self.skipTest("a sanitizer reserves terabytes of addresses")
        with Station() as station:
            self.assertTrue(serves(station))
            size = int(re.search(r"VmSize:\s+(\d+)", Path(f"/proc/{station.process.pid}/status").read_text())[1]) * 1024
            limit = size + 40_000_000
            resource.prlimit(station.process.pid, resource.RLIMIT_AS, (limit, limit))
            unanswered = 0
            with station.connect() as master:
                master.settimeout(0.2)
                for unit in range(256):  # half a megabyte each, and a page
                    master.sendall(struct.pack(">HHHBBHH", unit, 0, 6, unit, 3, 65000, 10))
                    try:
                        receive(master, 29)
                    except TimeoutError:
                        unanswered += 1
                        if unanswered == 5:
                            break
            self.assertGreater(unanswered, 0, "memory did not run out")
            self.assertTrue(station.alive())
            self.assertTrue(serves(station))


def station_flavour():
    return "asan" if b"__asan_init" in Path(os.environ["ESCLAVO_MODBUS"]).read_bytes() else "plain"


class Clock(unittest.TestCase):
    def test_set_back_or_forward_it_stops_neither_masters_nor_script_nor_timers(self):
        year = 365 * 86400
        with station_in_a_world(RUNNING, COUNTING) as (station, world, hands):
            hands.press("FrmPrincipal", "ChRxTx")
            for seconds in (3600, -3600, 10 * year, -20 * year, 0):
                with self.subTest(seconds=seconds):
                    world.move_clock(seconds)
                    self.assertTrue(serves(station))
                    counts_on(station)
            world.move_clock(-3 * 86400)
            with Station() as other:
                port = other.port
            station.ini.write_bytes(station.ini.read_bytes().replace(
                f"PUERTO_VALOR={station.port}".encode(), f"PUERTO_VALOR={port}".encode()))
            station.port = port
            wait_for(station.accepts, "the new port", 12)


class Suspended(unittest.TestCase):
    def test_masters_that_asked_meanwhile_are_answered_when_it_goes_on(self):
        with station_in_a_world(RUNNING, COUNTING) as (station, _, __):
            masters = [station.connect() for _ in range(20)]
            try:
                station.process.send_signal(signal.SIGSTOP)
                for master in masters:
                    master.sendall(READ_TEN * 3)
                late = [station.connect() for _ in range(20)]  # the kernel takes them
                masters += late
                for master in late:
                    master.sendall(READ_TEN * 3)
                time.sleep(1)  # the suspension: long enough for every timer to have come due
                station.process.send_signal(signal.SIGCONT)
                for master in masters:
                    self.assertEqual(len(receive(master, 87)), 87)
                counts_on(station)
            finally:
                station.process.send_signal(signal.SIGCONT)
                for master in masters:
                    master.close()


class Display(unittest.TestCase):
    def test_when_it_ends_the_station_says_so_in_spanish_and_keeps_its_settings(self):
        with Screen() as screen, Hands() as hands:
            station = Station(config=RUNNING, environment={**screen.environment, **hands.environment})
            try:
                station.launch()
                station.wait_until_listening()
                hands.press("FrmPrincipal", "chScript")
                wait_for(lambda: station.setting("Codigo_Ejecutar") == "0", "the setting to be written")
                whole = station.ini.read_bytes()
                screen.server.kill()
                self.assertEqual(station.process.wait(20), 1)
                self.assertIn("esclavo-modbus: la pantalla ha dejado de responder", station.errors())
                self.assertNotIn("X11", station.errors())
                self.assertEqual(station.ini.read_bytes(), whole)
                hands.forget()  # it starts again at once, without a window
                station.launch()
                station.wait_until_listening()
            finally:
                station.__exit__()


if __name__ == "__main__":
    unittest.main()
