#!/usr/bin/env bash
# usage: catalogue_is_complete.sh FORMAT_REFERENCE SOURCE_FOLDER
# The catalogue holds what the older object and the loader touch, exactly, and no key that nothing touches.
set -euo pipefail
here=$(dirname "${BASH_SOURCE[0]}")
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
"$1" --rows | sed 's/%ld/%d/' >"$folder/rows"

# A column of the rows that is not empty: who touches the key.
touched_by() { awk -F'\t' -v column="$1" '$column != "" { print $1 "\t" $2 }' "$folder/rows" | sort -u; }

status=0
for who in older:6 loader:8; do
  "$here/touched_keys.sh" "${who%:*}" "$2" >"$folder/source"
  [[ $(wc -l <"$folder/source") -gt 100 ]] || { echo "the sources of the ${who%:*} were not understood" && exit 1; }
  if ! diff "$folder/source" <(touched_by "${who#*:}"); then
    echo "the catalogue and the sources (<) of the ${who%:*} do not agree"
    status=1
  else
    echo "${who%:*}: $(wc -l <"$folder/source") keys in both"
  fi
done
if awk -F'\t' '$4 $5 $6 $7 $8 == "" { print $1, $2; found = 1 } END { exit !found }' "$folder/rows"; then
  echo "nothing touches these"
  status=1
fi
exit $status
