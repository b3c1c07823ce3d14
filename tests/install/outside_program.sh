#!/usr/bin/env bash
# Installs to a scratch prefix and builds a small outside program against it, with find_package and with pkg-config.
# usage: outside_program.sh BUILD_FOLDER FOLDER_OF_THE_PROGRAM
set -euo pipefail
build=$1
source=$2
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT

cmake --install "$build" --prefix "$scratch/prefix" >/dev/null
cp "$source/outside.cpp" "$source/CMakeLists.txt" "$scratch/"

run() {
  "$1" "$scratch/$2.pro"
  grep -q 'FillTime' "$scratch/$2.pro"
}

# The generator is the one that is known to be there, not CMake's default.
cmake -G Ninja -S "$scratch" -B "$scratch/cmake" -DCMAKE_PREFIX_PATH="$scratch/prefix" >/dev/null
cmake --build "$scratch/cmake" >/dev/null
run "$scratch/cmake/outside" found_package

libraries=$(dirname "$(find "$scratch/prefix" -name qelproengine.pc)")
export PKG_CONFIG_PATH=$libraries
read -ra flags < <(pkg-config --cflags --libs qelproengine qelg)
g++ -std=c++17 -Wall -Wextra -Werror "$scratch/outside.cpp" "${flags[@]}" "-Wl,-rpath,$(dirname "$libraries")" -o "$scratch/by_pkg_config"
run "$scratch/by_pkg_config" pkg_config

"$scratch/prefix/bin/qelpro" get "$scratch/pkg_config.pro" Flow-1 FillTime | grep -qx 1.5
