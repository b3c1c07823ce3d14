#!/usr/bin/env bash
# usage: docstrings.sh FORMAT_REFERENCE SOURCE_FOLDER
# Hover and reference pages show the comment above a member alone. So every public member has one; that of a member that serves a
# key begins with the section, the key and what the catalogue says of it, and that of the adapter's names section and key.
set -euo pipefail
here=$(dirname "${BASH_SOURCE[0]}")
include=$2/include/QELPROEngine
rows=$(mktemp)
trap 'rm -f "$rows"' EXIT
"$1" --rows | sed 's/%ld/%d/' >"$rows"

status=0
# check HEADER COLUMN: the column of the rows that names members of the header's object, 0 for none.
check() {
  awk -f "$here/list_docstrings.awk" "$include/$1" | awk -F'\t' -v column="$2" -v header="$1" '
    NR == FNR {
      count = split(column == 0 ? "" : $column, names, " ")
      for (i = 1; i <= count; ++i) rows[names[i]] = rows[names[i]] SUBSEP FNR
      section[FNR] = $1
      key[FNR] = index($2, " ") ? $2 : "\"" $2 "\""
      meaning[FNR] = $9
      next
    }
    {
      ++members
      if ($3 == "") { print header ": " $1 "(" $2 ") has no docstring"; failed = 1; next }
      count = split(rows[$1], numbers, SUBSEP)
      if (count == 0) next
      ++of_keys
      docstring = $3
      gsub("%ld", "%d", docstring)
      found = column == 7
      for (i = 2; i <= count; ++i) {
        row = numbers[i]
        if (column == 7) {
          found = found && index(docstring, section[row]) && index(docstring, key[row])
        } else if ($1 == "WriteUnitBlock") {
          found = index(docstring, section[row]) == 1 && index(docstring, key[row])
        } else {
          found = found || index(docstring, section[row] " " key[row] ": " meaning[row] ".") == 1
        }
      }
      if (!found) { print header ": " $1 "(" $2 "): the docstring does not say what the catalogue says: " docstring; failed = 1 }
    }
    END { print header ": " members " docstrings, " of_keys + 0 " of members that serve a key"; exit failed }' \
    "$rows" - || status=1
}

check CQELPROReader_Manipulator.h 4
check CQELPROWriter_Manipulator.h 5
check CPROIO_Manipulator.h 6
check CQEL_ProcessAdapter.h 7
for header in CQELMachineIdentification CQELPCSInterpolator CQELProcessData_Manipulator CQELProcessValueReader; do
  check "$header.h" 0
done
exit $status
