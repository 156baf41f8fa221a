#!/usr/bin/env python3
"""Measures what programs with a window cost: measure.py [--runs N] PROGRAM [PROGRAM ...]

Runs the programs in turn, N times each, on an X server of their own, and prints medians:
milliseconds until the first pixels and until the picture has settled, processor time in the first
3 s, PSS and USS at rest in MiB, context switches and processor time in 10 s of rest, and processor
time for 1,000 mouse movements. Enter closes the help box before the rest is measured."""

import argparse
import pathlib
import statistics
import sys
import time

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent.parent / "tests/support"))
sys.dont_write_bytecode = True

from real_window import Screen  # noqa: E402

HEADS = ("first ms", "settled ms", "CPU to 3 s ms", "PSS MiB", "USS MiB")
HEADS += ("switches in 10 s", "CPU in 10 s ms", "CPU for 1,000 moves ms")


def watch_start(screen, started):
    """Milliseconds until the picture changes first and last, within 2 s."""
    before, changes = screen.memory[:], []
    while time.monotonic() < started + 2:
        now = screen.memory[:]
        if now != before:
            changes.append((time.monotonic() - started) * 1000)
            before = now
    return changes[0], changes[-1]


def processor_ms(pid):
    """The time of all threads in nanoseconds. /proc/PID/stat would count in steps of 10 ms."""
    times = pathlib.Path(f"/proc/{pid}/task").glob("*/schedstat")
    return sum(int(path.read_text().split()[0]) for path in times) / 1e6


def context_switches(pid):
    status = pathlib.Path(f"/proc/{pid}/status").read_text().splitlines()
    return sum(int(line.split()[1]) for line in status if "ctxt_switches" in line)


def memory_mib(pid):
    rollup = pathlib.Path(f"/proc/{pid}/smaps_rollup").read_text().splitlines()[1:]
    sizes = {line.split()[0]: int(line.split()[1]) / 1024 for line in rollup}
    return sizes["Pss:"], sizes["Private_Clean:"] + sizes["Private_Dirty:"]


def measure(program):
    screen = Screen("640x640x24")
    started = time.monotonic()
    process = screen.start(program)
    pid = process.pid
    row = [*watch_start(screen, started)]
    time.sleep(max(0, started + 3 - time.monotonic()))
    row.append(processor_ms(pid))
    screen.run("xdotool", "key", "Return")
    time.sleep(1.5)
    row += memory_mib(pid)
    before = context_switches(pid), processor_ms(pid)
    time.sleep(10)
    row += context_switches(pid) - before[0], processor_ms(pid) - before[1]
    moves = [f"mousemove {60 + step % 500} {100 + step * 7 % 450}" for step in range(1000)]
    before = processor_ms(pid)
    screen.run("xdotool", *" ".join(moves).split())
    time.sleep(0.5)
    row.append(processor_ms(pid) - before)
    for ended in process, screen.server:
        ended.kill()
        ended.wait()
    return row


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--runs", type=int, default=5)
    parser.add_argument("programs", nargs="+")
    arguments = parser.parse_args()
    results = {program: [] for program in arguments.programs}
    for _ in range(arguments.runs):
        for program in arguments.programs:
            results[program].append(measure(program))
    print(*HEADS, sep=" | ")
    for program, rows in results.items():
        medians = [statistics.median(column) for column in zip(*rows)]
        print(*(f"{value:.1f}" for value in medians), program, sep=" | ")


if __name__ == "__main__":
    main()
