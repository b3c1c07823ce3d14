#!/bin/sh
# Every section member of the public headers has its place in the catalogue, and the catalogue names no other. The catalogue is
# read as docs/format.md, which another test keeps up to date.
set -eu
here=$(dirname "$0")
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
for object in Reader Writer; do
  "$here/list_members.sh" "$1/include/QELPROEngine/CQELPRO${object}_Manipulator.h"
done | sed -E 's/MEMBER\(([^,)]*).*/\1/' | sort -u >"$folder/headers"
grep -oE '`[A-Za-z0-9_]+_(Read|Write|Wrote)[A-Za-z0-9_]*`' "$1/docs/format.md" | tr -d '`' | sort -u >"$folder/catalogue"
diff "$folder/headers" "$folder/catalogue"
echo "$(wc -l <"$folder/headers") names of members in both"
