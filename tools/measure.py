#!/usr/bin/env python3
"""Measures what programs with a window cost: start-up, memory, rest, and mouse movements.

    tools/measure.py [--runs N] PROGRAM [PROGRAM ...]

Each program is run N times in turn under an Xvfb of its own, without a window manager. Printed are
medians: milliseconds until the first pixels and until the picture has settled, processor time up to
3 s, PSS and USS in MiB once the program is at rest, context switches and processor time in 10 s of
rest, and processor time for 1,000 mouse movements. A help box that is open by then is closed with
Enter before the rest is measured.
"""

import argparse
import ctypes
import os
import statistics
import subprocess
import time

SCREEN = (640, 640)
Z_PIXMAP, ALL_PLANES = 2, ctypes.c_ulong(-1)

x11 = ctypes.CDLL("libX11.so.6")
x11.XOpenDisplay.restype = ctypes.c_void_p
x11.XDefaultRootWindow.argtypes = [ctypes.c_void_p]
x11.XDefaultRootWindow.restype = ctypes.c_ulong
x11.XGetImage.argtypes = [ctypes.c_void_p, ctypes.c_ulong, ctypes.c_int, ctypes.c_int,
                          ctypes.c_uint, ctypes.c_uint, ctypes.c_ulong, ctypes.c_int]
x11.XGetImage.restype = ctypes.c_void_p


class XImage(ctypes.Structure):
    """The head of Xlib's structure, as far as its data."""
    _fields_ = [("width", ctypes.c_int), ("height", ctypes.c_int), ("xoffset", ctypes.c_int),
                ("format", ctypes.c_int), ("data", ctypes.c_void_p)]


class Screen:
    """An Xvfb of our own and a view of its pixels."""

    def __enter__(self):
        read_end, write_end = os.pipe()
        self.server = subprocess.Popen(
            ["Xvfb", "-displayfd", str(write_end), "-nolisten", "tcp", "-screen", "0",
             f"{SCREEN[0]}x{SCREEN[1]}x24"], pass_fds=[write_end], stderr=subprocess.DEVNULL)
        os.close(write_end)
        with os.fdopen(read_end) as number:
            self.name = ":" + number.readline().strip()
        self.display = ctypes.c_void_p(x11.XOpenDisplay(self.name.encode()))
        self.root = x11.XDefaultRootWindow(self.display)
        return self

    def __exit__(self, *_):
        x11.XCloseDisplay(self.display)
        self.server.terminate()
        self.server.wait()

    def pixels(self):
        image = x11.XGetImage(self.display, self.root, 0, 0, *SCREEN, ALL_PLANES, Z_PIXMAP)
        data = ctypes.string_at(XImage.from_address(image).data, SCREEN[0] * SCREEN[1] * 4)
        x11.XDestroyImage(ctypes.c_void_p(image))
        return data

    def press_keys(self, *keys):
        subprocess.run(["xdotool", "key", *keys], env=self.environment(), check=True)

    def environment(self):
        return {**os.environ, "DISPLAY": self.name, "QT_QPA_PLATFORM": "xcb"}


def watch_start(screen, started, seconds):
    """Milliseconds until the first change of the picture and until its last one."""
    before = screen.pixels()
    first = last = None
    while time.monotonic() - started < seconds:
        now = screen.pixels()
        if now != before:
            last = (time.monotonic() - started) * 1000
            first = first or last
            before = now
    return first, last


def processor_ms(pid):
    """Of all threads, from the scheduler's nanoseconds: /proc/PID/stat counts in steps of 10 ms."""
    total = 0
    for thread in os.listdir(f"/proc/{pid}/task"):
        with open(f"/proc/{pid}/task/{thread}/schedstat") as times:
            total += int(times.read().split()[0])
    return total / 1e6


def context_switches(pid):
    with open(f"/proc/{pid}/status") as status:
        return sum(int(line.split()[1]) for line in status if "ctxt_switches" in line)


def memory_mib(pid):
    with open(f"/proc/{pid}/smaps_rollup") as rollup:
        sizes = {line.split()[0]: int(line.split()[1]) for line in list(rollup)[1:]}
    return sizes["Pss:"] / 1024, (sizes["Private_Clean:"] + sizes["Private_Dirty:"]) / 1024


def move_mouse(screen):
    path = [f"mousemove {60 + step % 500} {100 + step * 7 % 450}" for step in range(1000)]
    subprocess.run(["xdotool", "-"], input="\n".join(path), text=True, check=True,
                   env=screen.environment())


def measure(program):
    with Screen() as screen:
        started = time.monotonic()
        process = subprocess.Popen([program], env=screen.environment(), stderr=subprocess.DEVNULL)
        first, settled = watch_start(screen, started, 2)
        time.sleep(max(0, started + 3 - time.monotonic()))
        start_cost = processor_ms(process.pid)
        screen.press_keys("Return")
        time.sleep(1.5)
        pss, uss = memory_mib(process.pid)
        rest_switches, rest_cost = context_switches(process.pid), processor_ms(process.pid)
        time.sleep(10)
        rest_switches = context_switches(process.pid) - rest_switches
        rest_cost = processor_ms(process.pid) - rest_cost
        mouse_cost = processor_ms(process.pid)
        move_mouse(screen)
        time.sleep(0.5)
        mouse_cost = processor_ms(process.pid) - mouse_cost
        process.kill()
        process.wait()
        return first, settled, start_cost, pss, uss, rest_switches, rest_cost, mouse_cost


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--runs", type=int, default=5)
    parser.add_argument("programs", nargs="+")
    arguments = parser.parse_args()
    results = {program: [] for program in arguments.programs}
    for _ in range(arguments.runs):
        for program in arguments.programs:
            results[program].append(measure(program))
    print("first ms | settled ms | CPU to 3 s ms | PSS MiB | USS MiB | switches in 10 s"
          " | CPU in 10 s ms | CPU for 1,000 moves ms")
    for program, rows in results.items():
        medians = [statistics.median(column) for column in zip(*rows)]
        print(" | ".join(f"{value:.1f}" for value in medians), os.path.basename(program), sep=" | ")


if __name__ == "__main__":
    main()
