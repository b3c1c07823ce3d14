#!/usr/bin/env bash
# usage: stand_in_the_catalogue.sh FORMAT_REFERENCE SOURCE_FOLDER
# Every member of the public headers that serves a key has its place in the catalogue, and the catalogue names no other.
set -euo pipefail
here=$(dirname "${BASH_SOURCE[0]}")
include=$2/include/QELPROEngine
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
"$1" --rows >"$folder/rows"

section_members() { "$here/list_members.sh" "$include/$1" | sed -E 's/MEMBER\(([^,)]*).*/\1/'; }
# What sets or gets, but for the members that choose the file or have nothing to do with a key.
accessors() { awk -f "$here/list_docstrings.awk" "$include/$1" | cut -f1 | grep -E '^(Get|Set)' | grep -vxE "$2"; }

status=0
compare() {
  local object=$1 column=$2 fewest=${3:-15}
  sort -u >"$folder/headers"
  [[ $(wc -l <"$folder/headers") -ge $fewest ]] || { echo "the header of $object was not understood" && exit 1; }
  if diff "$folder/headers" <(cut -f"$column" "$folder/rows" | tr ' ' '\n' | grep -vxE '|WriteUnitBlock' | sort -u); then
    echo "$object: $(wc -l <"$folder/headers") names of members in both"
  else
    echo "the header (<) of $object and the catalogue do not agree"
    status=1
  fi
}

section_members CQELPROReader_Manipulator.h | compare reader 4
section_members CQELPROWriter_Manipulator.h | compare writer 5
accessors CPROIO_Manipulator.h 'SetFilePath|GetFilePath|SetDefault' | compare older 6
accessors CQEL_ProcessAdapter.h 'SetProcessPath|GetMaterialDefaultValue' | compare adapter 7
accessors CQELProcessValueReader.h '' | compare "value reader" 10 1
exit $status
