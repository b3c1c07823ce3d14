#!/usr/bin/env bash
# What a compiler must refuse, each beside its twin that it takes: tests/build/refused.cpp. usage: refused.sh TREE COMPILER
set -euo pipefail
tree=$1
compiler=$2
source=$tree/tests/build/refused.cpp

fail() { echo "$1" >&2; exit 1; }
compiles() { "$compiler" -std=c++20 -fsyntax-only -I"$tree/src" -I"$tree/include" "$@" "$source"; }

compiles || fail "the twins do not compile"
refused=0
for macro in $(sed -nE 's/^#ifdef (.*)/\1/p' "$source"); do
  ! compiles "-D$macro" 2>/dev/null || fail "$macro compiles"
  ((refused += 1))
done
((refused > 0)) || fail "nothing was tried"
echo "$refused refused"
