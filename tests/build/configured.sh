#!/usr/bin/env bash
# What the build is without being told, and which compilers it takes. usage: configured.sh TREE COMPILER
set -euo pipefail
tree=$1
compiler=$2
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
fail() { echo "$1" >&2; exit 1; }
configured() { cmake -G Ninja -S "$tree" -B "$scratch/$1" -DQELPRO_TOOL=OFF "${@:2}" >"$scratch/$1.log" 2>&1; }
has() { grep -qx -- "$2" "$scratch/$1/CMakeCache.txt" || fail "$1: not $2, but $(grep "^${2%%:*}:" "$scratch/$1/CMakeCache.txt")"; }

configured plain -DCMAKE_CXX_COMPILER="$compiler" || fail "$(cat "$scratch/plain.log")"
has plain CMAKE_BUILD_TYPE:STRING=Release
has plain BUILD_SHARED_LIBS:BOOL=ON
configured chosen -DCMAKE_CXX_COMPILER="$compiler" -DCMAKE_BUILD_TYPE=Debug || fail "$(cat "$scratch/chosen.log")"
has chosen CMAKE_BUILD_TYPE:STRING=Debug

# A compiler that says that it is older than the supported ones.
printf '#!/bin/sh\nexec "%s" -w -U__GNUC__ -D__GNUC__=9 "$@"\n' "$(command -v g++)" >"$scratch/old_compiler"
chmod +x "$scratch/old_compiler"
if configured old -DCMAKE_CXX_COMPILER="$scratch/old_compiler"; then
  fail "an old compiler is taken"
fi
tr -s ' \n' ' ' <"$scratch/old.log" | grep -q 'not tested with GNU 9\..*QELPRO_ANY_COMPILER=ON' ||
  fail "the reason is not told: $(cat "$scratch/old.log")"
configured overridden -DCMAKE_CXX_COMPILER="$scratch/old_compiler" -DQELPRO_ANY_COMPILER=ON || fail "$(cat "$scratch/overridden.log")"

# takes EXPECTED ID VERSION: the rule by itself
takes() {
  local taken=yes
  cmake -DCMAKE_CXX_COMPILER_ID="$2" -DCMAKE_CXX_COMPILER_VERSION="$3" -P "$tree/cmake/compilers.cmake" >/dev/null 2>&1 || taken=no
  [[ $taken == "$1" ]] || fail "$2 $3: taken $taken, not $1"
}
takes yes GNU 12.0.0
takes yes GNU 14.2.0
takes no GNU 11.4.0
takes yes Clang 14.0.6
takes no Clang 13.0.1
takes yes MSVC 19.30.30705
takes no MSVC 19.29.30133
takes no Intel 2021.10
