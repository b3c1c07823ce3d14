#!/usr/bin/env bash
# usage: touched_keys.sh SOURCE_FOLDER
# Lists the keys that the older object's accessors touch, told from their sources and not from the catalogue: section, a tab, key,
# one a line.
set -euo pipefail
src=$1/src

# The patterns of the older object's numbered names, by the names of their kinds: they are in the comments of its two lists.
kinds() {
  sed -nE 's|^ *"(.*)", *// ([A-Z_]+)$|\2 \1|p' "$src/proio/catalogue.cpp"
}

older() {
  awk -F'"' '
    NR == FNR { split($0, kind, " "); pattern[kind[1]] = kind[2]; next }
    /constexpr char kSection\[\] = / { section = $2 }
    /constexpr auto kSection = / { match($0, /BLOCK_[A-Z_]+/); section = pattern[substr($0, RSTART, RLENGTH)] }
    /constexpr Entry / {
      key = $2
      if (match($0, /KEY_[A-Z_]+/)) key = pattern[substr($0, RSTART, RLENGTH)]
      print section "\t" key
    }' <(kinds) "$src/proio/entries.h"
  # Lines that have a position, and no key.
  grep -q '"\[SURFACE"' "$src/proio/entries.h"
  printf '[SURFACE ELEMENT BOUNDARY CONDITION NAME]\t%s\n' 'header line' 'setting line'
}

older | sed 's/%ld/%d/' | sort -u
