#!/usr/bin/env bash
# The target "uninstall" takes away what was installed last, and nothing else. usage: uninstall.sh BUILD_FOLDER
set -euo pipefail
build=$1
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
prefix=$scratch/prefix
fail() { echo "$1" >&2; exit 1; }

mkdir -p "$prefix/share/other" "$prefix/include/QELPROEngine"
touch "$prefix/share/other/file" "$prefix/include/QELPROEngine/own.h"
cmake --install "$build" --prefix "$prefix" >/dev/null
[[ -f $prefix/include/QELG/QELG.h ]] || fail "nothing is installed in $prefix"
[[ -f $prefix/share/man/man1/qelpro.1 ]] || fail "no manual page is installed in $prefix"
cmake --build "$build" --target uninstall >/dev/null
left=$(cd "$prefix" && find . ! -type d | sort | xargs)
[[ $left == './include/QELPROEngine/own.h ./share/other/file' ]] || fail "left: $left"
[[ ! -e $prefix/include/QELG ]] || fail "the empty folder of a package is left"
# A second time there is nothing to do, which is no mistake.
cmake --build "$build" --target uninstall >/dev/null
# Without a list of what was installed nothing is guessed.
if cmake -DMANIFEST="$scratch/none" -P "$(dirname "${BASH_SOURCE[0]}")/../../cmake/uninstall.cmake" >"$scratch/out" 2>&1; then
  fail "an uninstall of nothing succeeds"
fi
grep -q 'Nothing was installed' "$scratch/out"
