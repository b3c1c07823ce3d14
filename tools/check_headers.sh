#!/usr/bin/env bash
# Every public header compiles alone as C++17, without warnings, under both compilers.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
warnings=(-Wall -Wextra -Wpedantic -Wshadow -Wconversion -Werror)
find include -name '*.h' | while read -r header; do
  for compiler in g++ clang++; do
    echo "#include <${header#include/}>" | "$compiler" -std=c++17 "${warnings[@]}" -Iinclude -x c++ -fsyntax-only - || {
      echo "$header does not compile alone with $compiler"
      exit 1
    }
  done
done
