#!/usr/bin/env bash
# check_schema.sh QELPRO SOURCE: what `qelpro check` prints as JSON and as SARIF is as the schemas say. The indexes of the rules are
# those of their codes.
set -euo pipefail
qelpro=$1
source=$2
# The system's own Python has what packages bring; another one may stand in front of it.
python=
for each in python3 /usr/bin/python3; do
  ! "$each" -c 'import jsonschema' 2>/dev/null || python=$each
done
[[ -n $python ]] || { echo "python3-jsonschema is missing"; exit 77; }
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
cp "$source"/tests/data/awkward/*.pro "$source"/tests/data/*.pro "$folder"
printf '[Flow-1]\nFilTime = 1\nFRSet = 2\nFR-1 = 1,5 2\nRemark = \xff\n' >"$folder/a file with blanks & \"quotes\".pro"
cd "$folder"
# What has an error ends with 1.
"$qelpro" check --json "$folder"/*.pro >json.out || [[ $? == 1 ]]
"$qelpro" check --sarif ./*.pro >sarif.out || [[ $? == 1 ]]
"$qelpro" check --json proio_default.pro >empty.json.out
"$qelpro" check --sarif proio_default.pro >empty.sarif.out
"$python" - "$source" <<'PYTHON'
import json, sys
import jsonschema

source = sys.argv[1]
def schema(path):
    with open(source + "/" + path) as file:
        read = json.load(file)
    jsonschema.Draft202012Validator.check_schema(read)
    return jsonschema.Draft202012Validator(read)

def answer(path):
    with open(path, encoding="utf-8") as file:
        return json.load(file)

for path in ("json.out", "empty.json.out"):
    schema("docs/schema/check.json").validate(answer(path))
for path in ("sarif.out", "empty.sarif.out"):
    log = answer(path)
    schema("tests/tool/schema/sarif.json").validate(log)
    rules = log["runs"][0]["tool"]["driver"]["rules"]
    for result in log["runs"][0]["results"]:
        assert rules[result["ruleIndex"]]["id"] == result["ruleId"], result
        assert rules[result["ruleIndex"]]["defaultConfiguration"]["level"] == result["level"], result
assert answer("empty.json.out") == []
assert len(answer("json.out")) == len(answer("sarif.out")["runs"][0]["results"]) > 20
# A schema that takes anything would be none.
for wrong in ([{}], [{**answer("json.out")[0], "severity": "fatal"}], {}):
    try:
        schema("docs/schema/check.json").validate(wrong)
    except jsonschema.ValidationError:
        continue
    raise SystemExit("the schema takes " + json.dumps(wrong))
PYTHON
