#!/usr/bin/env python3
"""The layers of src/, read from the includes and from the targets in the CMakeLists.txt files.

A file belongs to the target that lists it; a header that none lists belongs to the target of the .cpp of the same
name, or else to the logic of its folder, if it has any. Targets named *_ui, those of QT_TARGETS and programs that link one are
windows (Qt), all others logic. For the rules see `violations`.

    layers_test.py SOURCE_FOLDER      checks the tree, after it has checked itself on made-up ones
"""
import pathlib
import re
import sys
import tempfile
import unittest

BELOW = {  # folder: the folders whose files it may include, beside its own
    "shell": {"modbus", "script", "serial", "bridge", "registers", "ajustes", "platform"},
    "modbus": {"registers", "platform"},
    "script": {"registers", "ajustes", "platform"},
    "serial": {"registers", "ajustes", "platform"},
    "bridge": {"platform"},
    "registers": {"platform"},
    "ajustes": {"platform"},
}
FLOOR = {"platform/text", "platform/posix", "platform/events", "platform/clock"}  # known to the other folders of platform/
# The script engine's rooms, from left to right; a file includes, and a target links, only what stands left of it.
ENGINE = "platform/vbscript"
ROOMS = ["value", "syntax", "compile", "run", "library", ""]  # the last is the public face
QT_TARGETS = {  # beside *_ui
    "platform_grid", "platform_window", "platform_serial", "platform_locale", "script_locale"
}
TARGET = re.compile(r"^\s*(esclavo_library|add_library|add_executable)\s*\(\s*([\w-]+)([^)]*)\)", re.M)
LINKS = re.compile(r"^\s*target_link_libraries\s*\(\s*([\w-]+)([^)]*)\)", re.M)
INCLUDE = re.compile(r'^\s*#\s*include\s*([<"])([^>"]+)[>"]', re.M)
QT_HEADER = re.compile(r"^(Q[A-Z]|Qt|q[a-z]+\.h)")
WINDOW_NAME = re.compile(r"^(Frm|frm|Vista)")


class Tree:
    def __init__(self, src):
        self.src = src
        self.files = sorted(p for p in src.rglob("*") if p.suffix in (".cpp", ".h"))
        self.qt_targets = set()  # every target that Qt is switched on for
        self.targets = {}  # target: is it windows?
        self.owner = {}  # file: target
        self.links = {}  # target: what it links
        self.all_windows = {}  # folder: has it nothing but windows?
        for lists in sorted(src.rglob("CMakeLists.txt")):
            self.read_targets(lists)

    def read_targets(self, lists):
        text = re.sub(r"#.*", "", lists.read_text())
        links = {}
        for target, words in LINKS.findall(text):
            links.setdefault(target, []).extend(words.split())
        for kind, target, rest in TARGET.findall(text):
            words = rest.split()
            qt = "QT" in words or any(w.startswith("Qt6::") for w in words + links.get(target, []))
            needed = words[words.index("LINK"):] if "LINK" in words else []
            program = kind == "add_executable"
            windows = target.endswith("_ui") or target in QT_TARGETS
            if program:
                windows = qt or any(w.endswith("_ui") or w in QT_TARGETS for w in needed + links.get(target, []))
            elif qt:
                self.qt_targets.add(target)
            self.targets[target] = windows
            self.links[target] = needed[1:] + links.get(target, [])
            self.all_windows[lists.parent] = windows and self.all_windows.get(lists.parent, True)
            for word in words:
                if word.endswith((".cpp", ".h")):
                    self.owner[lists.parent / word] = target

    def folder(self, file):
        """"registers", or "platform/grid"."""
        parts = file.relative_to(self.src).parts
        return "/".join(parts[:2]) if parts[0] == "platform" else parts[0]

    def room(self, file):
        """Place of a file in ROOMS, or None outside the engine."""
        return room_number(file.relative_to(self.src).as_posix())

    def target(self, file):
        return self.owner.get(file) or self.owner.get(file.with_suffix(".cpp"))

    def is_window(self, file):
        target = self.target(file)
        if target:
            return self.targets[target]
        return bool(WINDOW_NAME.match(file.name)) or self.all_windows.get(file.parent, False)

    def included(self, file):
        """(is it quoted, name, file of the tree or None) for each include."""
        for mark, name in INCLUDE.findall(file.read_text(encoding="utf-8")):
            places = ((base / name).resolve() for base in (self.src, file.parent))
            found = [p for p in places if p.is_file()]
            yield mark == '"', name, found[0] if found else None


def room_number(path):
    if not path.startswith(ENGINE + "/"):
        return None
    room = path[len(ENGINE) + 1:].split("/")[0]
    return ROOMS.index(room if room in ROOMS else "")


def engine_target_number(target):
    if target == "platform_vbscript":
        return len(ROOMS) - 1
    name = target.removeprefix("vbscript_")
    return ROOMS.index(name) if name != target and name in ROOMS else None


def may_include(lower, upper):
    """May a file of the folder `upper` include one of `lower`?"""
    if lower == upper or lower in FLOOR and upper not in FLOOR and upper.startswith("platform/"):
        return True
    return not upper.startswith("platform/") and lower.split("/")[0] in BELOW.get(upper, set())


def violations(tree):
    found = []
    for target in sorted(tree.qt_targets):
        if not tree.targets[target]:
            found.append(f"{target}: a logic target with Qt")
    for target, linked in sorted(tree.links.items()):
        place = engine_target_number(target)
        for other in linked:
            right = engine_target_number(other)
            if place is not None and right is not None and right >= place:
                found.append(f"{target}: a room of the engine may not link {other}, which stands right of it")
    for file in tree.files:
        name = file.relative_to(tree.src)
        if file.suffix == ".cpp" and not tree.target(file):
            found.append(f"{name}: belongs to no target")
        window = tree.is_window(file)
        if WINDOW_NAME.match(file.name) and not window:
            found.append(f"{name}: named as a window, but in a logic target")
        for quoted, header, included in tree.included(file):
            if not window and QT_HEADER.match(header):
                found.append(f"{name}: logic includes the Qt header {header}")
            if quoted and not included and not header.endswith(".moc"):
                found.append(f"{name}: \"{header}\" is not a file of src")
            if not included:
                continue
            if tree.room(file) is None and tree.room(included) not in (None, len(ROOMS) - 1):
                found.append(f"{name}: {header} is inside the engine; its face is what stands in {ENGINE} itself")
            if not may_include(tree.folder(included), tree.folder(file)):
                found.append(f"{name}: {tree.folder(file)} may not know {header}")
            elif None not in (tree.room(file), tree.room(included)) and tree.room(included) > tree.room(file):
                found.append(f"{name}: a room of the engine may not know {header}, which stands right of it")
            elif not window and tree.is_window(included):
                found.append(f"{name}: logic includes the window {header}")
    return found


class Rules(unittest.TestCase):
    """Each rule finds what breaks it, in a small tree that is otherwise sound."""

    def found(self, **changed):
        files = {
            "registers/CMakeLists.txt": "esclavo_library(registers SOURCES A.cpp)\n"
                                        "esclavo_library(registers_ui QT SOURCES VistaA.cpp LINK registers)",
            "registers/A.cpp": '#include "registers/A.h"',
            "registers/A.h": "#include <vector>",
            "registers/VistaA.cpp": '#include "registers/VistaA.h"\n#include "platform/grid/G.h"',
            "registers/VistaA.h": '#include "registers/A.h"\n#include <QWidget>',
            "platform/grid/CMakeLists.txt": "esclavo_library(platform_grid QT SOURCES G.cpp)",
            "platform/grid/G.cpp": '#include "G.h"',
            "platform/grid/G.h": "#include <QTableView>",
            "platform/grid/Solo.h": "#include <QString>",
            "bridge/CMakeLists.txt": "esclavo_library(bridge SOURCES B.cpp)",
            "bridge/B.cpp": '#include "platform/net/N.h"',
            "platform/net/N.h": "#include <sys/epoll.h>",
        }
        files.update({name.replace("__", "/").replace("_dot_", "."): text for name, text in changed.items()})
        with tempfile.TemporaryDirectory() as folder:
            src = pathlib.Path(folder).resolve()
            for name, text in files.items():
                (src / name).parent.mkdir(parents=True, exist_ok=True)
                (src / name).write_text(text)
            return violations(Tree(src))

    def expect(self, fragment, **changed):
        found = self.found(**changed)
        self.assertEqual(len(found), 1, found)
        self.assertIn(fragment, found[0])

    def test_sound_tree_has_no_violation(self):
        self.assertEqual(self.found(), [])

    def test_qt_header_in_logic(self):
        self.expect("Qt header QString", registers__A_dot_h="#include <QString>")
        self.expect("Qt header QtCore/qglobal.h", registers__A_dot_h="#include <QtCore/qglobal.h>")

    def test_qt_header_in_a_header_of_its_own(self):
        self.expect("Qt header QString", registers__Solo_dot_h="#include <QString>")

    def test_window_in_logic(self):
        self.expect("includes the window", registers__A_dot_cpp='#include "registers/VistaA.h"')
        self.expect("includes the window", registers__A_dot_cpp='#include "platform/grid/G.h"')

    def test_upper_folder(self):
        self.expect("registers may not know", registers__A_dot_cpp='#include "bridge/B.cpp"')
        self.expect("platform/grid may not know", platform__grid__G_dot_cpp='#include "registers/A.h"')

    def test_bridge_and_registers_do_not_know_each_other(self):
        self.expect("bridge may not know", bridge__B_dot_cpp='#include "registers/A.h"')

    def test_platform_folders_do_not_know_one_another(self):
        self.expect("platform/grid may not know", platform__grid__G_dot_cpp='#include "platform/net/N.h"')

    def test_floor_of_platform_is_known_to_its_folders(self):
        self.assertEqual(self.found(platform__grid__G_dot_cpp='#include "platform/text/T.h"',
                                    platform__text__T_dot_h=""), [])
        self.expect("platform/text may not know", platform__text__T_dot_h='#include "platform/net/N.h"')

    def test_rooms_of_the_engine_know_only_what_stands_left_of_them(self):
        right = {"platform__vbscript__run__V_dot_h": "", "platform__vbscript__S_dot_h": ""}
        self.assertEqual(self.found(**right | {"platform__vbscript__S_dot_h": '#include "platform/vbscript/run/V.h"'}), [])
        self.expect("stands right of it", **right,
                    platform__vbscript__syntax__P_dot_h='#include "platform/vbscript/run/V.h"')
        self.expect("stands right of it", platform__vbscript__S_dot_h="",
                    platform__vbscript__run__V_dot_h='#include "platform/vbscript/S.h"')

    def test_the_engine_is_known_by_its_face_alone(self):
        rooms = {"platform__vbscript__value__V_dot_h": "", "platform__vbscript__S_dot_h": ""}
        self.assertEqual(self.found(**rooms, bridge__B_dot_cpp='#include "platform/vbscript/S.h"'), [])
        self.expect("inside the engine", **rooms, bridge__B_dot_cpp='#include "platform/vbscript/value/V.h"')

    def test_rooms_of_the_engine_link_only_what_stands_left_of_them(self):
        self.assertEqual(self.found(
            platform__vbscript__run__CMakeLists_dot_txt="esclavo_library(vbscript_run SOURCES LINK vbscript_value)"), [])
        self.expect("may not link vbscript_library", platform__vbscript__run__CMakeLists_dot_txt=
                    "esclavo_library(vbscript_run SOURCES LINK vbscript_value vbscript_library)")

    def test_path_upwards_is_seen_through(self):
        self.expect("bridge may not know", bridge__B_dot_cpp='#include "../registers/A.h"')

    def test_window_name_in_a_logic_target(self):
        self.expect("named as a window", bridge__CMakeLists_dot_txt="esclavo_library(bridge SOURCES B.cpp FrmB.cpp)",
                    bridge__FrmB_dot_cpp="")

    def test_logic_target_with_qt(self):
        self.expect("logic target with Qt", bridge__CMakeLists_dot_txt="esclavo_library(bridge QT SOURCES B.cpp)")

    def test_file_of_no_target(self):
        self.expect("belongs to no target", bridge__C_dot_cpp="")

    def test_missing_header(self):
        self.expect("is not a file of src", bridge__B_dot_cpp='#include "bridge/Nada.h"')


class ThisTree(unittest.TestCase):
    src = None

    def test_has_no_violation(self):
        tree = Tree(self.src)
        self.assertGreater(len(tree.files), 10)
        self.assertEqual(violations(tree), [])


if __name__ == "__main__":
    ThisTree.src = pathlib.Path(sys.argv.pop()).resolve()
    unittest.main()
