#!/usr/bin/env python3
"""What it costs to have all probes of a file in Python, beside the same loop in C++: read_probes.py QuorProbesLoop FILE.

The library is that of QUORCONVERSIONS_LIBRARY. Each figure is the fastest of three."""

import subprocess
import sys
import time
from pathlib import Path

sys.dont_write_bytecode = True
sys.path.insert(0, str(Path(__file__).resolve().parents[1] / "bindings/python"))
from quorconversions import ProbeFile  # noqa: E402


def fastest(run):
    return min(run() for _ in range(3))


def timed(work):
    def run():
        start = time.perf_counter()
        work()
        return (time.perf_counter() - start) * 1000

    return run


def table(path):
    assert len(ProbeFile(path).table().values)


def rows(path):
    assert all(row["Coefficients0"] for row in ProbeFile(path).table())


def objects(path):
    file = ProbeFile(path)
    for section in file:
        assert len(file[section].settings.coefficients[:]) == 4


def main():
    loop, path = sys.argv[1:]
    cpp = fastest(lambda: float(subprocess.run([loop, path], capture_output=True, check=True).stdout.split()[0]))
    print(f"all probes of {path} by the loop in C++: {cpp:.0f} ms")
    for name, work, most in (("as arrays", table, 10), ("as rows", rows, 10), ("as objects", objects, None)):
        milliseconds = fastest(timed(lambda: work(path)))
        limit = f" (at most {most})" if most else ""
        print(f"in Python {name:10}: {milliseconds:6.0f} ms, {milliseconds / cpp:.1f} x{limit}")


main()
