#!/usr/bin/env python3
"""Checks that the sources keep to the floors of docs/architecture.md, whose one line of folders is
read here. A file includes files of its own folder and of folders below it, no two files include
each other in a circle, and only the desktop includes a Qt header. Prints what breaks a rule; exit
code 1 if anything does."""

import pathlib
import re
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
SOURCES = ROOT / "src"


def read_floors():
    """By folder: its floor, counted from the ground."""
    line = re.search(r"^`toolkit/`.*$", (ROOT / "docs/architecture.md").read_text(), re.M)[0]
    return {name: floor for floor, names in enumerate(line.split("<"))
            for name in re.findall(r"`(\w+)/`", names)}


def find_circles(includes):
    """Names of files that include themselves by way of others."""
    def reaches(start, goal, seen):
        return any(name == goal or (name not in seen and reaches(name, goal, seen | {name}))
                   for name in includes.get(start, ()))
    return [name for name in includes if reaches(name, name, frozenset())]


def main():
    floors = read_floors()
    faults = []
    includes = {}
    for path in sorted(SOURCES.rglob("*.h")) + sorted(SOURCES.rglob("*.cpp")):
        name = path.relative_to(SOURCES).as_posix()
        folder = name.split("/")[0]
        text = path.read_text()
        includes[name] = re.findall(r'^#include "([^"]+)"', text, re.M)
        for other in includes[name]:
            below = other.split("/")[0]
            if below != folder and floors[below] >= floors[folder]:
                faults.append(f"{name} includes {other}, which does not stand below it")
        if folder != "desktop" and re.search(r"^#include <Q", text, re.M):
            faults.append(f"{name} includes a Qt header")
    faults += [f"{name} includes itself by way of others" for name in find_circles(includes)]
    print("\n".join(faults) or f"{len(includes)} files keep to their floors")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
