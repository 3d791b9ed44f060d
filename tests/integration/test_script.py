"""The user's script, seen from outside: a master reads what it writes; files of every kind; endless loops."""

import os
import signal
import struct
import time
import unittest

from station import Station, wait_for

CONFIG = "[Trelvano]\r\nPUERTO_VALOR=@PORT@\r\nCodigo_Ejecutar=1\r\nEjecucion_Codigo_Milisegundos=10\r\n"


class ScriptStation(Station):
    """A station that runs a script every 10 ms."""

    def __init__(self, script=None, project="", **more):
        super().__init__(config=CONFIG + project, **more)
        if script is not None:
            self.write(script)

    @property
    def script(self):
        return self.folder / "codigoTrelvano.txt"

    def write(self, text, path=None):
        """Replaces a script in one step, as the station's editor does."""
        path = path or self.script
        new = path.with_name("nuevo.tmp")
        new.write_bytes(text if isinstance(text, bytes) else text.encode())
        os.replace(new, path)

    def read(self, slave, address, count=1):
        """The registers as a master reads them."""
        answer = self.ask(struct.pack(">HHHBBHH", 1, 0, 6, slave, 3, address, count), 9 + 2 * count)
        return list(struct.unpack(f">{count}H", answer[9:]))

    def wait_for_register(self, slave, address, value):
        wait_for(lambda: self.read(slave, address)[0] == value, f"register {address} to become {value}")


class Passes(unittest.TestCase):
    def test_a_master_reads_what_the_script_writes(self):
        with ScriptStation("mw.escribir 1, 10, 4660\nmw.escribir_C2 1, 11, -2\nmw.escribir_bit 1, 12, 15, 1") as station:
            station.wait_for_register(1, 12, 32768)
            self.assertEqual(station.read(1, 10, 3), [4660, 65534, 32768])

    def test_numbers_in_a_script_have_a_point_in_every_locale(self):
        with ScriptStation("mw.escribir 1, 0, 1.5*10\nmw.escribir 1, 1, 0.25*100\nmw.escribir 1, 2, 1e3") as station:
            station.wait_for_register(1, 2, 1000)
            self.assertEqual(station.read(1, 0, 2), [15, 25])

    def test_an_edited_script_takes_effect_on_the_next_pass(self):
        with ScriptStation("mw.escribir 1, 0, 1") as station:
            station.wait_for_register(1, 0, 1)
            station.write("mw.escribir 1, 0, 2")
            station.wait_for_register(1, 0, 2)

    def test_globals_last_from_pass_to_pass_and_over_an_edit(self):
        with ScriptStation("mw.escribir 1, 0, viejo\nviejo = viejo + 1") as station:
            wait_for(lambda: station.read(1, 0)[0] >= 3, "some passes")
            station.write("mw.escribir 1, 1, viejo")
            wait_for(lambda: station.read(1, 1)[0] >= 3, "the value of the variable")

    def test_a_master_never_sees_half_a_pass(self):
        script = "n = (n + 1) Mod 60000\nFor i = 0 To 49\n  mw.escribir 1, i, n\nNext"
        with ScriptStation(script) as station:
            for _ in range(300):
                self.assertEqual(len(set(station.read(1, 0, 50))), 1)

    def test_a_script_that_writes_outside_its_tables_harms_nothing(self):
        with ScriptStation("mw.escribir 1, 0, 7\nmw.escribir 1, 5000, 1\nmw.escribir 1, 1, 7") as station:
            station.wait_for_register(1, 0, 7)
            self.assertEqual(station.read(1, 1), [0])


class Files(unittest.TestCase):
    def expect_serving(self, station):
        self.assertEqual(station.read(1, 0), [0])
        if station.script.is_dir():
            station.script.rmdir()
        station.write("mw.escribir 1, 0, 3")
        station.wait_for_register(1, 0, 3)

    def test_missing(self):
        with ScriptStation() as station:
            self.expect_serving(station)

    def test_a_folder_in_its_place(self):
        station = ScriptStation()
        station.script.mkdir()
        with station:
            self.expect_serving(station)

    def test_a_pipe_that_nobody_writes_to(self):
        station = ScriptStation()
        os.mkfifo(station.script)
        with station:
            self.expect_serving(station)

    def test_an_endless_device(self):
        station = ScriptStation()
        station.script.symlink_to("/dev/zero")
        with station:
            self.expect_serving(station)

    def test_binary(self):
        with ScriptStation(bytes(range(256)) * 400) as station:
            self.expect_serving(station)

    def test_huge(self):
        with ScriptStation(b"a = 1\r\n" * 1_500_000) as station:
            self.expect_serving(station)

    def test_one_line_of_many_megabytes(self):
        with ScriptStation(b"a = \"" + b"x" * 10_000_000 + b"\"") as station:
            self.expect_serving(station)

    def test_changing_all_the_time(self):
        with ScriptStation() as station:
            for n in range(1, 200):
                station.write(f"' {'x' * (n % 7 * 1000)}\nmw.escribir 1, 0, {n}\nmw.escribir 1, 1, {n}")
                first, second = station.read(1, 0, 2)
                self.assertEqual(first, second)
            station.wait_for_register(1, 0, 199)

    def test_accents_in_windows_1252(self):
        with ScriptStation('mw.escribir 1, 0, AscW("ñ")'.encode("cp1252")) as station:
            station.wait_for_register(1, 0, 0xF1)

    def test_accents_in_utf_16(self):
        for codec, mark in (("utf-16-le", b"\xff\xfe"), ("utf-16-be", b"\xfe\xff")):
            with ScriptStation(mark + 'mw.escribir 1, 0, AscW("ñ")'.encode(codec)) as station:
                station.wait_for_register(1, 0, 0xF1)

    def test_accents_in_utf_8(self):
        with ScriptStation('mw.escribir 1, 0, AscW("ñ")') as station:
            station.wait_for_register(1, 0, 0xF1)


class Projects(unittest.TestCase):
    def run_project(self, name, script_name):
        station = ScriptStation("mw.escribir 1, 0, 1")
        project = station.folder / name
        section = f"[PROYECTO_PREDETERMINADO]\r\nRutaProyecto={project}\r\n"
        station.ini.write_bytes(station.ini.read_bytes() + section.encode("cp1252"))
        with station:
            station.wait_for_register(1, 0, 1)  # no project yet
            project.write_text("")
            station.write("mw.escribir 1, 0, 2")
            station.wait_for_register(1, 0, 2)  # a project without script
            station.write("mw.escribir 1, 0, 3", station.folder / script_name)
            station.wait_for_register(1, 0, 3)  # and with
            project.unlink()
            station.wait_for_register(1, 0, 2)

    def test_plain(self):
        self.run_project("planta.zqp", "planta.KOVAScrip")

    def test_capitals(self):
        self.run_project("PLANTA.ZQP", "PLANTA.KOVAScrip")

    def test_blanks(self):
        self.run_project("mi planta.zqp", "mi planta.KOVAScrip")

    def test_accents(self):
        self.run_project("Depuración nº 1.Zqp", "Depuración nº 1.KOVAScrip")


class EndlessLoop(unittest.TestCase):
    def test_sigterm_and_sigint_end_the_station_within_a_second(self):
        for number in (signal.SIGTERM, signal.SIGINT):
            with self.subTest(number=number), ScriptStation() as station:
                station.write("On Error Resume Next\nmw.escribir 1, 0, 1\nDo\nLoop")
                wait_for(lambda: not self.answers(station), "the loop to hold the station")
                began = time.monotonic()
                self.assertEqual(station.stop(number), 0)
                self.assertLess(time.monotonic() - began, 1.0)

    @staticmethod
    def answers(station):
        with station.connect() as master:
            master.settimeout(0.3)
            master.sendall(struct.pack(">HHHBBHH", 1, 0, 6, 1, 3, 0, 1))
            try:
                return len(master.recv(11)) == 11
            except TimeoutError:
                return False


if __name__ == "__main__":
    unittest.main()
