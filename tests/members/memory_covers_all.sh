#!/usr/bin/env bash
# usage: memory_covers_all.sh FAULT_TESTS INCLUDE_FOLDER LIBRARY ...
# Every public member that the libraries export, each overload by itself, is a row of the table of the tests without memory.
set -euo pipefail
fault_tests=$1
include=$2
shift 2
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT

# What the headers declare behind "private:" cannot be called.
cat "$include"/*/*.h | sed -n '/^ private:/,/^};/p' | grep -oE '[A-Za-z0-9_]+\(' | tr -d '(' | sort -u >"$folder/private"
# A name, and how many members have it; constructors and destructors are exported more than once.
for library in "$@"; do
  nm -DC --defined-only "$library" | cut -d' ' -f3- | sed -E 's/@@.*//'
done | grep -vE '^(vtable|typeinfo|VTT)|\[abi:' | sort -u |
  # The result of a template and what follows the last name are no part of the name.
  sed -E -e 's/\(.*//' -e 's/^(bool|void|int|char\*|double) //' | grep -vE '<.*>$' | sort | uniq -c | sed -E 's/^ *//' |
  while read -r count name; do
    grep -qx "${name##*::}" "$folder/private" || echo "$count $name"
  done >"$folder/exported"
QELPRO_LIST_MEMBERS=1 "$fault_tests" --gtest_filter=Memory.HasRowsForMembersOfEveryClass | sed -n 's/^member //p' | sort | uniq -c | sed -E 's/^ *//' >"$folder/rows"
[[ $(wc -l <"$folder/exported") -gt 1000 ]] || { echo "the libraries were not understood" && exit 1; }

status=0 members=0 rows=0
while read -r count name; do
  in_table=$(awk -v name="$name" '{ line = $0; sub(/^[0-9]+ /, "", line) } line == name { print $1 }' "$folder/rows")
  ((members += count, rows += ${in_table:-0})) || true
  if ((${in_table:-0} < count)); then
    echo "$name: $count exported, ${in_table:-0} in the table"
    status=1
  fi
done <"$folder/exported"
echo "$members exported members, $rows ways to call them"
exit $status
