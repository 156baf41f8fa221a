#!/usr/bin/env python3
"""Checks that the sources keep to the floors of docs/architecture.md.

A file includes only files of its own folder's floor or of lower ones, no two files include each
other in a circle, and only the top floor includes a Qt header. The floors are read from the table of
that document, so it cannot go stale. Prints what breaks a rule; exit code 1 if anything does.
"""

import pathlib
import re
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
SOURCES = ROOT / "src"


def read_floors():
    """By name, such as "board/position" or "toolkit/": its floor."""
    rows = re.findall(r"^\| (\d+) \| ([^|]*) \|", (ROOT / "docs/architecture.md").read_text(), re.M)
    return {name.removesuffix(".cpp"): int(floor)
            for floor, names in rows for name in re.findall(r"`([^`]+)`", names)}


def floor_of(name, floors):
    stem = name.rsplit(".", 1)[0]
    return floors.get(stem, floors.get(stem.split("/")[0] + "/"))


def find_circles(includes):
    """Names of files that include themselves by way of others."""
    def reaches(start, goal, seen):
        return any(name == goal or (name not in seen and reaches(name, goal, seen | {name}))
                   for name in includes.get(start, ()))
    return [name for name in includes if reaches(name, name, frozenset())]


def main():
    floors = read_floors()
    top = max(floors.values())
    faults = []
    includes = {}
    for path in sorted(SOURCES.rglob("*.h")) + sorted(SOURCES.rglob("*.cpp")):
        name = path.relative_to(SOURCES).as_posix()
        floor = floor_of(name, floors)
        if floor is None:
            faults.append(f"{name} stands on no floor")
            continue
        text = path.read_text()
        includes[name] = re.findall(r'^#include "([^"]+)"', text, re.M)
        faults += [f"{name} on floor {floor} includes {other} on floor {floor_of(other, floors)}"
                   for other in includes[name] if (floor_of(other, floors) or top + 1) > floor]
        if floor < top and re.search(r"^#include <Q", text, re.M):
            faults.append(f"{name} includes a Qt header")
    faults += [f"{name} includes itself by way of others" for name in find_circles(includes)]
    print("\n".join(faults) or f"{len(includes)} files keep to their floors")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
