#!/usr/bin/env python3
"""Checks the includes of src/ against the floors that docs/architecture.md lists: a file includes
files of its own folder and of lower folders, there are no circles, and only desktop/ includes Qt
headers. Prints what breaks these rules, and then the exit code is 1."""

import graphlib
import pathlib
import re
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
SOURCES = ROOT / "src"


def read_floors():
    """The floor of each folder, counted from the ground."""
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
