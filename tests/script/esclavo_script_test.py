#!/usr/bin/python3
"""The command-line tool esclavo-script as a shell sees it: options, files, exit status, what goes where.

    /usr/bin/python3 esclavo_script_test.py build/release/bin/esclavo-script
"""
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

TOOL = ""


class EsclavoScript(unittest.TestCase):
    def setUp(self):
        self.folder = tempfile.TemporaryDirectory()
        self.addCleanup(self.folder.cleanup)

    def script(self, text, name="guion.vbs"):
        path = Path(self.folder.name, name)
        path.write_text(text, encoding="utf-8")
        return str(path)

    def run_tool(self, *arguments, text=""):
        done = subprocess.run([TOOL, *arguments], input=text.encode(), capture_output=True, timeout=30, check=False)
        return done.returncode, done.stdout.decode(), done.stderr.decode()

    def assert_usage(self, *arguments):
        status, out, err = self.run_tool(*arguments)
        self.assertEqual(status, 2)
        self.assertEqual(out, "")
        self.assertTrue(err.startswith("Uso: esclavo-script [--comprobar] [--pasadas N] ARCHIVO..."), err)

    def test_no_arguments_is_a_usage_error(self):
        self.assert_usage()

    def test_options_without_a_file_are_a_usage_error(self):
        self.assert_usage("--comprobar")
        self.assert_usage("--pasadas", "3")

    def test_an_unknown_option_is_a_usage_error(self):
        self.assert_usage("--nada", self.script("x = 1"))

    def test_passes_want_a_whole_number_from_one(self):
        for count in ("0", "-1", "dos", "1.5", "3x", "", "99999999999999999999"):
            self.assert_usage("--pasadas", count, self.script("x = 1"))

    def test_a_good_script_exits_with_0(self):
        self.assertEqual(self.run_tool(self.script('WScript.Echo "sí"')), (0, "sí\n", ""))

    def test_a_run_time_error_exits_with_1_and_tells_its_place(self):
        path = self.script('WScript.Echo "antes"\n  x = 1 \\ 0\nWScript.Echo "después"')
        self.assertEqual(self.run_tool(path), (1, "antes\n", f"{path}:2:3: error 11: División por cero\n"))

    def test_a_compile_error_exits_with_1_and_runs_nothing(self):
        path = self.script('WScript.Echo "antes"\nIf x Than')
        status, out, err = self.run_tool(path)
        self.assertEqual((status, out), (1, ""))
        self.assertTrue(err.startswith(f"{path}:2:6: error 1017: "), err)

    def test_a_dash_reads_standard_input(self):
        self.assertEqual(self.run_tool("-", text="WScript.Echo 6 * 7"), (0, "42\n", ""))

    def test_errors_of_standard_input_are_told_under_its_dash(self):
        status, _, err = self.run_tool("-", text="x = ")
        self.assertEqual(status, 1)
        self.assertTrue(err.startswith("-:1:"), err)

    def test_checking_runs_nothing(self):
        self.assertEqual(self.run_tool("--comprobar", self.script("WScript.Echo 1\nx = 1 \\ 0")), (0, "", ""))

    def test_checking_goes_on_with_the_next_file(self):
        bad, worse = self.script("x = ", "a.vbs"), self.script("\nSub", "b.vbs")
        status, _, err = self.run_tool("--comprobar", bad, self.script("x = 1", "c.vbs"), worse)
        self.assertEqual(status, 1)
        self.assertEqual([line.split(": ")[0] for line in err.splitlines()], [f"{bad}:1:5", f"{worse}:2:4"])

    def test_passes_share_the_globals(self):
        self.assertEqual(self.run_tool("--pasadas", "3", self.script("n = n + 1 : WScript.Echo n")), (0, "1\n2\n3\n", ""))

    def test_an_error_ends_the_passes(self):
        status, out, _ = self.run_tool("--pasadas", "5", self.script("n = n + 1 : WScript.Echo n : x = 1 \\ (2 - n)"))
        self.assertEqual((status, out), (1, "1\n2\n"))

    def test_several_files_share_one_engine(self):
        first = self.script("Function doble(x) : doble = 2 * x : End Function", "a.vbs")
        self.assertEqual(self.run_tool(first, self.script("WScript.Echo doble(21)", "b.vbs")), (0, "42\n", ""))

    def test_a_failing_file_does_not_keep_the_next_from_running(self):
        status, out, _ = self.run_tool(self.script("x = 1 \\ 0", "a.vbs"), self.script("WScript.Echo 2", "b.vbs"))
        self.assertEqual((status, out), (1, "2\n"))

    def test_option_explicit_holds_for_its_own_file(self):
        strict = self.script("Option Explicit\nDim a : a = 1", "a.vbs")
        self.assertEqual(self.run_tool(strict, self.script("b = 2 : WScript.Echo b", "b.vbs")), (0, "2\n", ""))
        status, _, err = self.run_tool(self.script("Option Explicit\nb = 2", "c.vbs"))
        self.assertEqual(status, 1)
        self.assertIn(":2:1: error 500: ", err)

    def test_a_missing_file_is_told_and_exits_with_1(self):
        path = str(Path(self.folder.name, "no.vbs"))
        self.assertEqual(self.run_tool(path), (1, "", f"{path}: no se puede leer el archivo\n"))

    def test_a_folder_is_no_script(self):
        folder = self.folder.name
        self.assertEqual(self.run_tool(folder), (1, "", f"{folder}: no se puede leer el archivo\n"))

    def test_an_empty_file_is_a_good_script(self):
        self.assertEqual(self.run_tool(self.script("")), (0, "", ""))

    def test_quit_keeps_the_output_and_gives_the_exit_status(self):
        path = self.script('For i = 1 To 5000 : WScript.Echo i : Next\nWScript.Quit 7\nWScript.Echo "no"')
        status, out, err = self.run_tool(path, self.script('WScript.Echo "tampoco"', "b.vbs"))
        self.assertEqual((status, out.splitlines()[-1], err), (7, "5000", ""))

    def test_quit_is_no_error_to_be_resumed(self):
        path = self.script('On Error Resume Next\nWScript.Quit\nWScript.Echo "no"')
        self.assertEqual(self.run_tool(path), (0, "", ""))

    def test_output_and_errors_come_out_in_full_before_the_end(self):
        path = self.script("For i = 1 To 5000 : WScript.Echo i : Next\nErr.Raise 5")
        status, out, _ = self.run_tool(path)
        self.assertEqual((status, len(out.splitlines())), (1, 5000))


if __name__ == "__main__":
    TOOL = sys.argv.pop(1)
    unittest.main()
