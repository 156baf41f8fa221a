#!/usr/bin/env python3
"""Do the tests bite? Breaks lines of the game one at a time and sees whether the core tests notice.

Works on a copy of the last commit in a scratch folder, and is no part of ./test. A change that the
tests do not notice is a gap in them, or no change of behaviour at all: that is for a human to say.
"""

import argparse
import random
import re
import resource
import subprocess
import sys
import tempfile
import time
from pathlib import Path

FOLDERS = ("board", "human", "computer", "game", "toolkit")
ROOT = Path(__file__).resolve().parent.parent

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
NOT_CODE = re.compile(r"^\s*(//|#|namespace\b|static_assert|assert\(|using\b|\}|enum\b|struct\b)")
STATEMENT = re.compile(r"^\s+(?=\S)(?!return\s+\S|using\b|case\b|const\b|friend\b)[^/{}]*;")


def split_comment(line):
    """The code of a line, with its texts blanked out, and where a comment begins."""
    blank = re.sub(r'"(\\.|[^"\\])*"', lambda match: "_" * len(match.group()), line)
    place = blank.find("//")
    return blank if place < 0 else blank[:place]


def changes_of_line(line):
    """The lines that can stand in place of this one, each with a word for the change."""
    code = split_comment(line)
    for pattern, other in SWAPS:
        for match in re.finditer(pattern, code):
            yield "swap", line[:match.start()] + other + line[match.end():]
    for match in re.finditer(r"(?<![\w.'])\d+(?![\w.'])", code):
        for value in {int(match.group()) + 1, max(int(match.group()) - 1, 0)}:
            if value != int(match.group()):
                yield "constant", line[:match.start()] + str(value) + line[match.end():]
    match = re.search(r"\b(if|while) \((.+)\)( \{| [\w:].*;|$)", code)
    if match:
        condition = line[match.start(2):match.end(2)]
        yield "condition", line[:match.start(2)] + f"!({condition})" + line[match.end(2):]


def is_code(path, line):
    """Whether a change of the line can change a behaviour: declarations are left alone."""
    if NOT_CODE.match(line) or not line.strip():
        return False
    is_inline = re.search(r"\breturn\b|\bif \(|\bfor \(| \+= |^\s+found = ", line)
    if path.suffix == ".h":
        return bool(is_inline)
    return line[0] == " " or bool(is_inline) or "constexpr" in line


def is_statement(lines, k):
    """Whether the line is a whole statement that the code could do without."""
    before = split_comment(lines[k - 1]).rstrip()
    return bool(STATEMENT.match(split_comment(lines[k]))) and (
        not before or before[-1] in ";{}:" or before.startswith("  if") and before[-1] == ")")


def all_changes(root):
    """Every change of every source file: (file, line number, word, old lines, new lines)."""
    for folder in FOLDERS:
        for path in sorted((root / "src" / folder).glob("*.[ch]*")):
            lines = path.read_text().splitlines()
            for k, line in enumerate(lines):
                if not is_code(path, line):
                    continue
                for word, new in changes_of_line(line):
                    yield path, k, word, [line], [new]
                if path.suffix == ".h" or not is_statement(lines, k):
                    continue
                yield path, k, "drop", [line], [";"]
                pair = lines[k:k + 2]
                indents = [re.match(r"\s*", text).group() for text in pair]
                if len(set(indents)) == 1 and pair[0] != pair[1] and is_statement(lines, k + 1):
                    yield path, k, "reverse", pair, pair[::-1]


def limit_memory():
    """A loop without end that keeps what it makes shall not take the machine along."""
    resource.setrlimit(resource.RLIMIT_AS, (1 << 30, 1 << 30))


class Bench:
    """The scratch copy, its build and its tests."""

    def __init__(self, folder, games):
        self.root = folder / "source"
        self.build = folder / "build"
        self.root.mkdir(parents=True, exist_ok=True)
        archive = subprocess.run(["git", "archive", "HEAD"], cwd=ROOT, check=True,
                                 stdout=subprocess.PIPE)
        subprocess.run(["tar", "-x", "-C", self.root], input=archive.stdout, check=True)
        # The quickest to fail comes first.
        self.commands = [["tests/soak/soak", "--games", str(games)],
                         ["tests/velmoran_tests", "--gtest_brief=1", "--gtest_fail_fast"],
                         ["tests/soak/count", self.root / "tests/data/counts.txt"]]
        self.limits = [600] * len(self.commands)  # seconds
        self.times = list(self.limits)
        subprocess.run(["cmake", "-S", self.root, "-B", self.build, "-G", "Ninja",
                        "-DVELMORAN_DESKTOP=OFF", "-DVELMORAN_TESTS=ON", "-DCMAKE_BUILD_TYPE=None",
                        "-DCMAKE_CXX_FLAGS=-O1 -w"], check=True, stdout=subprocess.DEVNULL)

    def compiles(self):
        targets = ["velmoran_tests", "count", "soak"]
        return subprocess.run(["ninja", "-j1", "-C", self.build, *targets],
                              stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL).returncode == 0

    def failing_test(self):
        """The first program that notices, or None."""
        for number, command in enumerate(self.commands):
            start = time.monotonic()
            try:
                done = subprocess.run([self.build / command[0], *command[1:]], cwd=self.build,
                                      timeout=self.limits[number], preexec_fn=limit_memory,
                                      stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
            except subprocess.TimeoutExpired:
                return command[0] + " (time)"
            self.times[number] = time.monotonic() - start
            if done.returncode != 0:
                return command[0]
        return None

    def check_unbroken(self):
        if not self.compiles():
            sys.exit("the unbroken source does not compile")
        failing = self.failing_test()
        if failing:
            sys.exit(f"the unbroken source fails {failing}")
        self.limits = [2 + 5 * seconds for seconds in self.times]

    def outcome(self, change):
        path, k, _, old, new = change
        text = path.read_text()
        lines = text.splitlines()
        lines[k:k + len(old)] = new
        path.write_text("\n".join(lines) + "\n")
        try:
            if not self.compiles():
                return "does not compile"
            failing = self.failing_test()
            return f"killed by {failing}" if failing else "SURVIVED"
        finally:
            path.write_text(text)


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--sample", type=int, default=100, help="how many changes (default 100)")
    parser.add_argument("--seed", type=int, default=1, help="which sample (default 1)")
    parser.add_argument("--games", type=int, default=300, help="games of soak (default 300)")
    parser.add_argument("--only", default="", help="only files whose path holds this")
    options = parser.parse_args()
    with tempfile.TemporaryDirectory(prefix="break_lines_") as folder:
        bench = Bench(Path(folder), options.games)
        bench.check_unbroken()
        changes = [change for change in all_changes(bench.root) if options.only in str(change[0])]
        print(f"{len(changes)} changes are possible", flush=True)
        random.seed(options.seed)
        counts = {}
        for change in random.sample(changes, min(options.sample, len(changes))):
            path, k, word, old, new = change
            outcome = bench.outcome(change)
            kind = outcome.split(" by ")[0]
            counts[kind] = counts.get(kind, 0) + 1
            print(f"{outcome}: {path.relative_to(bench.root)}:{k + 1} {word}", flush=True)
            if kind == "SURVIVED":
                print("\n".join(["  - " + text for text in old] + ["  + " + text for text in new]),
                      flush=True)
        killed, survived = counts.get("killed", 0), counts.get("SURVIVED", 0)
        print(f"{killed} killed, {survived} survived, {counts.get('does not compile', 0)} do not "
              f"compile: {100 * killed / max(1, killed + survived):.1f} of 100 are noticed")


if __name__ == "__main__":
    main()
