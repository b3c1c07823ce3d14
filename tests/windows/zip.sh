#!/usr/bin/env bash
# Makes the ZIP for Windows of a build, and uses what it holds, from a folder of its own and with nothing else: a program is built with it
# and runs beside its libraries, as does the tool. usage: zip.sh BUILD_FOLDER FOLDER_OF_THE_PROGRAM TOOLCHAIN_FILE
set -euo pipefail
build=$1
source=$2
toolchain=$3
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
fail() { echo "$1" >&2; exit 1; }

cpack --config "$build/CPackConfig.cmake" -B "$scratch/made" >"$scratch/said" 2>&1 || fail "$(tail -n 20 "$scratch/said")"
archive=$(echo "$scratch"/made/*.zip)
# Its name is the folder that it unpacks to, with blanks above it, which the names of folders have on Windows.
mkdir "$scratch/a folder"
(cd "$scratch/a folder" && cmake -E tar xf "$archive")
folder="$scratch/a folder/$(basename "$archive" .zip)"
[[ $(ls "$scratch/a folder") == "$(basename "$archive" .zip)" ]] || fail "the archive holds more than one folder: $(ls "$scratch/a folder")"
rm -rf "$scratch/made"
for file in bin/QELPROEngine.dll bin/QELG.dll bin/qelpro.exe lib/QELPROEngine.dll.a lib/QELG.dll.a include/QELPROEngine/QELPROEngine.h include/QELG/QELG.h \
  lib/cmake/QELPROEngine/QELPROEngineConfig.cmake lib/cmake/QELG/QELGConfig.cmake lib/pkgconfig/qelproengine.pc; do
  [[ -s $folder/$file ]] || fail "$file is not in the archive"
done
[[ -n $(find "$folder/share" -name LICENSE) ]] || fail "the archive has no licence"
[[ -z $(find "$folder" -name '*test*') ]] || fail "tests are in the archive: $(find "$folder" -name '*test*')"
# What belongs to the machine that it was made on is in no text of it.
if found=$(grep -rlIF -e "$build" -e "$scratch" "$folder"); then
  fail "a path of the build is in $found"
fi

cp "$source/outside.cpp" "$source/CMakeLists.txt" "$scratch/"
cmake -G Ninja -S "$scratch" -B "$scratch/cmake" -DCMAKE_TOOLCHAIN_FILE="$toolchain" -DCMAKE_PREFIX_PATH="$folder" \
  -DCMAKE_FIND_ROOT_PATH_MODE_PACKAGE=BOTH >/dev/null
grep -q "^QELPROEngine_DIR:PATH=$folder/" "$scratch/cmake/CMakeCache.txt" || fail "another package is found: $(grep _DIR:PATH "$scratch/cmake/CMakeCache.txt")"
cmake --build "$scratch/cmake" >/dev/null

# A folder of its own for the program and the libraries, as it would be given to somebody else.
mkdir "$scratch/program"
cp "$scratch/cmake/outside.exe" "$folder"/bin/*.dll "$scratch/program/"
wine "$scratch/program/outside.exe" "$scratch/file.pro"
grep -q $'FillTime .*\r$' "$scratch/file.pro" || fail "the program stores nothing"
tool() { wine "$folder/bin/qelpro.exe" "$@" | tr -d '\r'; }
[[ $(tool get "$scratch/file.pro" Flow-1 FillTime) == 1.5 ]] || fail "the tool does not read what the program stored"
tool new "$scratch/new.pro"
tool set "$scratch/new.pro" Flow-1 FillTime 2.5
[[ $(tool get "$scratch/new.pro" Flow-1 FillTime) == 2.5 ]] || fail "the tool does not read back what it stored"
echo "$(find "$folder" -type f | wc -l) files of ${folder##*/} are used"
