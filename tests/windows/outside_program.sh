#!/usr/bin/env bash
# Installs the Windows build to a scratch prefix, builds a small outside program against it with find_package, and runs it
# beside the installed libraries. usage: outside_program.sh BUILD_FOLDER FOLDER_OF_THE_PROGRAM TOOLCHAIN_FILE
set -euo pipefail
build=$1
source=$2
toolchain=$3
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT

cmake --install "$build" --prefix "$scratch/prefix" >/dev/null
for file in bin/QELPROEngine.dll bin/QELG.dll bin/qelpro.exe lib/QELPROEngine.dll.a lib/QELG.dll.a; do
  [[ -f $scratch/prefix/$file ]] || { echo "$file is not installed" >&2; exit 1; }
done
cp "$source/outside.cpp" "$source/CMakeLists.txt" "$scratch/"
cmake -G Ninja -S "$scratch" -B "$scratch/cmake" -DCMAKE_TOOLCHAIN_FILE="$toolchain" \
  -DCMAKE_PREFIX_PATH="$scratch/prefix" -DCMAKE_FIND_ROOT_PATH_MODE_PACKAGE=BOTH >/dev/null
cmake --build "$scratch/cmake" >/dev/null

cp "$scratch/cmake/outside.exe" "$scratch/prefix/bin/"
wine "$scratch/prefix/bin/outside.exe" "$scratch/file.pro"
grep -q $'FillTime .*\r$' "$scratch/file.pro"
wine "$scratch/prefix/bin/qelpro.exe" get "$scratch/file.pro" Flow-1 FillTime | tr -d '\r' | grep -qx 1.5
