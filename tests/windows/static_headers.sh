#!/usr/bin/env bash
# A program that links the static libraries imports nothing; one that links the shared ones imports all that it calls.
# usage: static_headers.sh TREE COMPILER
set -euo pipefail
tree=$1
compiler=$2
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
imports() {
  "$compiler" -std=c++17 "-I$tree/include" "$@" -c "$tree/tests/install/outside/outside.cpp" -o "$scratch/outside.o"
  x86_64-w64-mingw32-nm "$scratch/outside.o" | grep -cE '__imp_.*(QEL|get_process_)' || true
}
shared=$(imports)
static=$(imports -DQELPROENGINE_STATIC -DQELG_STATIC)
echo "$shared imports from the shared libraries, $static from the static ones"
((shared >= 5 && static == 0))
