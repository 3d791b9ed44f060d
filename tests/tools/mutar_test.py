#!/usr/bin/python3
"""tools/mutar: what it changes, what it leaves alone, and a whole run over a tree of one file."""

import importlib.machinery
import importlib.util
import pathlib
import shutil
import subprocess
import sys
import tempfile
import unittest

TOOL = pathlib.Path(sys.argv.pop(1)).resolve()

sys.dont_write_bytecode = True
loader = importlib.machinery.SourceFileLoader("mutar", str(TOOL))
mutar = importlib.util.module_from_spec(importlib.util.spec_from_loader("mutar", loader))
sys.modules["mutar"] = mutar
loader.exec_module(mutar)


def pairs(text):
    return {(change.before.strip(), change.after.strip()) for change in mutar.changes_of("src/x/A.cpp", text)}


class Changes(unittest.TestCase):
    def test_comparisons_and_logic_are_swapped(self):
        self.assertEqual(pairs("return a < b && c == d;"), {("<", "<="), ("&&", "||"), ("==", "!=")})

    def test_numbers_move_by_one(self):
        self.assertEqual(pairs("return f(7);"), {("7", "8"), ("7", "6")})
        self.assertEqual(pairs("return f(0x10U);"), {("0x10", "17"), ("0x10", "15")})
        self.assertEqual(pairs("return f(0);"), {("0", "1")})

    def test_numbers_inside_names_and_reals_stay(self):
        self.assertEqual(pairs("return utf16 + x2y;"), {("+", "-")})
        self.assertEqual(pairs("return 1.5;"), set())

    def test_conditions_are_negated_and_branches_dropped(self):
        self.assertEqual(pairs("    if (done) {"), {("done", "!(done)"), ("done", "false && (done)")})
        self.assertIn(("it", "!(it)"), pairs("    } else if (it) {"))

    def test_statements_are_dropped(self):
        for line in ("    ++m_at;", "    call(a);", "    m_x = b;", "    list.push_back(y);", "    break;"):
            self.assertIn((line.strip()[:-1], ""), pairs(line))

    def test_declarations_and_results_are_not_dropped(self):
        for line in ("    const auto x = f(a);", "    int n = g;", "    return f(a);"):
            self.assertNotIn("", {after for _, after in pairs(line)})

    def test_comments_texts_and_directives_stay(self):
        for line in ("// a < b", "#if A < 1", 'f("a < 1");', "g(u'\\0', u\"7\");", "template <int n = 3>"):
            self.assertLessEqual({before for before, _ in pairs(line)}, set(), line)

    def test_a_change_is_made_in_its_place_alone(self):
        text = "int f() {\n    return a < b ? 1 : c < d;\n}\n"
        second = [change for change in mutar.changes_of("x", text) if change.before == " < "][1]
        self.assertEqual(mutar.applied(text, second), text.replace("c < d", "c <= d"))

    def test_the_same_start_value_draws_the_same_and_files_take_turns(self):
        candidates = [mutar.Change(file, line, 0, "a", "b") for file in "xy" for line in range(50)]
        order = mutar.drawn(candidates, 3)
        self.assertEqual(order, mutar.drawn(candidates, 3))
        self.assertNotEqual(order, mutar.drawn(candidates, 4))
        self.assertEqual(sorted(order), sorted(candidates))
        self.assertEqual([change.file for change in order[:4]], list("xyxy"))


class Guards(unittest.TestCase):
    def test_the_engine_is_guarded_by_its_scripts(self):
        first = mutar.guards_of("src/platform/vbscript/value/Convert.cpp")[0]
        self.assertEqual(("esclavo-script",), first.targets)
        self.assertRegex("vbscript_corpus_functions", first.tests)

    def test_what_takes_long_comes_last(self):
        last = mutar.guards_of("src/platform/vbscript/value/Convert.cpp")[-1]
        self.assertRegex("vbscript_corpus_limits", last.tests)

    def test_other_files_are_guarded_by_their_folder(self):
        only, = mutar.guards_of("src/registers/Palabra.cpp")
        self.assertIn("test_registers_palabra", only.targets)
        self.assertRegex("test_registers_palabra", only.tests)

    def test_what_has_no_tests_has_no_guards(self):
        self.assertEqual(mutar.guards_of("src/nada/A.cpp"), ())


class Command(unittest.TestCase):
    def run_tool(self, *words, tool=TOOL):
        return subprocess.run([sys.executable, str(tool), *words], capture_output=True, text=True, check=False)

    def test_help_is_in_spanish(self):
        done = self.run_tool("--help")
        self.assertEqual(done.returncode, 0)
        self.assertTrue(done.stdout.startswith("uso: tools/mutar"), done.stdout)
        for word in ("--cambios", "--inicio", "--trabajos", "--plazo", "--lista"):
            self.assertIn(word, done.stdout)
        self.assertNotIn("show this help", done.stdout)

    def test_bad_words_end_with_two_and_a_spanish_message(self):
        for words in ((), ("--nada",), ("nada.cpp",), ("--cambios", "0", "src/registers/Palabra.cpp")):
            done = self.run_tool(*words)
            self.assertEqual((done.returncode, done.stdout), (2, ""), words)
            self.assertTrue(done.stderr.startswith("mutar: "), done.stderr)

    def test_a_whole_run_tells_what_survived_and_leaves_the_tree_alone(self):
        with tempfile.TemporaryDirectory() as folder:
            tree = pathlib.Path(folder)
            write_small_tree(tree)
            source = tree / "src/x/Suma.h"
            before = source.read_bytes()
            done = self.run_tool("--cambios", "99", str(source), tool=tree / "tools/mutar")
            self.assertEqual(done.returncode, 1, done.stderr)
            self.assertEqual(done.stdout.splitlines(), ["src/x/Suma.h:5:13: «<» → «<=»", "notados 10 de 11"], done.stderr)
            self.assertEqual(source.read_bytes(), before)


# `positive` is never asked about 0, so one change of its comparison goes unnoticed.
SMALL_TREE = {
    "CMakeLists.txt": """cmake_minimum_required(VERSION 3.20)
project(small CXX)
enable_testing()
function(esclavo_test name)
  add_executable(${name} ${ARGN})
  add_test(NAME ${name} COMMAND ${name})
endfunction()
add_subdirectory(tests/x)
""",
    "CMakePresets.json": """{"version": 5,
"configurePresets": [{"name": "release", "generator": "Ninja", "binaryDir": "${sourceDir}/build/release"}],
"buildPresets": [{"name": "release", "configurePreset": "release"}],
"testPresets": [{"name": "release", "configurePreset": "release"}]}
""",
    ".gitignore": "/build/\n",
    "src/x/Suma.h": """inline int sum(int a, int b) {
    return a + b;
}
inline bool positive(int a) {
    return 0 < a;
}
inline int bounded(int a) {
    if (a > 9) {
        a = 3;
    }
    return a;
}
""",
    "tests/x/CMakeLists.txt": "esclavo_test(test_x Suma_test.cpp)\n",
    "tests/x/Suma_test.cpp": """#include "../../src/x/Suma.h"
int main() {
    const bool right = sum(2, 1) == 3 && positive(1) && !positive(-1) && bounded(12) == 3 && bounded(10) == 3 &&
                       bounded(9) == 9;
    return right ? 0 : 1;
}
""",
}


def write_small_tree(tree):
    for name, text in SMALL_TREE.items():
        (tree / name).parent.mkdir(parents=True, exist_ok=True)
        (tree / name).write_text(text)
    (tree / "tools").mkdir()
    shutil.copy(TOOL, tree / "tools/mutar")
    subprocess.run(["git", "init", "-q", str(tree)], check=True)


if __name__ == "__main__":
    unittest.main()
