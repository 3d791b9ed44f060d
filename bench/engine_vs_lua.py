#!/usr/bin/env python3
"""The script engine beside Lua 5.4: the same algorithms, interleaved in one run.

    bench/engine_vs_lua.py build/release/bin/esclavo-script [--rounds N] [kernel ...]

Prints a line for every kernel with the ratio of the least processor times (engine / Lua) and at the end the geometric mean.
Exit status 1 if the mean is above 1.0 or a kernel above 1.5.
"""
import argparse
import math
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


def ratio(engine, lua, name, rounds):
    engine_times, lua_times = [], []
    for _ in range(rounds):
        seconds, said = processor_time([engine, str(KERNELS / f"{name}.vbs")])
        engine_times.append(seconds)
        seconds, expected = processor_time([lua, str(KERNELS / f"{name}.lua")])
        lua_times.append(seconds)
        if said != expected:
            sys.exit(f"{name}: the engine says {said}, Lua says {expected}")
    print(f"{name:12} {min(engine_times) * 1000:8.0f} ms {min(lua_times) * 1000:8.0f} ms {min(engine_times) / min(lua_times):6.2f}",
          flush=True)
    return min(engine_times) / min(lua_times)


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("engine")
    parser.add_argument("--lua", default="lua5.4")
    parser.add_argument("--rounds", type=int, default=5)
    parser.add_argument("kernels", nargs="*")
    options = parser.parse_intermixed_args()
    names = options.kernels or sorted(path.stem for path in KERNELS.glob("*.vbs"))
    print(f"{'kernel':12} {'engine':>11} {'Lua 5.4':>11}  ratio")
    ratios = [ratio(options.engine, options.lua, name, options.rounds) for name in names]
    mean = math.exp(sum(map(math.log, ratios)) / len(ratios))
    print(f"geometric mean {mean:.2f}, highest {max(ratios):.2f}")
    return 1 if mean > 1.0 or max(ratios) > 1.5 else 0


if __name__ == "__main__":
    sys.exit(main())
