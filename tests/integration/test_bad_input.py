"""What a careless or hostile world hands the station: it goes on serving."""

import os
import random
import socket
import time
import unittest

from station import Station, receive, wait_for

READ_TEN = bytes([0, 1, 0, 0, 0, 6, 1, 3, 0, 0, 0, 10])


class Configuration(unittest.TestCase):
    def refused(self, value, why):
        with_port = f"[Trelvano]\nPUERTO_VALOR={value}\n"
        station = Station(config=with_port)
        try:
            station.launch()
            wait_for(lambda: station.alive() and why in station.errors(), f"the notice about port {value!r}")
            wait_for(lambda: station.setting("ver"), "the defaults in the file")
            # The operator mends the file and the station listens.
            station.ini.write_text(f"[Trelvano]\nPUERTO_VALOR={station.port}\n")
            station.wait_until_listening()
            self.assertEqual(len(station.ask(READ_TEN, 29)), 29)
            self.assertEqual(station.errors().count(why), 1)
        finally:
            station.__exit__()

    def test_ports_that_are_none(self):
        for value in ("texto", "0", "70000", "-1", "1e9"):
            with self.subTest(value=value):
                self.refused(value, "no es válido")

    def test_a_port_that_another_program_holds(self):
        with socket.socket() as other:
            other.bind(("127.0.0.1", 0))
            other.listen()
            self.refused(port := other.getsockname()[1], f"El puerto {port} está ocupado por otro programa")

    def serves_by_default(self, prepare):
        """With nothing usable in the file the station falls back to port 502, or says why it can't have it."""
        station = Station(config="")
        try:
            prepare(station)
            station.launch()
            station.port = 502
            wait_for(station.settled, "port 502")
            wait_for(lambda: self.rests(station), "a second of rest: the station spins")
        finally:
            station.__exit__()

    @staticmethod
    def rests(station):
        """Writing the missing keys into a large file goes on for a while after the port is open."""
        before = station.processor_seconds()
        time.sleep(1)  # an interval to measure over
        return station.processor_seconds() - before < 0.5

    def test_junk(self):
        self.serves_by_default(lambda s: s.ini.write_bytes(random.Random(1).randbytes(5000)))

    def test_no_sections(self):
        self.serves_by_default(lambda s: s.ini.write_text("PUERTO_VALOR=1\nver=1\n"))

    def test_nul_bytes(self):
        self.serves_by_default(lambda s: s.ini.write_bytes(b"[Trel\0vano]\0\nPUERTO\0=1\n" * 100))

    def test_ten_megabytes(self):
        self.serves_by_default(lambda s: s.ini.write_bytes(b"[otra]\nclave=valor\n" * 550_000))

    def test_a_directory_in_its_place(self):
        self.serves_by_default(lambda s: s.ini.mkdir())

    def test_a_read_only_file(self):
        with Station() as station:
            station.stop()
            station.ini.chmod(0o444)
            station.folder.chmod(0o555)
            try:
                station.launch()
                station.wait_until_listening()
                self.assertEqual(len(station.ask(READ_TEN, 29)), 29)
                station.stop()
            finally:
                station.folder.chmod(0o755)


class Arrivals(unittest.TestCase):
    def test_junk_of_every_length_leaves_the_socket_open_and_memory_bounded(self):
        noise = random.Random(2)
        with Station() as station, station.connect() as master:
            master.setblocking(False)
            for length in [*range(1, 300), 4096, 65535] * 3:
                junk = noise.randbytes(length)
                try:
                    master.sendall(junk)
                except BlockingIOError:
                    pass
                try:
                    while master.recv(65536):
                        pass
                    self.fail("the station closed the connection")
                except BlockingIOError:
                    pass
            self.assertEqual(len(station.ask(READ_TEN, 29)), 29)
            self.assertLess(station.resident_bytes(), 600e6)

    def test_a_master_that_never_reads_costs_a_bounded_queue(self):
        with Station() as station, station.connect() as greedy:
            before = station.resident_bytes()
            greedy.setblocking(False)
            sent = 0
            stalled = time.monotonic()
            while sent < 200e6 and time.monotonic() - stalled < 1:
                try:
                    sent += greedy.send(READ_TEN * 5000)
                    stalled = time.monotonic()
                except BlockingIOError:
                    time.sleep(0.01)
            self.assertLess(sent, 200e6, "the station went on reading")
            self.assertLess(station.resident_bytes() - before, 20e6)
            self.assertEqual(len(station.ask(READ_TEN, 29)), 29)

    def test_masters_that_reset_in_the_middle(self):
        with Station() as station:
            for _ in range(200):
                with station.connect() as master:
                    master.setsockopt(socket.SOL_SOCKET, socket.SO_LINGER, b"\1\0\0\0\0\0\0\0")
                    master.sendall(READ_TEN * 100)
            self.assertEqual(len(station.ask(READ_TEN, 29)), 29)


class Descriptors(unittest.TestCase):
    def test_when_they_run_out_the_listener_waits_and_later_accepts_again(self):
        with Station(descriptors=48) as station:
            masters = [station.connect() for _ in range(80)]  # the kernel's backlog takes those the station can't
            before = station.processor_seconds()
            time.sleep(1)  # an interval to measure over
            self.assertLess(station.processor_seconds() - before, 0.3, "the station spins")
            for master in masters[:60]:
                master.close()
            for master in masters[60:]:
                master.sendall(READ_TEN)
                self.assertEqual(len(receive(master, 29)), 29)
                master.close()


if __name__ == "__main__":
    unittest.main()
