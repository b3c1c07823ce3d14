#!/usr/bin/env bash
# As a part of another project the libraries alone are built, static ones and in a unity build where that project wants it so; what
# it then installs serves an outside program. usage: part_of_another_project.sh TREE COMPILER FOLDER
set -euo pipefail
tree=$1
compiler=$2
folder=$3
here=$tree/tests/build

fail() { echo "$1" >&2; exit 1; }
another() { cmake -G Ninja -S "$here/another_project" -B "$folder/$1" -DQELPRO_TREE="$tree" -DCMAKE_CXX_COMPILER="$compiler" "${@:2}" >/dev/null; }
tells() { grep -qx -- "$2" "$folder/$1/another_project.txt" || fail "$1 does not tell \"$2\": $(cat "$folder/$1/another_project.txt")"; }

# What is built by default. The variables of the other project are as it left them.
another plain
for line in 'target QELPROEngine' 'target QELG' 'type SHARED_LIBRARY' 'build type <>' 'shared <>' 'standard <>'; do
  tells plain "$line"
done
ninja -C "$folder/plain" -t targets all >"$folder/plain/all"
if found=$(grep -E '^(qelpro|uninstall|.*_tests|.*generate):' "$folder/plain/all"); then
  fail "another project builds what it did not ask for: $found"
fi
DESTDIR=$folder/nothing cmake --install "$folder/plain" >/dev/null
[[ ! -e $folder/nothing ]] || fail "another project installs what it did not ask for: $(find "$folder/nothing")"

# With all that there is, no target has a name that another project might have.
another everything -DQELPRO_TOOL=ON -DQELPRO_TESTS=ON -DQELPRO_INSTALL=ON
if found=$(grep '^target' "$folder/everything/another_project.txt" | grep -vE '^target (QELG|QELPROEngine|qelpro(_[a-z_]+)?)$'); then
  fail "names that another project might have: $found"
fi
tells everything 'target qelpro_api_tests'

# Static libraries from a unity build.
another static -DBUILD_SHARED_LIBS=OFF -DCMAKE_UNITY_BUILD=ON -DCMAKE_UNITY_BUILD_BATCH_SIZE=0 -DQELPRO_INSTALL=ON -DQELPRO_WARNINGS_AS_ERRORS=ON \
  -DCMAKE_CXX_FLAGS=-O0
tells static 'type STATIC_LIBRARY'
cmake --build "$folder/static" | tail -n 20
"$folder/static/another" "$folder/static/file.pro"
[[ -z $(find "$folder/static" -name '*.so*') ]] || fail "a shared library was built"
rm -rf "$folder/prefix"
cmake --install "$folder/static" --prefix "$folder/prefix" >/dev/null
"$tree/tests/install/outside_program.sh" "$folder/prefix" "$compiler" "$tree/tests/install/outside"
