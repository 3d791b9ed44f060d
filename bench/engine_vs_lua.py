#!/usr/bin/env python3
"""The script engine beside Lua 5.4: the same algorithms, interleaved in one run.

    bench/engine_vs_lua.py build/release/bin/esclavo-script [--rounds N] [kernel ...]

Prints a line for every kernel with the ratio of the least processor times (engine / Lua) and at the end the geometric mean.
The start of each program, measured with an empty text, is taken off.
Exit status 1 if the mean is above 1.0 or a kernel above 1.5.
"""
import argparse
import math
import os
import pathlib
import resource
import subprocess
import sys

KERNELS = pathlib.Path(__file__).parent / "kernels"


def processor_time(command):
    """Seconds of processor time that a command takes, and what it prints."""
    before = resource.getrusage(resource.RUSAGE_CHILDREN)
    result = subprocess.run(command, stdout=subprocess.PIPE, check=True)
    after = resource.getrusage(resource.RUSAGE_CHILDREN)
    spent = after.ru_utime + after.ru_stime - before.ru_utime - before.ru_stime
    return spent, result.stdout.split()


def start_of(program, rounds):
    """Seconds that the program takes for nothing."""
    return min(processor_time([program, os.devnull])[0] for _ in range(max(rounds, 10)))


def ratio(engine, lua, name, rounds, starts):
    engine_times, lua_times = [], []
    for _ in range(rounds):
        seconds, said = processor_time([engine, str(KERNELS / f"{name}.vbs")])
        engine_times.append(seconds)
        seconds, expected = processor_time([lua, str(KERNELS / f"{name}.lua")])
        lua_times.append(seconds)
        if said != expected:
            sys.exit(f"{name}: the engine says {said}, Lua says {expected}")
    ours, theirs = min(engine_times) - starts[0], min(lua_times) - starts[1]
    print(f"{name:12} {ours * 1000:8.0f} ms {theirs * 1000:8.0f} ms {ours / theirs:6.2f}", flush=True)
    return ours / theirs


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("engine")
    parser.add_argument("--lua", default="lua5.4")
    parser.add_argument("--rounds", type=int, default=5)
    parser.add_argument("kernels", nargs="*")
    options = parser.parse_intermixed_args()
    names = options.kernels or sorted(path.stem for path in KERNELS.glob("*.vbs"))
    print(f"{'kernel':12} {'engine':>11} {'Lua 5.4':>11}  ratio")
    starts = start_of(options.engine, options.rounds), start_of(options.lua, options.rounds)
    ratios = [ratio(options.engine, options.lua, name, options.rounds, starts) for name in names]
    mean = math.exp(sum(map(math.log, ratios)) / len(ratios))
    print(f"geometric mean {mean:.2f}, highest {max(ratios):.2f}")
    return 1 if mean > 1.0 or max(ratios) > 1.5 else 0


if __name__ == "__main__":
    sys.exit(main())
