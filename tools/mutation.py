#!/usr/bin/env python3
"""Changes one operator, constant or condition of the engine at a time, and tells which changes no test notices.

usage: mutation.py BUILD_FOLDER SOURCE_OR_FOLDER ... [--every N] [--from K] [--again REPORT] [--jobs N] [--list]

tools/mutants_without_effect.txt lists changes that nothing can see, each with its reason: they are counted by themselves.

The build folder holds a debug build with tests. Each mutant is compiled and linked beside the build, whose own files stay as
they are; it counts as killed when a test fails, crashes, or does not end.
"""
import argparse
import concurrent.futures
import json
import os
import pathlib
import re
import shlex
import subprocess
import sys
import tempfile

SWAPS = {
    " == ": " != ", " != ": " == ", " < ": " <= ", " <= ": " < ", " > ": " >= ", " >= ": " > ", " && ": " || ", " || ": " && ",
    " + ": " - ", " - ": " + ", " += ": " -= ", " -= ": " += ", " / ": " * ", " * ": " / ",
}
OPERATOR = re.compile("|".join(re.escape(swap) for swap in sorted(SWAPS, key=len, reverse=True)))
WORD = re.compile(r"\b(true|false)\b")
NUMBER = re.compile(r"(?<![\w.\"'\\])(\d+)(?![\w.'])")
STEP = re.compile(r"\+\+|--")
CONDITION = re.compile(r"\b(if|while) \(")
TIMEOUT = 90

# The tests that most often tell come first; those that take long, or wait, come last and only where they may tell. Those of objects that use
# neither of the mutated folders never tell.
SLOW = "Model.*:*PageSteps*:*BeyondTwoGiB*"
PATIENT = "Memory.*:LockedFile.*:StoreThatStops.*:KilledWriter.*"
FOREIGN = "SelfContained*:CoolantTables*:MachineBank*"
STEPS = ("page_steps", "page_layout", "file_edit")
LIBRARY = "libQELPROEngine.so"


def blanked(text):
    """The text with comments, literals and preprocessor lines blanked, so that places stay the same."""
    def blank(match):
        return re.sub(r"[^\n]", "_", match.group(0))
    return re.sub(r'//[^\n]*|/\*.*?\*/|"(?:\\.|[^"\\\n])*"|(?<!\w)\'(?:\\.|[^\'\\\n])\'|^\s*#[^\n]*|^template[^\n]*|\b(?:static_assert|using)\b[^;]*;',
                  blank, text, flags=re.S | re.M)


def end_of_parenthesis(text, begin):
    depth = 0
    for at in range(begin, len(text)):
        depth += {"(": 1, ")": -1}.get(text[at], 0)
        if depth == 0:
            return at
    raise ValueError("unbalanced")


def mutants_of(path):
    text = path.read_text()
    plain = blanked(text)
    edits = []
    for found in OPERATOR.finditer(plain):
        edits.append((found.start(), found.end(), SWAPS[found.group(0)]))
    for found in WORD.finditer(plain):
        edits.append((found.start(), found.end(), "false" if found.group(0) == "true" else "true"))
    for found in NUMBER.finditer(plain):
        edits.append((found.start(), found.end(), str(int(found.group(1)) + 1)))
    for found in STEP.finditer(plain):
        edits.append((found.start(), found.end(), "--" if found.group(0) == "++" else "++"))
    for found in CONDITION.finditer(plain):
        begin = found.end() - 1
        end = end_of_parenthesis(plain, begin)
        condition = text[begin + 1:end]
        if ";" not in plain[begin:end] and not re.match(r"\s*(const )?[\w:<>*&]+[ *&]+\w+ = ", condition):
            edits.append((begin, end + 1, "(!(" + condition + "))"))
    for begin, end, new in sorted(edits):
        line = text.count("\n", 0, begin) + 1
        yield line, text[begin:end], new, text[:begin] + new + text[end:]


class Build:
    def __init__(self, folder):
        self.folder = folder.resolve()
        self.compile = {pathlib.Path(entry["file"]): shlex.split(entry["command"])
                        for entry in json.loads((self.folder / "compile_commands.json").read_text())
                        if re.search("(engine|inside)_objects", entry["command"])}

    def link_command(self, target, real):
        commands = subprocess.run(["ninja", "-t", "commands", target], cwd=self.folder, check=True, capture_output=True, text=True).stdout
        lines = [line for line in commands.splitlines() if f" -o {real}" in line]
        command = lines[-1]
        return shlex.split(command.removeprefix(": && ").split(" && ")[0])

    def prepare(self):
        shared = sorted(path.name for path in (self.folder / "src").glob(f"{LIBRARY}.*.*.*"))[0]
        self.links = {"inner_tests": self.link_command("tests/inner_tests", "tests/inner_tests"),
                      LIBRARY: self.link_command(f"src/{LIBRARY}", f"src/{shared}")}

    def run_quietly(self, command, **more):
        return subprocess.run(command, cwd=self.folder, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, timeout=TIMEOUT, **more)

    def verdict(self, source, text):
        """killed, survived, or invalid when the change does not compile."""
        with tempfile.TemporaryDirectory() as scratch:
            os.chmod(scratch, 0o755)  # tests go there as another user, too
            mutant = pathlib.Path(scratch) / source.name
            mutant.write_text(text)
            obj = f"{scratch}/mutant.o"
            command = [word for word in self.compile[source] if word not in ("-g", "-Werror") and not word.endswith("ccache")]
            output = command[command.index("-o") + 1]
            command[command.index("-o") + 1] = obj
            for option in ("-MF", "-MT"):
                if option in command:
                    del command[command.index(option):command.index(option) + 2]
            command = [str(mutant) if word == str(source) else word for word in command if word != "-MD"]
            if self.run_quietly(command + ["-w"]).returncode != 0:
                return "invalid"

            made = {}

            def linked(name):
                if name not in made:
                    words = [obj if word == output else word for word in self.links[name] if word != "-g"]
                    words[words.index("-o") + 1] = made[name] = f"{scratch}/{name}"
                    subprocess.run(words + ["-Wl,-S"], cwd=self.folder, check=True, stdout=subprocess.DEVNULL)
                return made[name]

            def fails(program, chosen):
                """Whether a program's chosen tests fail, which has the mutant in itself or in the library that it loads."""
                environment = dict(os.environ, TMPDIR=scratch)
                if program in self.links:
                    path = linked(program)
                else:
                    path = str(self.folder / "tests" / program)
                    environment["LD_PRELOAD"] = linked(LIBRARY)
                try:
                    return self.run_quietly([path, "--gtest_fail_fast", "--gtest_brief=1", f"--gtest_filter={chosen}"], env=environment).returncode != 0
                except subprocess.TimeoutExpired:
                    return True

            stages = [("inner_tests", f"-{SLOW}"), ("api_tests", f"-{FOREIGN}"), ("inner_tests", "Model.*"), ("fault_tests", f"-{PATIENT}")]
            if "process" in source.parts:
                stages = [("api_tests", "DataLoader*:*Adapter*:*Process*:*ValueReader*"), ("api_tests", f"-{FOREIGN}"), ("fault_tests", f"-{PATIENT.removeprefix('Memory.*:')}")]
            elif source.stem in STEPS:
                stages.insert(1, ("inner_tests", "*PageSteps*"))
            return "killed" if any(fails(*stage) for stage in stages) else "survived"


def is_listed(report, source, line, old, new):
    """Whether an earlier report has this mutant among the survivors, within a few lines of where it stands now."""
    wanted = f": survived: {old.strip()} -> {new.strip()}"
    for entry in report:
        place, _, rest = entry.partition(": survived: ")
        if f": survived: {rest}" == wanted and place.split(":")[0] == source.name and abs(int(place.split(":")[1]) - line) <= 4:
            return True
    return False


def without_effect():
    """The changes that nothing can see: file, line as it stands, change."""
    listed = set()
    for entry in (pathlib.Path(__file__).parent / "mutants_without_effect.txt").read_text().splitlines():
        if entry and not entry.startswith("#"):
            name, line, change, reason = (part.strip() for part in entry.split(" @ "))
            assert reason, entry
            listed.add((name, line, change))
    return listed


def as_listed(source, line, old, new):
    stripped = source.read_text().splitlines()[line - 1].strip()
    return source.name, stripped, " ".join(f"{old.strip()} -> {new.strip()}".split())


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("build", type=pathlib.Path)
    parser.add_argument("sources", type=pathlib.Path, nargs="+")
    parser.add_argument("--every", type=int, default=1, help="take every N-th mutant alone")
    parser.add_argument("--from", type=int, default=0, dest="first", help="of those every N-th, begin with the K-th, from 0 on")
    parser.add_argument("--again", type=pathlib.Path, help="take those alone that an earlier report lists as survivors")
    parser.add_argument("--jobs", type=int, default=os.cpu_count())
    parser.add_argument("--list", action="store_true", help="print the mutants, and run none")
    given = parser.parse_args()

    sources = [path.resolve() for given_path in given.sources
               for path in (sorted(given_path.glob("*.cpp")) if given_path.is_dir() else [given_path])]
    mutants = [(source, *mutant) for source in sources for mutant in mutants_of(source)][given.first::given.every]
    if given.again:
        report = [entry for entry in given.again.read_text().splitlines() if ": survived: " in entry]
        mutants = [mutant for mutant in mutants if is_listed(report, *mutant[:4])]
    if given.list:
        for source, line, old, new, _ in mutants:
            print(f"{source.name}:{line}: {old.strip()} -> {new.strip()}")
        return 0

    build = Build(given.build)
    build.prepare()
    counts = {"killed": 0, "survived": 0, "invalid": 0, "listed": 0}
    listed = without_effect()
    with concurrent.futures.ThreadPoolExecutor(given.jobs) as pool:
        for source, verdict in zip(sources, pool.map(lambda source: build.verdict(source, source.read_text()), sources)):
            if verdict != "survived":
                sys.exit(f"{source.name} fails its tests as it is")
        verdicts = pool.map(lambda mutant: build.verdict(mutant[0], mutant[4]), mutants)
        for (source, line, old, new, _), verdict in zip(mutants, verdicts):
            if verdict == "survived" and as_listed(source, line, old, new) in listed:
                verdict = "listed"
            counts[verdict] += 1
            if verdict == "survived":
                print(f"{source.name}:{line}: survived: {old.strip()} -> {new.strip()}", flush=True)
    valid = counts["killed"] + counts["survived"]
    print(f"{counts['killed']} of {valid} mutants killed ({100 * counts['killed'] / max(valid, 1):.1f} %); "
          f"{counts['listed']} more have no effect, {counts['invalid']} do not compile")
    return 0


if __name__ == "__main__":
    sys.exit(main())
