"""Start-up, shutdown and the configuration file, seen from outside."""

import os
import signal
import time
import unittest

from station import Station, wait_for

READ_TEN = bytes([0, 1, 0, 0, 0, 6, 1, 3, 0, 0, 0, 10])


class Start(unittest.TestCase):
    def test_without_a_screen_it_serves_and_says_so(self):
        environment = {k: v for k, v in os.environ.items()
                       if k not in ("DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM")}
        with Station(environment=environment) as station:
            self.assertEqual(len(station.ask(READ_TEN, 29)), 29)
            self.assertIn("no hay pantalla", station.errors())

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

    def test_an_idle_station_uses_no_processor(self):
        with Station() as station:
            before = station.processor_seconds()
            began = time.monotonic()
            time.sleep(6)  # an interval to measure over: one tick of the five-second timer is in it
            share = (station.processor_seconds() - before) / (time.monotonic() - began)
            self.assertLess(share, 0.02)


if __name__ == "__main__":
    unittest.main()
