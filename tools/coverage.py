#!/usr/bin/env python3
"""Tells which lines and branches of src the tests of a coverage build reached.

usage: coverage.py BUILD_FOLDER [--missed]

A branch of a template counts once, reached by whichever of the functions made from it. Branches by which only exceptions leave are no
branches that the source has. What is made from the rows of src/blocks is left out.
"""
import argparse
import collections
import json
import pathlib
import subprocess
import sys

MADE = ("src/qelg/items.inc", "src/api/reader_members.cpp", "src/api/writer_members.cpp")


class Line:
    def __init__(self):
        self.count = 0
        self.branches = {}  # by how many the function has there, and which of them

    def add(self, found):
        self.count = max(self.count, found["count"])
        branches = [branch for branch in found["branches"] if not branch["throw"]]
        for place, branch in enumerate(branches):
            at = (len(branches), place)
            self.branches[at] = max(self.branches.get(at, 0), branch["count"])

    def missed_branches(self):
        return sum(count == 0 for count in self.branches.values())


def reached(build, root):
    """The lines by file and number, of every object that was run."""
    files = collections.defaultdict(lambda: collections.defaultdict(Line))
    counted = [path.resolve() for path in build.glob("**/*.gcda")]
    if not counted:
        sys.exit(f"{build} holds no counts: build it for coverage, and run its tests")
    for first in range(0, len(counted), 40):
        printed = subprocess.run(["gcov", "--json-format", "--stdout", "--branch-probabilities", *counted[first:first + 40]],
                                 cwd=build, check=True, capture_output=True, text=True).stdout
        for report in printed.splitlines():
            for entry in json.loads(report)["files"] if report.startswith("{") else []:
                path = (build.resolve() / entry["file"]).resolve()
                if path.is_relative_to(root / "src"):
                    for line in entry["lines"]:
                        files[path.relative_to(root).as_posix()][line["line_number"]].add(line)
    return files


class Sum:
    def __init__(self):
        self.lines = self.missed_lines = self.branches = self.missed_branches = 0

    def add(self, line):
        self.lines += 1
        self.missed_lines += line.count == 0
        self.branches += len(line.branches)
        self.missed_branches += line.missed_branches()

    def row(self, name):
        def part(missed, of):
            return f"{of - missed:,} of {of:,} | {100 * (of - missed) / max(of, 1):.1f} %"
        return f"| {name} | {part(self.missed_lines, self.lines)} | {part(self.missed_branches, self.branches)} |"


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("build", type=pathlib.Path)
    parser.add_argument("--missed", action="store_true", help="print what was not reached, line by line")
    given = parser.parse_args()
    root = pathlib.Path(__file__).resolve().parent.parent

    rooms, whole = collections.defaultdict(Sum), Sum()
    for name, lines in sorted(reached(given.build, root).items()):
        if name in MADE:
            continue
        text = (root / name).read_text().splitlines()
        for number, line in sorted(lines.items()):
            rooms[name.split("/")[1]].add(line)
            whole.add(line)
            if given.missed and (line.count == 0 or line.missed_branches()):
                what = "not reached" if line.count == 0 else f"{line.missed_branches()} of {len(line.branches)} branches not taken"
                print(f"{name}:{number}: {what}: {text[number - 1].strip()}")
    print("| room | lines | | branches | |\n|---|---|---|---|---|")
    for room in sorted(rooms):
        print(rooms[room].row(f"src/{room}"))
    print(whole.row("together"))


if __name__ == "__main__":
    main()
