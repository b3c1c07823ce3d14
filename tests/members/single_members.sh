#!/bin/sh
# Of the members that list_members.sh listed, those that have no overload.
set -eu
awk -F'[(,)]' '{ ++count[$2]; line[NR] = $0; name[NR] = $2 } END { for (i = 1; i <= NR; ++i) if (count[name[i]] == 1) print line[i] }' "$1"
