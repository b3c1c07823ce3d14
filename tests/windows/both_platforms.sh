#!/usr/bin/env bash
# One file, read and written in turn by the builds for two platforms. usage: both_platforms.sh NATIVE_TOOL WINDOWS_TOOL DATA_FOLDER
set -euo pipefail
native=$1
windows=$2
data=$3
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT

here() { "$native" "$@"; }
there() { wine "$windows" "$@" | tr -d '\r'; }

same() {
  if ! diff "$1" "$2" >&2; then
    echo "$3" >&2
    exit 1
  fi
}

# What one platform shows of a file, the other shows.
shown_alike() {
  here show "$1" >"$scratch/here"
  there show "$1" >"$scratch/there"
  [[ -s $scratch/here ]] || { echo "nothing is shown of $1" >&2; exit 1; }
  same "$scratch/here" "$scratch/there" "the two builds do not show the same of $1"
  here process "$1" >"$scratch/here" || true
  there process "$1" >"$scratch/there" || true
  same "$scratch/here" "$scratch/there" "the two builds do not make the same process of $1"
}

# The same stores, by one build each into a copy of its own, and in turns: the bytes are the same.
stores='Flow-1 FillTime 2.125
Flow-1 MeltTemp 1e-7
FlowCTL VPSwitchCtrl 0
Added Key text
Flow-1 FillTime 7'
written_alike() {
  cp "$1" "$scratch/a.pro"
  cp "$1" "$scratch/b.pro"
  cp "$1" "$scratch/c.pro"
  local turn=here other=there section key value
  while read -r section key value; do
    here set "$scratch/a.pro" "$section" "$key" "$value"
    there set "$scratch/b.pro" "$section" "$key" "$value" </dev/null
    $turn set "$scratch/c.pro" "$section" "$key" "$value" </dev/null
    [[ $($other get "$scratch/c.pro" "$section" "$key" </dev/null) == "$value" ]] || { echo "$key of $section is not read back" >&2; exit 1; }
    read -r turn other <<<"$other $turn"
  done <<<"$stores"
  cmp "$scratch/a.pro" "$scratch/b.pro"
  cmp "$scratch/a.pro" "$scratch/c.pro"
}

here new "$scratch/unix.pro"
there new "$scratch/windows.pro"
sed -i 's/^Date .*/Date/' "$scratch/unix.pro"
sed -i 's/^Date .*\r$/Date\r/' "$scratch/windows.pro"
sed 's/$/\r/' "$scratch/unix.pro" | cmp - "$scratch/windows.pro"

files=0
for file in "$scratch/unix.pro" "$scratch/windows.pro" "$data"/*.pro; do
  shown_alike "$file"
  written_alike "$file"
  sed 's/\r$//; s/$/\r/' "$file" >"$scratch/returns.pro"
  shown_alike "$scratch/returns.pro"
  written_alike "$scratch/returns.pro"
  files=$((files + 1))
done
echo "$files files are the same to both builds"
