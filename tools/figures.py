#!/usr/bin/env python3
"""The measured figures of docs/reliability.md: what prints each, and what it printed last.

usage: figures.py list | measure NAME ... | write | check

"measure" runs the commands of those figures, keeps what they print in docs/figures.json with the state of the tree and the date, and
puts the page's table anew, as "write" does alone; all that they print is in build/figures. "check" fails where the table is not that of the kept figures.
"""
import datetime
import json
import os
import pathlib
import re
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
KEPT = ROOT / "docs/figures.json"
PAGE = ROOT / "docs/reliability.md"
LOGS = ROOT / "build/figures"
OWN = (":!docs/figures.json", ":!docs/reliability.md")  # written by whatever was measured before
FIRST, LAST = "<!-- made by tools/figures.py -->", "<!-- made so far -->"

MEASURED = r"^\[ measured \] (.*)"
FUZZED = r"^(\w+_fuzz: Done .*)"
MUTATED = "/usr/bin/python3 tools/mutation.py build/mutants --every 4 --from 1"
MUTANTS = r"^(.* mutants killed .*)"

# Name, what is measured, the command, and which of the lines that it prints are kept.
FIGURES = [
    ("memory", "every allocation of every exported member fails", "./dev test --memory", MEASURED),
    ("stops", "stops after every page of random stores", "QELPRO_LOAD=whole build/debug/tests/inner_tests --gtest_filter='*PageSteps*'", MEASURED),
    ("kills", "kills at random moments, a fresh file after each 20",
     "QELPRO_KILLS=100000 build/debug/tests/fault_tests --gtest_filter='KilledWriter.*'", MEASURED),
    ("stacks", "stack that a member takes, the most of each class",
     "cmake --preset release -B build/stacks -DQELPRO_BENCHMARKS=OFF && cmake --build build/stacks --target qelpro_guest_tests && "
     "cd build/stacks && tests/guest_tests --gtest_filter='SmallStack.*'", MEASURED),
    ("programs", "two programs, one file", "QELPRO_LOAD=whole build/debug/tests/load_tests --gtest_filter='*Processes*:*OldOrNew*'", MEASURED),
    ("load", "threads, stores and large files",
     "QELPRO_LOAD=whole build/debug/tests/load_tests --gtest_filter='-*Processes*:*OldOrNew*'", MEASURED),
    ("fuzz", "fuzzing, each target so long", "./dev fuzz 360", FUZZED),
    ("older", "the older object beside its model", "./dev fuzz 360 older_model", FUZZED),
    ("coverage", "lines and branches that the tests reach", "./dev coverage", r"^\| (together .*) \|$"),
    ("text", "mutants of the text engine", f"{MUTATED} src/text", MUTANTS),
    ("core", "mutants of lookups, stores and sessions", f"{MUTATED} src/core", MUTANTS),
    ("process", "mutants of the loader and of the encodings",
     f"{MUTATED} src/process src/blocks/name_encoding.cpp src/blocks/positional_encoding.cpp src/blocks/compound_encoding.cpp src/api/session.cpp",
     MUTANTS),
]


def kept():
    return json.loads(KEPT.read_text()) if KEPT.exists() else {}


def git(*arguments):
    return subprocess.run(["git", *arguments], cwd=ROOT, check=True, capture_output=True, text=True).stdout.strip()


def state():
    return git("rev-parse", "--short=7", "HEAD") + ("" if not git("status", "--porcelain", "--untracked-files=no", "--", ".", *OWN) else " and changes")


def keep(name, printed, measured):
    found = kept()
    found[name] = {"printed": printed, "state": measured, "date": datetime.date.today().isoformat()}
    KEPT.write_text(json.dumps({known: found[known] for known, *_ in FIGURES if known in found}, indent=1) + "\n")


def measure(names):
    for name, _, command, pattern in FIGURES:
        if name in names:
            print(f"== {command}", flush=True)
            LOGS.mkdir(parents=True, exist_ok=True)
            log = LOGS / f"{name}.log"
            measured = state()
            with log.open("w") as to:
                run = subprocess.run(command, shell=True, cwd=ROOT, stdout=to, stderr=subprocess.STDOUT, env=dict(os.environ, LC_ALL="C.UTF-8"))
            printed = re.findall(pattern, log.read_text(errors="replace"), flags=re.M)
            print("\n".join(printed))
            if run.returncode != 0 or not printed:
                sys.exit(f"{name}: failed with {run.returncode}, and is not kept: {log.relative_to(ROOT)}")
            keep(name, printed, measured)


def table():
    rows = ["| what | printed | by | state | date |", "|---|---|---|---|---|"]
    found = kept()
    for name, what, command, _ in FIGURES:
        if name in found:
            figure = found[name]
            printed = "<br>".join(line.replace("|", ",") for line in figure["printed"])
            rows.append(f"| {what} | {printed} | `{command}` | {figure['state']} | {figure['date']} |")
    return "\n".join(rows)


def page_with_table():
    text = PAGE.read_text()
    begin, end = text.index(FIRST) + len(FIRST), text.index(LAST)
    return f"{text[:begin]}\n{table()}\n{text[end:]}"


def main():
    command, names = (sys.argv[1] if len(sys.argv) > 1 else ""), sys.argv[2:]
    known = [name for name, *_ in FIGURES]
    if command == "list":
        for name, what, run, _ in FIGURES:
            print(f"{name}: {what}: {run}")
    elif command == "measure" and names and set(names) <= set(known):
        measure(names)
        PAGE.write_text(page_with_table())
    elif command == "write":
        PAGE.write_text(page_with_table())
    elif command == "check":
        if PAGE.read_text() != page_with_table():
            sys.exit("docs/reliability.md does not have the figures of docs/figures.json: tools/figures.py write")
    else:
        sys.exit(f"{__doc__}\nfigures: {', '.join(known)}")


if __name__ == "__main__":
    main()
