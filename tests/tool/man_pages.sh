#!/usr/bin/env bash
# Every command has a manual page in which groff finds no fault, and which says what the command does. usage: man_pages.sh TOOL
set -euo pipefail
tool=$1
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
fail() { echo "$1" >&2; exit 1; }

# page NAME [COMMAND]: the page as text, in $scratch/NAME
page() {
  "$tool" man "${@:2}" >"$scratch/$1.1"
  groff -man -ww -z "$scratch/$1.1" 2>"$scratch/faults"
  [[ ! -s $scratch/faults ]] || fail "$1: $(cat "$scratch/faults")"
  groff -man -Tutf8 -P-cbou -rLL=1000n "$scratch/$1.1" >"$scratch/$1" 2>/dev/null
  for heading in NAME SYNOPSIS DESCRIPTION OPTIONS 'EXIT STATUS' 'SEE ALSO'; do
    grep -qx "$heading" "$scratch/$1" || fail "$1: no section $heading"
  done
}
has() { tr -s ' \n' ' ' <"$scratch/$1" | grep -qF -- "$2" || fail "$1: not in the page: $2"; }

page qelpro
count=0
while read -r command; do
  page "qelpro-$command" "$command"
  has qelpro "qelpro-$command(1)"
  # What the page has and what the command itself says, word for word as it would be copied.
  "$tool" "$command" --help >"$scratch/help"
  example=$(sed -n 's/^Example: //p' "$scratch/help")
  [[ -n $example ]] || fail "$command: --help has no example"
  while read -r line; do
    has "qelpro-$command" "$line"
  done <<<"$example"
  while read -r option; do
    has "qelpro-$command" "$option"
  done < <("$tool" complete -- "$command" --)
  count=$((count + 1))
done < <("$tool" complete -- '')
# Those are the commands that the help lists.
listed=$("$tool" --help | sed -n '/^Subcommands:/,/^$/p' | grep -cE '^  [a-z]')
[[ $count == "$listed" ]] || fail "$count commands are completed, and --help lists $listed"
# Hyphens and quotes are those of the keyboard, which a shell takes.
grep -qF -- "--set 'Pack-*.PackTime=4,6,8'" "$scratch/qelpro-sweep" || fail "the example of sweep cannot be copied"
if "$tool" man nonsense >/dev/null 2>&1; then
  fail "a page of no command"
fi
