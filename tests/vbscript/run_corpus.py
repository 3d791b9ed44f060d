#!/usr/bin/python3
"""Runs a corpus of small scripts through esclavo-script and checks what each one prints and how it ends.

    run_corpus.py [--jobs N] [--limit SECONDS] ESCLAVO-SCRIPT FOLDER-OR-FILE...

A script carries its own expectations as comments (README.md in this folder has the whole of it):

    WScript.Echo 1 + 1   '> 2        the line of output that comes next
    x = 1 / 0            '! 11       the script ends with error 11 on this line

Exit status: 0 when every script passed, 1 when one failed, 2 when no script was found.
"""

import argparse
import concurrent.futures
import os
import pathlib
import re
import subprocess
import sys

OUTPUT = re.compile(r"'>(?: (.*)| *)$")
ERROR = re.compile(r"'! (\d+)(?: @(\d+|\*))?\s*$")
OPTIONS = re.compile(r"^'options (.*)$")
AFTER = re.compile(r"^'after (.*)$")
REPORTED = re.compile(r"^(?P<file>.*?):(?P<line>\d+):(?P<column>\d+): error (?P<number>-?\d+): (?P<text>.*)$", re.M)
ANY_LINE = "*"


class Expectation:
    """What a script says of itself: the lines it prints, the error it ends with, how it is run."""

    def __init__(self, text):
        self.output = []
        self.error = None  # (number, line), line may be ANY_LINE
        self.options = []
        self.after = []  # files that run before it in the same engine, from its folder
        for line_number, line in enumerate(re.split(r"\r\n|\r|\n", text), start=1):
            if match := OPTIONS.search(line):
                self.options = match[1].split()
            elif match := AFTER.search(line):
                self.after = match[1].split()
            elif match := OUTPUT.search(line):
                self.output.append(expected_text(match[1] or ""))
            elif match := ERROR.search(line):
                self.error = (int(match[1]), error_line(match[2], line_number))


def expected_text(marked):
    """Trailing blanks count only before a final bar, which itself is not part of the text."""
    return marked[:-1] if marked.endswith("|") else marked.rstrip(" \t")


def error_line(explicit, line_number):
    if explicit == ANY_LINE:
        return ANY_LINE
    return int(explicit) if explicit else line_number


def environment():
    """The caller's, but Spanish: the scripts show numbers, dates and names as Spain writes them."""
    spanish = os.environ.get("LC_ALL", "").startswith(("es_ES", "C"))
    return os.environ if spanish else {**os.environ, "LC_ALL": "es_ES.UTF-8"}


def run(script, binary, limit):
    """Returns the list of complaints about one script; an empty list is a pass."""
    expected = Expectation(script.read_bytes().decode("utf-8", "replace"))
    command = [binary, *expected.options, *(str(script.parent / file) for file in expected.after), str(script)]
    try:
        done = subprocess.run(command, stdin=subprocess.DEVNULL, capture_output=True, timeout=limit, check=False,
                              env=environment())
    except subprocess.TimeoutExpired:
        return [f"still running after {limit:g} s"]
    output = done.stdout.decode("utf-8", "replace")
    reported = done.stderr.decode("utf-8", "replace")
    return check_output(expected, output) + check_end(expected, done.returncode, reported)


def check_output(expected, output):
    actual = [line.rstrip("\r") for line in output.split("\n")]
    if actual[-1] == "":
        actual.pop()
    complaints = []
    for index in range(max(len(expected.output), len(actual))):
        wanted = expected.output[index] if index < len(expected.output) else None
        printed = actual[index] if index < len(actual) else None
        if not same_line(wanted, printed):
            complaints.append(f"output {index + 1}: expected {shown(wanted)}, actual {shown(printed)}")
            break  # what follows is mostly the same difference again
    return complaints


def same_line(wanted, printed):
    if wanted is None or printed is None:
        return False
    return printed == wanted or printed.rstrip(" \t") == wanted


def shown(line):
    return "no line" if line is None else f'"{line}"'


def check_end(expected, status, stderr):
    match = REPORTED.search(stderr)
    if expected.error is None:
        if status == 0 and not match:
            return []
        return [f"expected to end well, actual exit status {status}: {stderr.strip()}"]
    number, line = expected.error
    if not match:
        return [f"expected error {number} on line {line}, actual exit status {status}: {stderr.strip()}"]
    complaints = []
    if int(match["number"]) != number:
        complaints.append(f"expected error {number}, actual error {match['number']}: {match['text']}")
    if line not in (ANY_LINE, int(match["line"])):
        complaints.append(f"expected the error on line {line}, actual line {match['line']}")
    if status != 1:
        complaints.append(f"expected exit status 1 after an error, actual {status}")
    return complaints


def scripts_of(paths):
    found = []
    for path in map(pathlib.Path, paths):
        found += sorted(path.rglob("*.vbs")) if path.is_dir() else [path]
    return found


def main():
    parser = argparse.ArgumentParser(description="run a corpus of scripts and check what they print")
    parser.add_argument("--jobs", type=int, default=2, help="scripts run at a time (default 2)")
    parser.add_argument("--limit", type=float, default=60, help="seconds that one script may take (default 60)")
    parser.add_argument("binary", help="the esclavo-script executable")
    parser.add_argument("paths", nargs="+", help="folders (searched whole) or single scripts")
    arguments = parser.parse_args()
    scripts = scripts_of(arguments.paths)
    if not scripts:
        print("no script found", file=sys.stderr)
        return 2
    failed = 0
    with concurrent.futures.ThreadPoolExecutor(arguments.jobs) as pool:
        results = pool.map(lambda script: run(script, arguments.binary, arguments.limit), scripts)
        for script, complaints in zip(scripts, results):
            failed += bool(complaints)
            for complaint in complaints:
                print(f"{script}: {complaint}")
    print(f"{len(scripts) - failed} passed, {failed} failed")
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())
