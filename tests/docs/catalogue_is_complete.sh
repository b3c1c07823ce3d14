#!/usr/bin/env bash
# usage: catalogue_is_complete.sh FORMAT_REFERENCE SOURCE_FOLDER
# The catalogue holds what the older object and the loader touch, exactly, and no key that nothing touches. loader_keys.txt says by
# itself which keys the loader takes, and which function of the simulator's process each goes to.
set -euo pipefail
here=$(dirname "${BASH_SOURCE[0]}")
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
"$1" --rows | sed 's/%ld/%d/' >"$folder/rows"

status=0
# WHO EXPECTED: the rows on the standard input are those that are expected of it.
compare() {
  [[ $(wc -l <"$2") -gt 100 ]] || { echo "what is expected of the $1 was not understood" && exit 1; }
  if diff <(sort -u "$2") <(sort -u); then
    echo "$1: $(wc -l <"$2") keys in both"
  else
    echo "what is expected (<) of the $1 and the catalogue do not agree"
    status=1
  fi
}

"$here/touched_keys.sh" "$2" >"$folder/older"
compare older "$folder/older" < <(awk -F'\t' '$6 != "" { print $1 "\t" $2 }' "$folder/rows")
compare loader "$here/loader_keys.txt" < <(awk -F'\t' '$8 != "" { print $1 "\t" $2 "\t" $8 }' "$folder/rows")

if awk -F'\t' '$4 $5 $6 $7 $8 == "" { print $1, $2; found = 1 } END { exit !found }' "$folder/rows"; then
  echo "nothing touches these"
  status=1
fi
exit $status
