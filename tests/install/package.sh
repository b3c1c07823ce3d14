#!/usr/bin/env bash
# What find_package finds, and what it says where it does not. usage: package.sh PREFIX VERSION
set -euo pipefail
prefix=$1
version=$2
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT

# A project without a language does not know for which architecture it is, in whose folder Debian has libraries.
architecture=$(find "$prefix/lib" -path '*/cmake/QELPROEngine' | sed -nE 's|.*/lib/(.+)/cmake/QELPROEngine$|\1|p')

# find NAME CODE [OPTION ...]: configures a project of that code; what CMake says stands in NAME.log
find_it() {
  mkdir -p "$scratch/$1"
  printf 'cmake_minimum_required(VERSION 3.20)\nproject(finds LANGUAGES NONE)\n%s\n' "$2" >"$scratch/$1/CMakeLists.txt"
  cmake -G Ninja -S "$scratch/$1" -B "$scratch/$1/build" -DCMAKE_PREFIX_PATH="$prefix" \
    -DCMAKE_LIBRARY_ARCHITECTURE="$architecture" "${@:3}" >"$scratch/$1.log" 2>&1
}
finds() { find_it "$@" || { cat "$scratch/$1.log" >&2; exit 1; }; }
# refuses NAME REASON CODE [OPTION ...]
refuses() {
  if find_it "$1" "${@:3}"; then
    echo "$1: find_package succeeds" >&2
    exit 1
  fi
  if ! tr -s ' \n' ' ' <"$scratch/$1.log" | grep -qF -- "$2"; then
    cat "$scratch/$1.log" >&2
    echo "$1: the reason is not told: $2" >&2
    exit 1
  fi
}

finds this_version "find_package(QELPROEngine $version EXACT CONFIG REQUIRED)"
refuses next_major_version 'version' "find_package(QELPROEngine $((${version%%.*} + 1)) CONFIG REQUIRED)"

refuses unknown_component 'has no component "nonsense"' 'find_package(QELPROEngine CONFIG REQUIRED COMPONENTS nonsense)'
refuses unknown_component_of_qelg 'has no component "nonsense"' 'find_package(QELG CONFIG REQUIRED COMPONENTS nonsense)'
finds unknown_component_not_required 'find_package(QELPROEngine CONFIG COMPONENTS nonsense)
if(QELPROEngine_FOUND)
  message(FATAL_ERROR "found")
endif()'
finds optional_component 'find_package(QELPROEngine CONFIG REQUIRED OPTIONAL_COMPONENTS nonsense)'

# Another QELG in front, once of another version and once of this one, is not the one that the engine takes.
for other in 9.0.0 "$version"; do
  folder=$scratch/other-$other/lib/cmake/QELG
  mkdir -p "$folder"
  echo 'add_library(QELG::QELG INTERFACE IMPORTED)' >"$folder/QELGConfig.cmake"
  cat >"$folder/QELGConfigVersion.cmake" <<EOF
set(PACKAGE_VERSION $other)
set(PACKAGE_VERSION_COMPATIBLE TRUE)
if(PACKAGE_FIND_VERSION STREQUAL "$other")
  set(PACKAGE_VERSION_EXACT TRUE)
endif()
EOF
  finds "beside-$other" "find_package(QELPROEngine CONFIG REQUIRED)
file(REAL_PATH \"\${QELG_DIR}/../QELPROEngine\" beside)
file(REAL_PATH \"\${QELPROEngine_DIR}\" own)
if(NOT beside STREQUAL own OR NOT QELG_VERSION VERSION_EQUAL \"$version\")
  message(FATAL_ERROR \"takes QELG \${QELG_VERSION} of \${QELG_DIR}\")
endif()" "-DCMAKE_PREFIX_PATH=$scratch/other-$other;$prefix"
done
refuses found_before 'QELG 9.0.0 was found before' 'find_package(QELG CONFIG REQUIRED)
find_package(QELPROEngine CONFIG REQUIRED)' "-DCMAKE_PREFIX_PATH=$scratch/other-9.0.0;$prefix"
