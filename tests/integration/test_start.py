"""Start-up, shutdown and the configuration file, seen from outside."""

import contextlib
import errno
import os
import signal
import socket
import subprocess
import tempfile
import time
import unittest
from pathlib import Path

from hands import Hands
from screen import Screen
from station import BINARY, PATIENCE, Station, wait_for

READ_TEN = bytes([0, 1, 0, 0, 0, 6, 1, 3, 0, 0, 0, 10])


class Start(unittest.TestCase):
    def test_without_a_screen_it_serves_and_says_so(self):
        environment = {k: v for k, v in os.environ.items()
                       if k not in ("DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM")}
        with Station(environment=environment) as station:
            self.assertEqual(len(station.ask(READ_TEN, 29)), 29)
            self.assertIn("no hay pantalla", station.errors())

    def test_stderr_holds_the_stations_own_lines_and_no_others(self):
        environment = {k: v for k, v in os.environ.items() if k != "XDG_RUNTIME_DIR"}
        environment["QT_QPA_PLATFORM"] = "offscreen"
        with Station(environment=environment) as station:
            wait_for(lambda: station.setting("ver") is not None, "the window to be shown")
            self.assertEqual(station.errors().splitlines(),
                             [f"esclavo-modbus: escucha en el puerto {station.port}"])
        with Station(config="[Trelvano]\r\nver=0\r\nPUERTO_VALOR=@PORT@\r\n", environment=environment) as station:
            wait_for(lambda: "oculta" in station.errors(), "the line about the hidden window")
            self.assertEqual(len(station.errors().splitlines()), 2)

    def test_a_run_time_folder_that_qt_does_not_like_is_no_line_of_the_stations(self):
        with tempfile.TemporaryDirectory() as folder:
            os.chmod(folder, 0o755)
            for place in (folder, folder + "/no-existe"):
                environment = {**os.environ, "QT_QPA_PLATFORM": "offscreen", "XDG_RUNTIME_DIR": place}
                with self.subTest(place=place), Station(environment=environment) as station:
                    wait_for(lambda: station.setting("ver") is not None, "the window to be shown")
                    self.assertEqual(station.errors().splitlines(),
                                     [f"esclavo-modbus: escucha en el puerto {station.port}"])

    def test_a_master_over_ipv6_is_served_where_there_is_one(self):
        with Station() as station:
            try:
                master = socket.create_connection(("::1", station.port), timeout=PATIENCE)
            except OSError as error:
                if error.errno == errno.ECONNREFUSED:
                    raise
                self.skipTest("no IPv6 here")
            with master:
                master.sendall(READ_TEN)
                self.assertTrue(master.recv(29))

    def test_a_screen_that_cannot_be_reached_counts_as_none(self):
        bare = {k: v for k, v in os.environ.items() if k not in ("DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM")}
        for screen in ({"DISPLAY": ":9876"}, {"WAYLAND_DISPLAY": "wayland-9876"}, {"DISPLAY": "tonterías"},
                       {"DISPLAY": ":9876", "QT_QPA_PLATFORM": "xcb"}):
            with self.subTest(screen=screen), Station(environment={**bare, **screen}) as station:
                self.assertEqual(len(station.ask(READ_TEN, 29)), 29)
                self.assertIn("no se puede abrir la pantalla", station.errors())
        with Station(environment={**bare, "DISPLAY": ":9876"}, arguments=["-platform", "xcb"]) as station:
            self.assertEqual(len(station.ask(READ_TEN, 29)), 29)

    def test_a_screen_that_begins_anew_when_its_last_client_leaves_is_found_every_time(self):
        with Screen() as screen, Hands() as hands:
            for _ in range(8):
                with Station(environment={**screen.environment, **hands.environment}):
                    hands.wait_for_shown("FrmPrincipal")
                hands.forget()

    def test_in_a_folder_that_cannot_be_written_the_users_own_takes_the_settings(self):
        with tempfile.TemporaryDirectory() as home:
            os.chmod(home, 0o777)
            station = Station(environment={**os.environ, "QT_QPA_PLATFORM": "offscreen", "XDG_CONFIG_HOME": home},
                              user=65534 if os.geteuid() == 0 else None)
            station.ini.chmod(0o444)
            (station.folder / "codigoTrelvano.txt").write_text("a = 1")
            with open(station.folder / "stderr.txt", "wb"):
                station.folder.chmod(0o555)
            with station:
                own = Path(home) / "esclavo-modbus"
                self.assertIn(f"PUERTO_VALOR={station.port}", (own / "Sis_Config.ini").read_text())
                wait_for(lambda: "ver=1" in (own / "Sis_Config.ini").read_text(), "the default of ver")
                self.assertEqual((own / "codigoTrelvano.txt").read_text(), "a = 1")
                self.assertEqual(station.errors().count("No se puede escribir en"), 1)
                self.assertIsNone(station.setting("ver"))

    def test_help_and_version_print_and_end_and_other_options_are_refused(self):
        for option, result, printed in (("--help", 0, "Uso: esclavo-modbus"), ("-h", 0, "--version"),
                                        ("--version", 0, "esclavo-modbus 3.")):
            done = self.run_with(option)
            self.assertEqual((done.returncode, done.stderr), (result, ""))
            self.assertIn(printed, done.stdout)
        for option in ("--veiw", "-x", "--help=1"):
            done = self.run_with(option)
            self.assertEqual((done.returncode, done.stdout), (2, ""))
            self.assertIn(f"opción desconocida: {option}\nUso:", done.stderr)

    @staticmethod
    def run_with(option):
        return subprocess.run([BINARY, option], text=True, capture_output=True, timeout=PATIENCE)

    def test_the_word_view_counts_even_as_the_value_of_an_option_of_the_window_system(self):
        with Station(config="[Trelvano]\r\nver=0\r\nPUERTO_VALOR=@PORT@\r\n",
                     arguments=["-qwindowtitle", "Review"]) as station:
            wait_for(lambda: station.setting("ver") == "1", "ver to become 1")

    def test_the_first_start_writes_the_defaults_into_the_file(self):
        with Station() as station:
            wait_for(lambda: station.setting("ver") is not None, "the default of ver")
            self.assertEqual(station.setting("ver"), "1")
            self.assertEqual(station.setting("PUERTO_VALOR"), str(station.port))

    def test_the_word_view_shows_the_window_for_good(self):
        with Station(config="[Trelvano]\r\nver=0\r\nPUERTO_VALOR=@PORT@\r\n", arguments=["--preVIEWer"]) as station:
            wait_for(lambda: station.setting("ver") == "1", "ver to become 1")

    def test_a_hidden_station_stays_hidden_and_serves(self):
        with Station(config="[Trelvano]\nver=0\nPUERTO_VALOR=@PORT@\n") as station:
            self.assertEqual(len(station.ask(READ_TEN, 29)), 29)
            self.assertEqual(station.setting("ver"), "0")

    def test_a_port_edited_while_it_runs_moves_the_listener(self):
        with Station() as station:
            first = station.port
            with Station() as other:
                station.port = other.port
            station.ini.write_text(f"[Trelvano]\nPUERTO_VALOR={station.port}\n")
            station.wait_until_listening()
            self.assertEqual(len(station.ask(READ_TEN, 29)), 29)
            station.port = first
            self.assertFalse(station.accepts())

    def test_sigterm_and_sigint_end_it_within_a_second_whatever_is_connected(self):
        for number in (signal.SIGTERM, signal.SIGINT):
            with self.subTest(number=number), Station() as station:
                masters = [station.connect() for _ in range(50)]
                masters[0].sendall(READ_TEN)
                began = time.monotonic()
                self.assertEqual(station.stop(number), 0)
                self.assertLess(time.monotonic() - began, 1.0)
                for master in masters:
                    master.close()

    def test_the_bridge_listens_on_its_two_ports(self):
        # Other stations of a parallel run may hold the ports; then this one says so.
        with Station() as station:
            for port in (500, 501):
                wait_for(lambda port=port: self.bridge_answers(port) or f"puerto {port}" in station.errors(),
                         f"port {port} to listen or to be refused")

    @staticmethod
    def bridge_answers(port):
        try:
            socket.create_connection(("127.0.0.1", port), timeout=5).close()
            return True
        except ConnectionRefusedError:
            return False

    def test_a_bridge_port_that_is_taken_is_told_once_and_tried_again(self):
        with contextlib.ExitStack() as stack:
            holder = socket.socket()
            stack.callback(holder.close)
            holder.setsockopt(socket.SOL_SOCKET, socket.SO_REUSEADDR, 1)
            with contextlib.suppress(OSError):  # held by a station of a parallel run, or not permitted: as good
                holder.bind(("", 500))
                holder.listen()
            with Station() as station:
                wait_for(lambda: "puerto 500" in station.errors(), "the reason why port 500 is refused")
                time.sleep(2.5)  # two more attempts
                self.assertEqual(station.errors().count("puerto 500"), 1)
                self.assertTrue(station.alive())

    def test_an_idle_station_uses_no_processor(self):
        with Station() as station:
            before = station.processor_seconds()
            began = time.monotonic()
            time.sleep(6)  # an interval to measure over: one tick of the five-second timer is in it
            share = (station.processor_seconds() - before) / (time.monotonic() - began)
            self.assertLess(share, 0.02)


class SecondCopy(unittest.TestCase):
    HIDDEN = "[Trelvano]\r\nver=0\r\nPUERTO_VALOR=@PORT@\r\n"

    def test_it_says_so_and_after_confirming_the_first_shows_itself_within_five_seconds(self):
        with Screen() as screen, Station(config=self.HIDDEN, environment=screen.environment) as first:
            self.assertFalse(screen.windows("Trelvano"))
            second = first.second_copy()
            box = wait_for(lambda: screen.windows("Esclavo Modbus"), "the message of the second copy")[0]
            self.assertEqual(first.setting("ver"), "0")
            screen.key(box, "Return")
            self.assertEqual(second.wait(PATIENCE), 0)
            confirmed = time.monotonic()
            self.assertEqual(first.setting("ver"), "1")
            wait_for(lambda: screen.windows("Trelvano"), "the first copy to show its window")
            self.assertLess(time.monotonic() - confirmed, 9)  # it looks every five seconds
            self.assertEqual(len(first.ask(READ_TEN, 29)), 29)

    def test_a_copy_of_the_program_in_another_folder_is_another_program(self):
        with Station() as one, Station() as other:
            self.assertTrue(one.alive() and other.alive())

    def test_without_a_screen_it_says_so_and_waits_for_nobody(self):
        environment = {k: v for k, v in os.environ.items()
                       if k not in ("DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM")}
        with Station(config=self.HIDDEN, environment=environment) as first:
            self.assertEqual(first.second_copy().wait(10), 0)
            self.assertEqual(first.setting("ver"), "1")
            self.assertTrue(first.alive())

    def test_sigterm_ends_it_while_its_message_is_open_and_the_first_stays_hidden(self):
        with Screen() as screen, Station(config=self.HIDDEN, environment=screen.environment) as first:
            second = first.second_copy()
            wait_for(lambda: screen.windows("Esclavo Modbus"), "the message of the second copy")
            second.send_signal(signal.SIGTERM)
            self.assertEqual(second.wait(1), 0)
            self.assertEqual(first.setting("ver"), "0")

    def test_after_a_crash_the_next_start_is_the_first_again(self):
        with Station(config=self.HIDDEN) as first:
            first.process.kill()
            first.process.wait()
            first.launch()
            first.wait_until_listening()


class CloseBox(unittest.TestCase):
    def test_closing_the_window_ends_the_program(self):
        with Screen() as screen, Station(environment=screen.environment) as station:
            master = station.connect()
            window = wait_for(lambda: screen.windows("Trelvano"), "the window")[0]
            screen.close_box(window)
            self.assertEqual(station.process.wait(1), 0)
            self.assertEqual(station.setting("ver"), "1")
            master.close()

    def test_the_txrx_window_does_not_take_the_focus(self):
        with Screen() as screen, Station(environment=screen.environment) as station:
            window = wait_for(lambda: screen.windows("Trelvano"), "the window")[0]
            for key in ["shift+Tab"] * 7 + ["space"]:
                screen.key(window, key)
            wait_for(lambda: screen.windows("TxRx"), "the TX/RX window")
            screen.key(None, "space")  # still goes to the check box, which hides it again
            wait_for(lambda: not screen.windows("TxRx"), "the TX/RX window to hide")
            self.assertTrue(station.alive())


if __name__ == "__main__":
    unittest.main()
