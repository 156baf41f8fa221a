#!/usr/bin/env python3
"""Do the tests bite? Breaks lines of the game one at a time and sees whether the core tests notice.

Works on a copy of the last commit in a scratch folder, and is no part of ./test. A change that the
tests do not notice is a gap in them, or no change of behaviour at all: that is for a human to say.
"""

import argparse
import collections
import random
import re
import resource
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
    return k < len(lines) and STATEMENT.match(split_comment(lines[k])) and (
        not before or before[-1] in ";{}:" or before.startswith("  if") and before[-1] == ")")


def all_changes(root):
    """Every change of every source file: (file, line number, word, old lines, new lines)."""
    for path in sorted(path for folder in FOLDERS for path in (root / "src" / folder).iterdir()):
        lines = path.read_text().splitlines()
        is_header = path.suffix == ".h"
        for k, line in enumerate(lines):
            if NOT_CODE.match(line) or not (
                    INLINE.search(line) or not is_header and (line[0] == " " or "constexpr" in line)):
                continue  # declarations are left alone
            for word, new in changes_of_line(line):
                yield path, k, word, [line], [new]
            if is_header or not is_statement(lines, k):
                continue
            yield path, k, "drop", [line], [";"]
            pair = lines[k:k + 2]
            if is_statement(lines, k + 1) and pair[0] != pair[1] and (
                    len({len(text) - len(text.lstrip()) for text in pair}) == 1):
                yield path, k, "reverse", pair, pair[::-1]


def limit_memory():
    """A loop without end that keeps what it makes shall not take the machine along."""
    resource.setrlimit(resource.RLIMIT_AS, (1 << 30, 1 << 30))


class Bench:
    """The scratch copy, its build and its tests, the quickest to build first."""

    def __init__(self, folder, games):
        self.root, self.build = folder / "source", folder / "build"
        self.root.mkdir()
        archive = subprocess.run(["git", "archive", "HEAD"], cwd=ROOT, check=True,
                                 stdout=subprocess.PIPE)
        subprocess.run(["tar", "-x", "-C", self.root], input=archive.stdout, check=True)
        self.commands = [["tests/soak/soak", "--games", str(games)],
                         ["tests/velmoran_tests", "--gtest_brief=1", "--gtest_fail_fast"]]
        subprocess.run(["cmake", "-S", self.root, "-B", self.build, "-G", "Ninja",
                        "-DVELMORAN_DESKTOP=OFF", "-DVELMORAN_TESTS=ON", "-DCMAKE_BUILD_TYPE=None",
                        "-DCMAKE_CXX_FLAGS=-O1 -w"], check=True, stdout=subprocess.DEVNULL)
        outcome = self.outcome()
        if outcome != "SURVIVED":
            sys.exit(f"the unbroken source: {outcome}")

    def outcome(self):
        quiet = {"cwd": self.build, "stdout": subprocess.DEVNULL, "stderr": subprocess.DEVNULL}
        for name, *arguments in self.commands:
            if subprocess.run(["ninja", "-j1", name], **quiet).returncode != 0:
                return "does not compile"
            try:
                done = subprocess.run([self.build / name, *arguments], timeout=LIMIT,
                                      preexec_fn=limit_memory, **quiet)
            except subprocess.TimeoutExpired:
                return f"killed by {name} (time)"
            if done.returncode != 0:
                return f"killed by {name}"
        return "SURVIVED"

    def outcome_of(self, path, k, old, new):
        text = path.read_text()
        lines = text.splitlines()
        lines[k:k + len(old)] = new
        path.write_text("\n".join(lines) + "\n")
        try:
            return self.outcome()
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
        changes = [change for change in all_changes(bench.root) if options.only in str(change[0])]
        print(f"{len(changes)} changes are possible", flush=True)
        random.seed(options.seed)
        counts = collections.Counter()
        for path, k, word, old, new in random.sample(changes, min(options.sample, len(changes))):
            outcome = bench.outcome_of(path, k, old, new)
            counts[outcome.split(" by ")[0]] += 1
            print(f"{outcome}: {path.relative_to(bench.root)}:{k + 1} {word}", flush=True)
            if outcome == "SURVIVED":
                print(*["  - " + text for text in old], *["  + " + text for text in new], sep="\n",
                      flush=True)
        killed, survived = counts["killed"], counts["SURVIVED"]
        print(f"{killed} killed, {survived} survived, {counts['does not compile']} do not "
              f"compile: {100 * killed / max(1, killed + survived):.1f} of 100 are noticed")


if __name__ == "__main__":
    main()
