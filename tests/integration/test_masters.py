"""Real masters against the started station: pymodbus, mbpoll and libmodbus."""

import os
import subprocess
import unittest

from pymodbus.client import ModbusTcpClient
from station import PATIENCE, Station


class Masters(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.station = cls.enterClassContext(Station())

    def client(self):
        client = ModbusTcpClient("127.0.0.1", port=self.station.port, timeout=PATIENCE)
        self.assertTrue(client.connect())
        self.addCleanup(client.close)
        return client

    def test_pymodbus_reads_what_it_wrote(self):
        client = self.client()
        self.assertFalse(client.write_register(104, 1234, slave=1).isError())
        self.assertEqual(client.read_holding_registers(100, 10, slave=1).registers, [0] * 4 + [1234] + [0] * 5)

    def test_pymodbus_reads_input_registers_from_the_same_table(self):
        client = self.client()
        client.write_register(7, 65535, slave=1)
        self.assertEqual(client.read_input_registers(7, 1, slave=1).registers, [65535])

    def test_pymodbus_reads_an_unknown_slave_into_being(self):
        self.assertEqual(self.client().read_holding_registers(0, 100, slave=200).registers, [0] * 100)

    def test_pymodbus_reads_126_registers_past_the_end_of_the_table(self):
        self.assertEqual(self.client().read_holding_registers(60000, 125, slave=2).registers, [0] * 125)

    def test_pymodbus_is_refused_coils(self):
        answer = self.client().read_coils(0, 8, slave=1)
        self.assertTrue(answer.isError())

    def test_an_exception_answer_carries_unit_0_and_function_128(self):
        answer = self.station.ask([9, 8, 0, 0, 0, 6, 5, 16, 0, 0, 0, 1], 9)
        self.assertEqual(list(answer), [9, 8, 0, 0, 0, 3, 0, 128, 2])

    def test_a_thousand_requests_on_one_connection(self):
        client = self.client()
        for value in range(1000):
            client.write_register(20, value, slave=1)
            self.assertEqual(client.read_holding_registers(20, 1, slave=1).registers, [value])

    def mbpoll(self, *arguments):
        return subprocess.run(
            ["mbpoll", "-m", "tcp", "-p", str(self.station.port), "-1", "-0", *arguments],
            capture_output=True, text=True, timeout=PATIENCE)

    def test_mbpoll_reads_what_it_wrote(self):
        written = self.mbpoll("-a", "1", "-r", "30", "127.0.0.1", "4321")
        self.assertEqual(written.returncode, 0, written.stdout + written.stderr)
        read = self.mbpoll("-a", "1", "-r", "30", "-c", "2", "127.0.0.1")
        self.assertEqual(read.returncode, 0, read.stdout + read.stderr)
        self.assertRegex(read.stdout, r"\[30\]:\s+4321")
        self.assertRegex(read.stdout, r"\[31\]:\s+0")

    def test_mbpoll_is_refused_coils(self):
        refused = self.mbpoll("-a", "1", "-t", "0", "-r", "1", "127.0.0.1")
        self.assertNotEqual(refused.returncode, 0)

    def libmodbus(self, *arguments):
        program = os.environ["LIBMODBUS_MASTER"]
        run = subprocess.run([program, str(self.station.port), *arguments], capture_output=True, text=True,
                             timeout=4 * PATIENCE)
        self.assertEqual(run.returncode, 0, run.stdout + run.stderr)

    def test_libmodbus_reads_writes_and_is_refused(self):
        self.libmodbus("1")

    def test_three_libmodbus_masters_at_once(self):
        self.libmodbus("3")

    def test_three_hundred_libmodbus_masters_at_once(self):
        self.libmodbus("300")


if __name__ == "__main__":
    unittest.main()
