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
  sed -E -e 's/\(.*//' -e 's/^(bool|void|int|char\*|double) //' | grep -vE '<.*>$' >"$folder/exported"
QELPRO_LIST_MEMBERS=1 "$fault_tests" --gtest_filter=Memory.HasRowsForMembersOfEveryClass | sed -n 's/^member //p' >"$folder/rows"
[[ $(wc -l <"$folder/exported") -gt 1000 ]] || { echo "the libraries were not understood" && exit 1; }

awk '
  FILENAME ~ /private$/ { is_private[$0]; next }
  FILENAME ~ /rows$/ { ++rows[$0]; next }
  { last = $0; sub(/.*::/, "", last); if (!(last in is_private)) ++exported[$0] }
  END {
    for (name in exported) {
      members += exported[name]
      ways += rows[name]
      if (rows[name] < exported[name]) {
        print name ": " exported[name] " exported, " rows[name] + 0 " in the table"
        failed = 1
      }
    }
    print members " exported members, " ways " ways to call them"
    exit failed
  }' "$folder/private" "$folder/rows" "$folder/exported"
