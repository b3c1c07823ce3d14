#!/usr/bin/env bash
# Builds a small outside program against what is installed, with find_package and with pkg-config, and runs it.
# usage: outside_program.sh PREFIX COMPILER FOLDER_OF_THE_PROGRAM
set -euo pipefail
prefix=$1
compiler=$2
source=$3
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
cp "$source/outside.cpp" "$source/CMakeLists.txt" "$scratch/"

run() {
  "$1" "$scratch/$2.pro"
  grep -q 'FillTime' "$scratch/$2.pro"
}

# The generator is the one that is known to be there, not CMake's default.
cmake -G Ninja -S "$scratch" -B "$scratch/cmake" -DCMAKE_PREFIX_PATH="$prefix" -DCMAKE_CXX_COMPILER="$compiler" >/dev/null
cmake --build "$scratch/cmake" >/dev/null
run "$scratch/cmake/outside" found_package

libraries=$(dirname "$(find "$prefix" -name qelproengine.pc)")
export PKG_CONFIG_PATH=$libraries
read -ra flags < <(pkg-config --cflags --libs qelproengine qelg)
"$compiler" -std=c++17 -Wall -Wextra -Werror "$scratch/outside.cpp" "${flags[@]}" "-Wl,-rpath,$(dirname "$libraries")" -o "$scratch/by_pkg_config"
run "$scratch/by_pkg_config" pkg_config
[[ $(pkg-config --modversion qelproengine) == $(pkg-config --modversion qelg) ]]
