#!/usr/bin/env python3
"""No C++ file departs from .clang-format.    format_test.py CLANG_FORMAT PROJECT_FOLDER"""
import pathlib
import subprocess
import sys

program, top = sys.argv[1], pathlib.Path(sys.argv[2])
files = [str(p) for folder in ("src", "tests", "bench", "fuzz") for p in sorted((top / folder).rglob("*"))
         if p.suffix in (".cpp", ".h")]
if not files:
    sys.exit("no C++ files found")
run = subprocess.run([program, "--dry-run", "--Werror", "--style=file", *files], check=False)
print(f"{len(files)} files")
sys.exit(run.returncode)
