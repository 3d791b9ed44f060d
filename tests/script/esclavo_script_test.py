#!/usr/bin/python3
"""The command-line tool esclavo-script as a shell sees it: options, files, exit status, what goes where.

    /usr/bin/python3 esclavo_script_test.py build/release/bin/esclavo-script
"""
import os
import re
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

TOOL = ""


class ToolCase(unittest.TestCase):
    def setUp(self):
        self.folder = tempfile.TemporaryDirectory()
        self.addCleanup(self.folder.cleanup)

    def script(self, text, name="guion.vbs"):
        path = Path(self.folder.name, name)
        path.write_text(text, encoding="utf-8")
        return str(path)

    def run_tool(self, *arguments, text="", locale=None):
        environment = os.environ if locale is None else {
            **{k: v for k, v in os.environ.items() if k != "LANG" and not k.startswith("LC_")}, **locale}
        done = subprocess.run([TOOL, *arguments], input=text.encode(), capture_output=True, timeout=30, check=False,
                              env=environment)
        return done.returncode, done.stdout.decode(), done.stderr.decode()

    def assert_usage(self, *arguments):
        status, out, err = self.run_tool(*arguments)
        self.assertEqual(status, 2)
        self.assertEqual(out, "")
        self.assertTrue(err.startswith("Uso: esclavo-script [OPCIÓN]... ARCHIVO... [-- ARGUMENTO...]\n"), err)


class EsclavoScript(ToolCase):
    def test_no_arguments_is_a_usage_error(self):
        self.assert_usage()

    def test_options_without_a_file_are_a_usage_error(self):
        self.assert_usage("--comprobar")
        self.assert_usage("--pasadas", "3")

    def test_an_unknown_option_is_a_usage_error(self):
        for option in ("--nada", "-x", "--pasada", "--helpme"):
            self.assert_usage(option, self.script("x = 1"))

    def test_a_wrong_command_is_told_what_is_wrong(self):
        for command, complaint in ((["--nada"], "no se entiende «--nada»"), (["--tiempo"], "falta el archivo"),
                                   (["--pasadas", "x", "a.vbs"], "no se entiende «x»"),
                                   (["a.vbs", "--pasadas"], "no se entiende «--pasadas»")):
            self.assertEqual(self.run_tool(*command)[2].splitlines()[-1], f"esclavo-script: {complaint}")

    def test_help_goes_to_standard_output(self):
        for option in ("--help", "-h"):
            status, out, err = self.run_tool(option)
            self.assertEqual((status, err), (0, ""))
            self.assertTrue(out.startswith("Uso: esclavo-script"), out)
            for told in ("--comprobar", "--pasadas N", "--tiempo", "--version", "WScript.Arguments"):
                self.assertIn(told, out)

    def test_version_goes_to_standard_output(self):
        status, out, err = self.run_tool("--version")
        self.assertEqual((status, err), (0, ""))
        self.assertRegex(out, r"\Aesclavo-script \d+\.\d+\.\d+\n\Z")

    def test_passes_want_a_whole_number_from_one(self):
        for count in ("0", "-1", "dos", "1.5", "3x", "", "99999999999999999999"):
            self.assert_usage("--pasadas", count, self.script("x = 1"))

    def test_a_good_script_exits_with_0(self):
        self.assertEqual(self.run_tool(self.script('WScript.Echo "sí"')), (0, "sí\n", ""))

    def test_a_run_time_error_exits_with_1_and_tells_its_place(self):
        path = self.script('WScript.Echo "antes"\n  x = 1 \\ 0\nWScript.Echo "después"')
        self.assertEqual(self.run_tool(path), (
            1, "antes\n", f"{path}:2:3: error 11: División por cero\n  x = 1 \\ 0\n  ^\n"))

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
        self.assertEqual(re.findall(r"^(.*?): error", err, re.M), [f"{bad}:1:5", f"{worse}:2:4"])

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


class Errors(ToolCase):
    def test_a_caret_stands_under_the_column(self):
        path = self.script("If uno Than")
        self.assertTrue(self.run_tool(path)[2].endswith("\nIf uno Than\n       ^\n"))

    def test_tabs_and_accents_do_not_move_the_caret(self):
        path = self.script('\tñ = "😀" : x = 1 \\ 0')
        self.assertTrue(self.run_tool(path)[2].endswith('\n\tñ = "😀" : x = 1 \\ 0\n\t          ^\n'))

    def test_of_a_very_long_line_only_the_surroundings_are_shown(self):
        path = self.script("a = 1 : " * 20000 + "b = 1 \\ 0 : " + "a = 1 : " * 20000)
        _, _, err = self.run_tool(path)
        self.assertLess(len(err), 1000)
        line, caret = err.splitlines()[1:]
        self.assertTrue(line[len(caret) - 1:].startswith("b = 1 \\ 0"), err)


class Arguments(ToolCase):
    ECHO = "For Each a In WScript.Arguments : WScript.Echo a : Next : WScript.Echo WScript.Arguments.Count"

    def test_what_stands_behind_two_dashes_belongs_to_the_script(self):
        path = self.script(self.ECHO)
        self.assertEqual(self.run_tool(path, "--", "uno", "dos ñ", "--comprobar", "--"), (0, "uno\ndos ñ\n--comprobar\n--\n4\n", ""))

    def test_files_are_no_arguments(self):
        self.assertEqual(self.run_tool(self.script(self.ECHO)), (0, "0\n", ""))
        self.assert_usage("--", self.script("x = 1"))

    def test_a_script_knows_its_name_and_place(self):
        first, second = (self.script("WScript.Echo WScript.ScriptName, WScript.ScriptFullName", name) for name in ("a.vbs", "b ñ.vbs"))
        relative = os.path.relpath(second)
        self.assertEqual(self.run_tool(first, relative)[1], f"a.vbs {first}\nb ñ.vbs {second}\n")
        self.assertEqual(self.run_tool("-", text="WScript.Echo WScript.ScriptFullName")[1], "-\n")


class Terminal(ToolCase):
    def answers(self, style, text):
        status, out, err = self.run_tool(self.script(f'WScript.Echo MsgBox("¿Sigo?", {style}, "Aviso")'), text=text)
        self.assertEqual(status, 0, err)
        self.assertTrue(err.startswith("Aviso: ¿Sigo?\n"), err)
        return int(out)

    def test_a_message_box_answers_the_button_named(self):
        for answer, button in (("No", 7), ("n", 7), ("CANCELAR", 2), ("c", 2), ("sí", 6), ("si", 6), ("s", 6)):
            self.assertEqual(self.answers("vbYesNoCancel", answer + "\n"), button, answer)

    def test_only_a_button_of_the_box_is_an_answer(self):
        self.assertEqual(self.answers("vbYesNo", "cancelar\naceptar\n\u00a0\nn\n"), 7)
        self.assertEqual(self.answers("vbAbortRetryIgnore", "s\no\n"), 5)

    def test_an_empty_line_and_the_end_choose_the_default(self):
        for style, button in (("vbOKOnly", 1), ("vbYesNo", 6), ("vbYesNo + vbDefaultButton2", 7), ("vbRetryCancel", 4),
                              ("vbYesNoCancel + vbDefaultButton3", 2), ("vbYesNo + vbDefaultButton3", 6), ("16 + 2", 3)):
            self.assertEqual(self.answers(style, ""), button, style)
            self.assertEqual(self.answers(style, "\n"), button, style)

    def test_the_choices_are_told_and_the_default_is_marked(self):
        _, _, err = self.run_tool(self.script('x = MsgBox("a", 3 + 256)'))
        self.assertEqual(err, "VBScript: a\nSí / [No] / Cancelar: ")

    def test_a_box_with_one_button_leaves_the_input_alone(self):
        path = self.script('MsgBox "hola" : WScript.Echo WScript.StdIn.ReadLine')
        self.assertEqual(self.run_tool(path, text="línea\n"), (0, "línea\n", "VBScript: hola\n"))

    def test_an_input_box_takes_a_line(self):
        path = self.script('WScript.Echo InputBox("Valor", "Título", "por defecto")')
        self.assertEqual(self.run_tool(path, text="12 ñ\r\n"), (0, "12 ñ\n", "Título: Valor\n[por defecto]: "))
        for text in ("", "\n"):
            self.assertEqual(self.run_tool(path, text=text)[1], "por defecto\n")


class Streams(ToolCase):
    def test_lines_are_read_until_the_end(self):
        path = self.script("Do Until WScript.StdIn.AtEndOfStream : WScript.Echo UCase(WScript.StdIn.ReadLine) : Loop")
        self.assertEqual(self.run_tool(path, text="uno\r\n\nñandú"), (0, "UNO\n\nÑANDÚ\n", ""))

    def test_characters_and_the_rest_are_read(self):
        path = self.script('Set i = WScript.StdIn : WScript.Echo i.Read(3) & "|" & i.AtEndOfLine : i.SkipLine : WScript.Echo i.ReadAll')
        self.assertEqual(self.run_tool(path, text="añ€😀b\ndos\ntres"), (0, "añ€|False\ndos\ntres\n", ""))

    def test_reading_past_the_end_is_error_62(self):
        for operation in ("ReadLine", "ReadAll", "Read(1)", "SkipLine"):
            status, _, err = self.run_tool(self.script(f"x = WScript.StdIn.{operation}"))
            self.assertEqual(status, 1)
            self.assertIn("error 62: Se ha sobrepasado el final de la entrada", err)

    def test_output_and_errors_go_their_ways(self):
        path = self.script('WScript.StdOut.Write "a" : WScript.StdOut.WriteLine 1 : WScript.StdErr.WriteLine "ñ" : '
                           "WScript.StdOut.WriteLine : WScript.StdOut.WriteBlankLines 1")
        self.assertEqual(self.run_tool(path), (0, "a1\n\n\n", "ñ\n"))

    def test_sleeping_takes_its_time(self):
        path = self.script('a = Timer : WScript.Sleep 120 : WScript.Echo Timer - a >= 0.1 Or Timer < a : WScript.Sleep -1')
        status, out, err = self.run_tool(path)
        self.assertEqual((status, out), (1, "True\n"))
        self.assertIn("error 5:", err)


class Times(ToolCase):
    def test_times_are_told_on_standard_error(self):
        path = self.script("n = n + 1", "a.vbs")
        status, out, err = self.run_tool("--tiempo", "--pasadas", "3", path)
        self.assertEqual((status, out), (0, ""))
        number = r"\d+(,\d{1,3})? (ms|µs)"
        self.assertRegex(err, rf"\A{re.escape(path)}: compilación: {number}\n{re.escape(path)}: pasadas: 3 en {number}, "
                              rf"la primera \(compila\) en {number}, las demás en {number} de media\n\Z")

    def test_a_short_pass_takes_more_than_no_time(self):
        _, _, err = self.run_tool("--tiempo", "--pasadas", "20000", self.script("n = n + 1"))
        self.assertNotRegex(err, r"en 0 (ms|µs) de media")

    def test_checking_alone_tells_the_compilation(self):
        status, _, err = self.run_tool("--tiempo", "--comprobar", self.script("x = 1"))
        self.assertEqual((status, len(err.splitlines())), (0, 1))


class Encodings(ToolCase):
    def test_scripts_are_read_in_every_encoding(self):
        text = 'WScript.Echo "año €"'
        for name, data in (("UTF-16 LE", b"\xff\xfe" + text.encode("utf-16-le")), ("UTF-16 BE", b"\xfe\xff" + text.encode("utf-16-be")),
                           ("UTF-8 with mark", text.encode("utf-8-sig")), ("UTF-8", text.encode()), ("Windows-1252", text.encode("cp1252"))):
            path = Path(self.folder.name, "e.vbs")
            path.write_bytes(data)
            self.assertEqual(self.run_tool(str(path)), (0, "año €\n", ""), name)


class Locales(ToolCase):
    FACTS = "WScript.Echo GetLocale, CStr(1.5), CDbl(\"0\" & Mid(CStr(1.5), 2)) * 10"

    def facts(self, **locale):
        return self.run_tool(self.script(self.FACTS), locale=locale)[1].strip()

    def test_the_systems_locale_is_the_scripts(self):
        self.assertEqual(self.facts(LANG="en_US.UTF-8"), "1033 1.5 5")
        self.assertEqual(self.facts(LANG="de_DE.UTF-8"), "1031 1,5 5")
        self.assertEqual(self.facts(LANG="pt_BR.UTF-8"), "1046 1,5 5")
        self.assertEqual(self.facts(LANG="ja_JP.UTF-8"), "1041 1.5 5")
        self.assertEqual(self.facts(LANG="es_MX.UTF-8"), "2058 1.5 5")
        self.assertEqual(self.facts(LANG="en_US.UTF-8", LC_ALL="es_ES.UTF-8"), "3082 1,5 5")

    def test_no_locale_is_spanish(self):
        for locale in ({}, {"LANG": ""}, {"LANG": "C"}, {"LC_ALL": "POSIX"}, {"LANG": "C.UTF-8"}, {"LANG": "zz_ZZ.UTF-8"}):
            self.assertEqual(self.facts(**locale), "3082 1,5 5", locale)

    def test_every_country_can_be_chosen(self):
        path = self.script('For Each n In Array(1031, "1036", "en-GB", "JA", 1046) : SetLocale n : WScript.Echo GetLocale, CStr(1.5) : Next')
        self.assertEqual(self.run_tool(path)[1], "1031 1,5\n1036 1,5\n2057 1.5\n1041 1.5\n1046 1,5\n")


if __name__ == "__main__":
    TOOL = sys.argv.pop(1)
    unittest.main()
