#!/usr/bin/env bash
# usage: touched_keys.sh older|loader SOURCE_FOLDER
# Lists the keys that the older object's accessors or the loader touch, told from their sources and not from the catalogue: section,
# a tab, key, one a line.
set -euo pipefail
what=$1
src=$2/src

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
    elif [[ $statement =~ 'constexpr Entry '.*Manipulator::(KEY_[A-Z_]+) ]]; then
      printf '%s\t%s\n' "$section" "${pattern[${BASH_REMATCH[1]}]}"
    elif [[ $statement =~ 'constexpr Entry '[^\"]*\"([^\"]*)\" ]]; then
      printf '%s\t%s\n' "$section" "${BASH_REMATCH[1]}"
    fi
  done < <(grep -v '^ *//' "$src/proio/entries.h" | tr '\n' ' ' | tr ';' '\n')
  # Lines that have a position, and no key.
  grep -q 'kPositionalSection;' "$src/proio/entries.h"
  printf '[SURFACE ELEMENT BOUNDARY CONDITION NAME]\t%s\n' 'header line' 'setting line'
}

# The keys of the tables in items.h, by the name of the table. A table names rows of the blocks, which spell the key.
table() {
  sed -n "/ $1\\[\\] = {/,/^};/p" "$src/process/items.h" | grep -oE '[a-z_]+::k[A-Za-z0-9_]+' | while IFS=: read -r block _ row; do
    tr '\n' ' ' <"$src/blocks/$block.h" | grep -oE " $row\{ *\"[^\"]+\"" | cut -d'"' -f2
  done
}

# What data_loader.cpp asks for in one of its functions, beside the tables: texts that are no section. The prefix of a
# numbered key ends in "-" there.
asked_by() {
  sed -n "/::$1(/,/^}/p" "$src/process/data_loader.cpp" | grep -oE '"[^"]*"' | tr -d '"' | grep -vE '^\[' | sed -E 's/-$/-%d/'
}

in_section() {
  local section=$1
  shift
  for key in "$@"; do
    printf '%s\t%s\n' "$section" "$key"
  done
}

loader() {
  in_section '[CaeHeader]' $(asked_by LoadCAEHeader) $(table kCaeHeader)
  in_section '[Summary]' $(table kSummary)
  in_section '[FlowCTL]' $(table kFlowCTL)
  in_section '[MoldThermalBoundaryType]' $(table kMoldThermalBoundaryType)
  in_section '[Machine]' $(table kMachine)
  in_section '[RamPosition]' $(table kRamPosition) $(asked_by LoadRamposition)
  in_section '[FlowCTLInfo]' $(asked_by DetermineInletCount) $(asked_by LoadFlowCTLInfo | tr -d '\n' | sed 's/%d\]$/%d]/')
  local section
  for section in '[Flow-%d]' '[Flow-%d-Skin]' '[Flow-EM%d]'; do
    in_section "$section" $(table kFlow) $(asked_by LoadFlow)
  done
  for section in '[Pack-%d]' '[Pack-%d-Skin]' '[Pack-EM%d]'; do
    in_section "$section" $(table kPack) $(asked_by LoadPack)
  done
  in_section '[Cure-%d]' $(table kCure) $(asked_by LoadCure)
  # The four spellings beside the numbered sections of the other types.
  for section in Flow-1-Skin Pack-1-Skin Flow-EM1 Pack-EM1; do
    grep -q "\"\[$section\]\"" "$src/process/data_loader.cpp"
  done
}

"$what" | sed 's/%ld/%d/' | sort -u
