#!/usr/bin/env bash
# usage: touched_keys.sh SOURCE_FOLDER
# Lists the keys that the older object's accessors touch, told from their sources and not from the catalogue: section, a tab, key,
# one a line.
set -euo pipefail
src=$1/src

# The name or pattern of a section of the blocks.
section_of() {
  sed -nE 's|^inline constexpr char kSection\[\] = "(.*)";$|\1|p' "$src/blocks/$1.h"
}

# The patterns of the older object's numbered names, by the names of their kinds: they are in the comments of its two lists.
kinds() {
  sed -nE 's|^ *key_of\(.*"(.*)"\), *// ([A-Z_]+)$|\2 \1|p' "$src/proio/catalogue.cpp"
  sed -nE 's|^ *qel::(.*)::kSection, *// ([A-Z_]+)$|\2 \1|p' "$src/proio/catalogue.cpp" | while read -r kind block; do
    echo "$kind $(section_of "$block")"
  done
}

# The older object's rows, one a line, with the names of sections and kinds in the place of what stands for them.
older() {
  local section= statement
  declare -A pattern
  while read -r kind name; do
    pattern[$kind]=$name
  done < <(kinds)
  while read -r statement; do
    if [[ $statement =~ 'namespace rows = qel::'([a-z_]+) ]]; then
      section=$(section_of "${BASH_REMATCH[1]}")
    elif [[ $statement =~ 'kSection = Manipulator::'(BLOCK_[A-Z_]+) ]]; then
      section=${pattern[${BASH_REMATCH[1]}]}
    elif [[ $statement =~ 'constexpr Row '.*Manipulator::(KEY_[A-Z_]+) ]]; then
      printf '%s\t%s\n' "$section" "${pattern[${BASH_REMATCH[1]}]}"
    elif [[ $statement =~ 'constexpr Row '[^\"]*\"([^\"]*)\" ]]; then
      printf '%s\t%s\n' "$section" "${BASH_REMATCH[1]}"
    fi
  done < <(grep -v '^ *//' "$src/proio/rows.h" | tr '\n' ' ' | tr ';' '\n')
  # Lines that have a position, and no key.
  grep -q 'kPositionalSection;' "$src/proio/rows.h"
  printf '[SURFACE ELEMENT BOUNDARY CONDITION NAME]\t%s\n' 'header line' 'setting line'
}

older | sed 's/%ld/%d/' | sort -u
