"""What the tool prints as JSON is what docs/schema says of it.

usage: schemas.py TOOL TREE
"""

import json
import pathlib
import subprocess
import sys

try:
    import jsonschema
except ImportError:
    print("python3-jsonschema is missing")
    sys.exit(77)

TOOL, TREE = sys.argv[1], pathlib.Path(sys.argv[2])
DATA = TREE / "tests" / "data"

# A schema, and a command line whose answer it describes. FILE is each process file of the test data
# in turn, OTHER another one, and any other word in capitals of FILES that file.
COMMANDS = """
show.json      show FILE --json
process.json   process FILE --json
diff.json      diff FILE OTHER --json
diff.json      diff OTHER FILE --json
diff.json      diff FILE OTHER --json --points
get.json       get FILE * --json
list.json      list FILE --json
list.json      list FILE --json --sections
export.json    export FILE
export.json    export FILE --exact
check.json     check FILE --json
manifest.json  sweep FILE --set Cool.CoolTime=10:12:1 -o OUT --dry-run --json
explain.json   explain --json
explain.json   explain --json Flow-1
explain.json   explain --json Flow-1.FR
explain.json   explain --json MoldThermalBoundaryType.Flow
machines.json  machines BANK --json
machines.json  machines BANK Tessaro --json
coolant.json   coolant COOLANTS 6 10 --json
coolant.json   coolant COOLANTS --table 6 --from 1 --to 2 --step 1 --json
"""

FILES = {"BANK": DATA / "machines.bank", "COOLANTS": DATA / "coolants.pcs"}
PROCESS_FILES = sorted(DATA.rglob("*.pro"))
OTHER = DATA / "injection_two_inlets.pro"

# What no command prints: a schema that takes one of these says nothing.
WRONG = [5, [5], [{}], {"x": {"y": {}}}, [{"section": "x", "unknown": 1}]]


class Problems:
    def __init__(self):
        self.count = 0

    def add(self, where, what):
        self.count += 1
        print(f"{where}: {what}")


def schemas(problems):
    """The validators by name, each of which has been looked at itself."""
    validators = {}
    for path in sorted((TREE / "docs" / "schema").glob("*.json")):
        schema = json.loads(path.read_text(encoding="utf-8"))
        if schema.get("$schema") != jsonschema.Draft202012Validator.META_SCHEMA["$id"]:
            problems.add(path.name, "another dialect of schemas")
            continue
        jsonschema.Draft202012Validator.check_schema(schema)
        validators[path.name] = jsonschema.Draft202012Validator(schema)
        for wrong in WRONG:
            if validators[path.name].is_valid(wrong):
                problems.add(path.name, f"takes {wrong}")
    return validators


def command_lines(words):
    """Those that a line of the table stands for."""
    words = [str(FILES.get(word, word)) for word in words]
    for file in PROCESS_FILES if "FILE" in words else [None]:
        yield [{"FILE": str(file), "OTHER": str(OTHER)}.get(word, word) for word in words]


def check(validator, words, problems):
    """Whether the command answered: a file may have nothing that it could answer with."""
    run = subprocess.run([TOOL, *words], stdout=subprocess.PIPE, stderr=subprocess.PIPE, check=False)
    if run.returncode not in (0, 1, 3):
        problems.add(" ".join(words), f"exit status {run.returncode}: {run.stderr!r}")
    if not run.stdout:
        return False
    try:
        answer = json.loads(run.stdout.decode("utf-8"))
    except ValueError as error:
        problems.add(" ".join(words), f"no JSON: {error}")
        return True
    for error in validator.iter_errors(answer):
        problems.add(" ".join(words), f"{error.json_path}: {error.message[:300]}")
    return True


def main():
    problems = Problems()
    validators = schemas(problems)
    used = set()
    for line in COMMANDS.split("\n"):
        if not line:
            continue
        name, *words = line.split()
        if name not in validators:
            problems.add(line, "docs/schema has no such file")
            continue
        used.add(name)
        if not any([check(validators[name], each, problems) for each in command_lines(words)]):
            problems.add(line, "was never answered")
    for name in sorted(set(validators) - used):
        problems.add(name, "no command is set beside it")
    sys.exit(1 if problems.count else 0)


main()
