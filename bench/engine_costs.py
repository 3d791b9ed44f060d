#!/usr/bin/env python3
"""What single things cost in the script engine: compiling, a pass over an unchanged text, calls of "mw", memory.

    bench/engine_costs.py build/release/bin/esclavo-script [--rounds N]

Prints one line a figure, with its ratio to what stands beside it in the same run (Lua 5.4, or the engine's own empty
call); times are the least of the rounds. Exit status 1 if a call of "mw" costs more than an empty call of the script.
"""
import argparse
import os
import pathlib
import subprocess
import sys
import tempfile

CALLS = 2_000_000
ELEMENTS = 1 << 20  # a power of two: there Lua's table has no spare room
CHARACTERS = 20_000_000

# Twenty lines of what users write, in both languages; @ is a number that makes names unique.
VBS_BLOCK = """\
' Nivel del tanque @, en décimas de por ciento
Function paso@(nivel, caudal)
    Dim siguiente, n
    siguiente = nivel + caudal * 0.25 - perdidas(@)
    If siguiente > 1000 Then
        siguiente = 1000
    ElseIf siguiente < 0 Then
        siguiente = 0
    End If
    For n = 1 To 10
        suma = suma + siguiente * n - (caudal / 2)
    Next
    Do While siguiente > limite
        siguiente = siguiente - 1
        avisar "tanque @: rebosa", siguiente
    Loop
    paso@ = siguiente
End Function

total = total + paso@(total, 12.5)
"""
LUA_BLOCK = """\
-- Nivel del tanque @, en décimas de por ciento
function paso@(nivel, caudal)
    local siguiente, n
    siguiente = nivel + caudal * 0.25 - perdidas(@)
    if siguiente > 1000 then
        siguiente = 1000
    elseif siguiente < 0 then
        siguiente = 0
    end
    for n = 1, 10 do
        suma = suma + siguiente * n - (caudal / 2)
    end
    while siguiente > limite do
        siguiente = siguiente - 1
        avisar("tanque @: rebosa", siguiente)
    end
    return siguiente
end

total = total + paso@(total, 12.5)
"""


def run(command):
    """Seconds of processor time of a command, and the most bytes it had resident."""
    process = subprocess.Popen(command, stdout=subprocess.DEVNULL)
    _, status, used = os.wait4(process.pid, 0)
    process.returncode = os.waitstatus_to_exitcode(status)
    if process.returncode != 0:
        sys.exit(f"{' '.join(map(str, command))} failed")
    return used.ru_utime + used.ru_stime, used.ru_maxrss * 1024


class Bench:
    def __init__(self, engine, lua, rounds, folder):
        self.engine, self.lua, self.rounds, self.folder = engine, lua, rounds, pathlib.Path(folder)
        self.files = 0

    def command(self, text, *options):
        """The command that runs a text: Lua's without the engine's options."""
        self.files += 1
        path = self.folder / f"{self.files}.txt"
        path.write_text(text, encoding="utf-8")
        return [self.engine, *options, str(path)]

    def lua_command(self, text):
        return [self.lua, *self.command(text)[1:]]

    def least(self, *commands):
        """The least time of each command; they take turns."""
        times = [[run(command)[0] for command in commands] for _ in range(self.rounds)]
        return [min(column) for column in zip(*times)]


def compiling(bench):
    blocks = 10_000
    text, lua = ("".join(block.replace("@", str(n)) for n in range(blocks)) for block in (VBS_BLOCK, LUA_BLOCK))
    bench.command(lua)
    source = bench.folder / f"{bench.files}.txt"
    empty = bench.command("", "--comprobar")
    ours, start, theirs, lua_start = bench.least(bench.command(text, "--comprobar"), empty,
                                                 bench.lua_command(f"assert(loadfile('{source}'))"), bench.lua_command(""))
    speed = len(text.encode()) / (ours - start) / 1e6
    lua_speed = len(lua.encode()) / (theirs - lua_start) / 1e6
    print(f"compilar, tiempo por byte junto a Lua 5.4: {lua_speed / speed:.2f} ({speed:.1f} MB/s; Lua {lua_speed:.1f})")


def unchanged_pass(bench):
    passes = 20_000
    text = "a = 1\nb = 2\nc = 3\n" + "a = b + c\nb = a - c\nc = c + 1\nIf c > 1000 Then c = 3\n" * 249 + "a = 1\n"
    lua = "a = 1\nb = 2\nc = 3\n" + "a = b + c\nb = a - c\nc = c + 1\nif c > 1000 then c = 3 end\n" * 249 + "a = 1\n"
    ours, start, theirs, lua_start = bench.least(
        bench.command(text, "--pasadas", str(passes)), bench.command(text),
        bench.lua_command(f"local f = assert(load([[{lua}]])) for i = 1, {passes} do f() end"),
        bench.lua_command(f"assert(load([[{lua}]]))()"))
    print(f"pasada de 1000 líneas sin cambios, junto a Lua 5.4: {(ours - start) / (theirs - lua_start):.2f} "
          f"({(ours - start) / passes * 1e6:.1f} us)")


def calls(bench):
    def loop(body):
        return bench.command("Function nada(a, b) : End Function\nSub nadaTres(a, b, c) : End Sub\nx = mw.leer(1, 5)\n"
                             f"For i = 1 To {CALLS}\n{body}\nNext\n")

    # An argument that changes, as in real scripts; the loop alone is subtracted.
    base, empty, read, empty_of_three, write = bench.least(
        loop("x = i Mod 64"), loop("x = nada(1, i Mod 64)"), loop("x = mw.leer(1, i Mod 64)"),
        loop("nadaTres 1, i Mod 64, 7"), loop("mw.escribir 1, i Mod 64, 7"))
    good = True
    for name, ours, reference in (("mw.leer", read, empty), ("mw.escribir", write, empty_of_three)):
        ratio = (ours - base) / (reference - base)
        good = good and ratio <= 1.0
        print(f"{name} junto a una llamada vacía del script: {ratio:.2f} (objetivo 1.00), "
              f"{(ours - base) / CALLS * 1e9:.0f} ns")
    return good


def slope(command_of, few, many):
    """Bytes for each piece: from two sizes, since what is resident before a program starts counts for it too."""
    return (run(command_of(many))[1] - run(command_of(few))[1]) / (many - few)


def memory(bench):
    ours = slope(lambda n: bench.command(f"Dim a({n - 1})\nFor i = 0 To {n - 1}\na(i) = i / 4\nNext\n"),
                 ELEMENTS, 4 * ELEMENTS)
    theirs = slope(lambda n: bench.lua_command(f"local a = {{}} for i = 1, {n} do a[i] = i / 4 end"),
                   ELEMENTS, 4 * ELEMENTS)
    print(f"memoria por elemento de una matriz de un millón, junto a Lua 5.4: {ours / theirs:.2f} ({ours:.1f} bytes)")
    text = slope(lambda n: bench.command(f's = String({n}, "x")\n'), CHARACTERS, 4 * CHARACTERS)
    print(f"memoria por carácter de un texto, junto a los 2 bytes de UTF-16: {text / 2:.2f} ({text:.2f} bytes)")


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("engine")
    parser.add_argument("--lua", default="lua5.4")
    parser.add_argument("--rounds", type=int, default=5)
    options = parser.parse_args()
    with tempfile.TemporaryDirectory() as folder:
        bench = Bench(options.engine, options.lua, options.rounds, folder)
        memory(bench)  # first: this program is still small
        compiling(bench)
        unchanged_pass(bench)
        good = calls(bench)
    return 0 if good else 1


if __name__ == "__main__":
    sys.exit(main())
