#!/usr/bin/env python3
"""Checks that the sources keep to the floors of docs/architecture.md, whose list of folders is read
here. A file includes files of its own folder and of folders below it, no files include each other
in a circle, and only the desktop includes a Qt header. Prints what breaks a rule; exit code 1 if
anything does."""

import graphlib
import pathlib
import re
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
SOURCES = ROOT / "src"


def read_floors():
    """By folder: its floor, counted from the ground."""
    text = (ROOT / "docs/architecture.md").read_text(encoding="utf-8")
    paragraph = re.search(r"^`toolkit/`\s*<.*?\n\n", text, re.M | re.S)[0]
    floors = enumerate(paragraph.split("<"))
    return {name: floor for floor, names in floors for name in re.findall(r"`(\w+)/`", names)}


def main():
    floors = read_floors()
    faults, includes = [], {}
    for folder in sorted(path.name for path in SOURCES.iterdir() if path.is_dir()):
        if folder not in floors:
            faults.append(f"docs/architecture.md: the line `toolkit/` < ... lacks `{folder}/`")
            floors[folder] = len(floors)
    for path in sorted([*SOURCES.rglob("*.h"), *SOURCES.rglob("*.cpp")]):
        name = path.relative_to(SOURCES).as_posix()
        folder = name.split("/")[0]
        text = path.read_text(encoding="utf-8")
        includes[name] = re.findall(r'^#include "([^"]+)"', text, re.M)
        for other in includes[name]:
            below = other.split("/")[0]
            if below != folder and floors[below] >= floors[folder]:
                faults.append(f"{name} includes {other}, which is not below it")
        if folder != "desktop" and re.search(r"^#include <Q", text, re.M):
            faults.append(f"{name} includes a Qt header")
    try:
        graphlib.TopologicalSorter(includes).prepare()
    except graphlib.CycleError as circle:
        faults.append("These include each other in a circle: " + " ".join(circle.args[1]))
    print("\n".join(faults) or f"{len(includes)} files keep to their floors")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
