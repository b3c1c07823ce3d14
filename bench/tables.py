#!/usr/bin/env python3
"""Makes the tables of docs/benchmarks.md of what "./dev bench" printed.

usage: ./dev bench | bench/tables.py [--write]

Prints what it reads, and then the tables; with --write they go into the page, with the state of the tree and the date.
"""
import collections
import datetime
import pathlib
import re
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
PAGE = ROOT / "docs/benchmarks.md"
FIRST, LAST = "<!-- made by bench/tables.py -->", "<!-- made so far -->"

# A row of the first table: its name, the benchmark, the counter that holds its multiples of a limit, and that limit.
WORKS = [
    ("one raw read of a key in the last section, reader and all", "one_shot_raw_read", "limits", "read"),
    ("the same through a reader that is open", "raw_read_of_an_open_reader", "limits", "read"),
    ("a store of the same length in the middle", "store_of_the_same_length", "store_limits", "store"),
    ("the same beside the bare calls alone", "store_of_the_same_length", "store_calls", "a store's calls"),
    ("the same beside those and three that make it safe", "store_of_the_same_length", "store_safe_calls", "safe calls"),
    ("a store three bytes longer, then shorter", "store_three_bytes_longer_and_shorter", "store_limits", "store"),
    ("the same beside the bare calls alone", "store_three_bytes_longer_and_shorter", "store_calls", "a store's calls"),
    ("the loader", "loader", "limits", "read"),
    ("its reading, without the process that it makes", "loader", "reading_limits", "read"),
    ("a getter of the self-contained object", "object_getter", "limits", "read"),
    ("a setter of the self-contained object", "object_setter", "limits", "read"),
]
PEER_WORKS = [("one_read", "one read, file and all"), ("one_store", "load, set one key, save"), ("every_key_in_order", "every key once, in order"),
              ("every_key_shuffled", "every key once, shuffled")]
PEERS = ["engine", "one_pass", "bare_reads", "SimpleIni", "GLib", "PropertyTree", "inih"]
SIZES = ["1", "8", "64", "512"]


class Run:
    """What one run printed: times in nanoseconds and counters, by folder, benchmark and size."""

    def __init__(self, lines):
        self.times = collections.defaultdict(dict)
        self.counters = collections.defaultdict(dict)
        self.folders, self.starts, folder = [], [], None
        for line in lines:
            if found := re.match(r"== in \S+ \((\S+)\)", line):
                folder = {"ext2/ext3": "ext4"}.get(found[1], found[1])
                self.folders.append(folder)
            elif found := re.match(r"(fastest|quarter|median)\s+(\S+) ms\s+(\S+) ms\s+(\S+)", line):
                self.starts.append(found.groups())
            elif found := re.match(r"(\w+(?:/\w+)?)/(?:inlets|keys):(\d+)\S*\s+(\d+) ns", line):
                self.times[folder, found[1]][found[2]] = int(found[3])
                self.counters[folder, found[1]][found[2]] = dict(re.findall(r"(\w+)=([\d.]+)", line))


def short(number):
    return f"{number:.2g}" if number < 10 else f"{number:,.0f}"


def limits(run):
    yield "| work | limit | | 1 inlet | 8 | 64 | 512 |\n|---|---|---|---|---|---|---|"
    for name, benchmark, counter, limit in WORKS:
        for folder in run.folders:
            found = run.counters[folder, benchmark]
            cells = " | ".join(f"{float(found[size][counter]):.2f}" for size in SIZES)
            yield f"| {name} | {limit} | {folder} | {cells} |" if folder == run.folders[0] else f"| | | {folder} | {cells} |"


def peers(run):
    yield f"| microseconds | | inlets | {' | '.join(PEERS)} |\n|{'---|' * (3 + len(PEERS))}"
    for benchmark, name in PEER_WORKS:
        for folder in run.folders:
            for size in SIZES:
                cells = [run.times[folder, f"{benchmark}/{peer}"].get(size) for peer in PEERS]
                yield f"| {name} | {folder} | {size} | {' | '.join(short(cell / 1000) if cell else '' for cell in cells)} |"


def new_keys(run):
    names = ["engine", "SimpleIni", "GLib"]
    yield f"| milliseconds | | {' | '.join(names)} |\n|---|---|---|---|---|"
    for count in ("500", "2000"):
        for folder in run.folders:
            cells = " | ".join(short(run.times[folder, f"new_keys/{name}"][count] / 1e6) for name in names)
            yield f"| {count} new keys | {folder} | {cells} |"


def starts(run):
    yield "| start | `/bin/true` | `qelpro get` | ratio |\n|---|---|---|---|"
    for name, one, other, ratio in run.starts:
        yield f"| {name} | {one} ms | {other} ms | {ratio} |"


def tables(run):
    parts = [("In multiples of the limit.", limits), ("Beside libraries that load a whole file; inih does not save.", peers),
             ("New keys into an empty file, saved after each.", new_keys), ("A start of the tool.", starts)]
    return "\n\n".join(title + "\n\n" + "\n".join(make(run)) for title, make in parts)


def main():
    lines = []
    for line in sys.stdin:
        print(line, end="", flush=True)
        lines.append(line)
    made = tables(Run(lines))
    print(made)
    if sys.argv[1:] == ["--write"]:
        state = subprocess.run(["git", "rev-parse", "--short=7", "HEAD"], cwd=ROOT, check=True, capture_output=True, text=True).stdout.strip()
        text = PAGE.read_text()
        begin, end = text.index(FIRST) + len(FIRST), text.index(LAST)
        PAGE.write_text(f"{text[:begin]}\n\nState {state}, {datetime.date.today().isoformat()}.\n\n{made}\n\n{text[end:]}")


if __name__ == "__main__":
    main()
