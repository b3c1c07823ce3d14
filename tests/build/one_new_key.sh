#!/usr/bin/env bash
# In a copy of the tree one key is added by one row and one command: its members, their descriptions and the reference are there,
# and a program writes and reads it. usage: one_new_key.sh TREE COMPILER FOLDER
set -euo pipefail
tree=$1
compiler=$2
folder=$3

fail() { echo "$1" >&2; exit 1; }

copy=$folder/copy
mkdir -p "$copy"
# What was built of an earlier copy stays, so that only what differs is built again.
find "$copy" -mindepth 1 -maxdepth 1 ! -name build -exec rm -rf {} +
tar -C "$tree" --exclude=./build --exclude=./.git -c . | tar -C "$copy" -x
rows=$copy/src/blocks/flow_x.h
row='    Key<RealPair>{"Probe-%d", {"FlowX_ReadProbe"}, {"FlowX_WriteProbe"}, "a probe: depth, and flow rate, in cc/sec"},'
sed -i "0,/^inline constexpr KeyInfo kKeys\[\] = {$/s||&\n$row|" "$rows"
[[ $(diff "$tree/src/blocks/flow_x.h" "$rows" | grep -c '^[<>]') == 1 ]] || fail "it takes more than a row"

(cd "$copy" && ./dev generate) >"$folder/generate.log" 2>&1 || fail "$(tail "$folder/generate.log")"
changed=$({ diff -rq --exclude=build --exclude=.git "$tree" "$copy" || true; } | grep '^Files' | sed -E 's/.* and (.*) differ/\1/' | sed "s|$copy/||" | sort | tr '\n' ' ')
[[ $changed == "docs/format.md include/QELPROEngine/CQELPROReader_Manipulator.h include/QELPROEngine/CQELPROWriter_Manipulator.h src/api/reader_members.cpp src/api/writer_members.cpp src/blocks/flow_x.h " ]] ||
  fail "other files were made: $changed"
grep -q 'a probe: depth, and flow rate' "$copy/docs/format.md" || fail "the reference does not tell of the key"
grep -q '/// \[Flow-%ld\] "Probe-%d": a probe: depth' "$copy/include/QELPROEngine/CQELPROReader_Manipulator.h" || fail "no description"

cmake -G Ninja -S "$copy" -B "$copy/build/probe" -DQELPRO_TOOL=OFF -DCMAKE_UNITY_BUILD=ON -DCMAKE_UNITY_BUILD_BATCH_SIZE=0 \
  -DCMAKE_CXX_FLAGS=-O0 -DCMAKE_CXX_COMPILER="$compiler" >/dev/null
cmake --build "$copy/build/probe" --target QELPROEngine | tail -n 20
cat >"$folder/probe.cpp" <<'EOF'
#include <QELPROEngine/QELPROEngine.h>

int main(int, char** arguments) {
  CQELPROWriter_Manipulator writer;
  CQELPROReader_Manipulator reader;
  double depth = 0;
  double rate = 0;
  return writer.SetFilePath(arguments[1]) && writer.FlowX_WriteProbe(1.5, 20, 3, 2) && reader.SetFilePath(arguments[1]) &&
                 reader.FlowX_ReadProbe(depth, rate, 3, 2) && depth == 1.5 && rate == 20
             ? 0
             : 1;
}
EOF
"$compiler" -std=c++17 -I"$copy/include" "$folder/probe.cpp" -o "$folder/probe" -L"$copy/build/probe/src" -lQELPROEngine -lQELG \
  -Wl,-rpath,"$copy/build/probe/src"
rm -f "$folder/probe.pro"
"$folder/probe" "$folder/probe.pro" || fail "the key is not written or not read back"
[[ $(<"$folder/probe.pro") == $'\n[Flow-2]\nProbe-3              = 1.5\t20' ]] || fail "$(<"$folder/probe.pro")"
