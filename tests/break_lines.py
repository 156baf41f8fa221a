#!/usr/bin/env python3
"""Do the tests bite? Breaks lines of the game one at a time and sees whether the core tests notice.

Works on a copy of the last commit in a scratch folder, and is no part of ./test. A change that the
tests do not notice is a gap in them, or no change of behaviour at all: that is for a human to say.
"""

import argparse
import collections
import random
import re
import subprocess
import sys
import tempfile
from pathlib import Path

FOLDERS = ("board", "human", "computer", "game", "toolkit", "ui")
ROOT = Path(__file__).resolve().parent.parent
LIMIT = 20  # seconds a test program may take, far above what it needs

# What stands on the left, alone in the code, becomes what stands on the right.
SWAPS = [
    (r"==", "!="), (r"!=", "=="), (r"<=", "<"), (r">=", ">"),
    (r"(?<= )<(?= )", "<="), (r"(?<= )>(?= )", ">="), (r"&&", "||"), (r"\|\|", "&&"),
    (r"(?<= )\+(?= )", "-"), (r"(?<= )-(?= )", "+"), (r"\btrue\b", "false"), (r"\bfalse\b", "true"),
    (r"\bBlueSquare\b", "GreenSquare"), (r"\bGreenSquare\b", "BlueSquare"),
    (r"\bBlueKing\b", "GreenKing"), (r"\bGreenKing\b", "BlueKing"),
    (r"\bLandingSquare\b", "Neighbour"), (r"\bBlue\b", "Green"), (r"\bGreen\b", "Blue"),
    (r"\bfirst\b", "second"), (r"\bfrom\b", "to"), (r"\bto\b", "from"), (r"\bany_of\b", "none_of"),
]
NOT_CODE = re.compile(r"^\s*(//|#|namespace\b|static_assert|assert\(|using\b|\}|enum\b|struct\b|$)")
STATEMENT = re.compile(r"^\s+(?=\S)(?!return\s+\S|using\b|case\b|const\b|friend\b)[^/{}]*;")
INLINE = re.compile(r"\breturn\b|\bif \(|\bfor \(| \+= |^\s+found = ")


def split_comment(line):
    """The code of a line, with its texts blanked out, up to a comment."""
    return re.sub(r'"(\\.|[^"\\])*"', lambda text: "_" * len(text.group()), line).split("//")[0]


def changes_of_line(line):
    """The lines that can stand in place of this one, each with a word for the change."""
    code = split_comment(line)
    for pattern, other in SWAPS:
        for match in re.finditer(pattern, code):
            yield "swap", line[:match.start()] + other + line[match.end():]
    for match in re.finditer(r"(?<![\w.'])\d+(?![\w.'])", code):
        for value in {int(match.group()) + 1, abs(int(match.group()) - 1)}:
            yield "constant", line[:match.start()] + str(value) + line[match.end():]
    match = re.search(r"\b(if|while) \((.+)\)( \{| [\w:].*;|$)", code)
    if match:
        start, end = match.span(2)
        yield "condition", f"{line[:start]}!({line[start:end]}){line[end:]}"


def is_statement(lines, k):
    """Whether the line is a whole statement that the code could do without."""
    before = split_comment(lines[k - 1]).rstrip()
    return STATEMENT.match(split_comment(lines[k])) and (
        not before or before[-1] in ";{}:" or before.startswith("  if") and before[-1] == ")")


def all_changes(source):
    """Every change of every source file: (file, line number, word, new line)."""
    for path in sorted(path for folder in FOLDERS for path in (source / folder).iterdir()):
        lines = path.read_text().splitlines()
        is_header = path.suffix == ".h"
        for k, line in enumerate(lines):
            is_body = not is_header and (line.startswith(" ") or "constexpr" in line)
            if NOT_CODE.match(line) or not (is_body or INLINE.search(line)):
                continue  # declarations are left alone
            for word, new in changes_of_line(line):
                yield path, k, word, new
            if not is_header and is_statement(lines, k):
                yield path, k, "drop", ";"


def outcome_in(build, tests):
    """What becomes of the sources as they stand: the first test that notices ends it."""
    quiet = {"cwd": build, "stdout": subprocess.DEVNULL, "stderr": subprocess.DEVNULL}
    for test in tests:
        name = test.split()[0]
        if subprocess.run(["ninja", "-j1", name], **quiet).returncode != 0:
            return "does not compile"
        try:
            # A loop without end that keeps what it makes shall not take the machine along.
            done = subprocess.run(f"ulimit -v 1000000; exec {test}", shell=True, timeout=LIMIT,
                                  **quiet)
        except subprocess.TimeoutExpired:
            return f"killed by {name} (time)"
        if done.returncode != 0:
            return f"killed by {name}"
    return "SURVIVED"


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--sample", type=int, default=100, help="how many changes (default 100)")
    parser.add_argument("--seed", type=int, default=1, help="which sample (default 1)")
    parser.add_argument("--only", default="", help="only files whose path holds this")
    options = parser.parse_args()
    # The quickest to build comes first.
    tests = ["tests/soak/soak 300",
             "tests/velmoran_tests --gtest_brief=1 --gtest_fail_fast"]
    with tempfile.TemporaryDirectory(prefix="break_lines_") as folder:
        build = Path(folder) / "build"
        subprocess.run(f"git archive HEAD | tar -x -C {folder}", shell=True, cwd=ROOT, check=True)
        subprocess.run(["cmake", "-S", folder, "-B", build, "-G", "Ninja",
                        "-DVELMORAN_DESKTOP=OFF", "-DVELMORAN_TESTS=ON", "-DCMAKE_BUILD_TYPE=None",
                        "-DCMAKE_CXX_FLAGS=-O1 -w"], check=True, stdout=subprocess.DEVNULL)
        if (outcome := outcome_in(build, tests)) != "SURVIVED":
            sys.exit(f"the unbroken source: {outcome}")
        changes = [change for change in all_changes(Path(folder) / "src")
                   if options.only in str(change[0])]
        print(f"{len(changes)} changes are possible", flush=True)
        counts = collections.Counter()
        sample = random.Random(options.seed).sample(changes, min(options.sample, len(changes)))
        for path, k, word, new in sample:
            text = path.read_text()
            lines = text.splitlines(keepends=True)
            path.write_text("".join([*lines[:k], new, "\n", *lines[k + 1:]]))
            outcome = outcome_in(build, tests)
            path.write_text(text)
            counts[outcome.split(" by ")[0]] += 1
            print(f"{outcome}: {path.relative_to(folder)}:{k + 1} {word}", flush=True)
            if outcome == "SURVIVED":
                print(f"  - {lines[k]}  + {new}", flush=True)
        killed, survived = counts["killed"], counts["SURVIVED"]
        print(f"{killed} killed, {survived} survived, {counts['does not compile']} do not "
              f"compile: {100 * killed / max(1, killed + survived):.1f} of 100 are noticed")


if __name__ == "__main__":
    main()
