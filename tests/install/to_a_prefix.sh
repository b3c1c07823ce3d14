#!/usr/bin/env bash
# usage: to_a_prefix.sh BUILD_FOLDER PREFIX
set -euo pipefail
rm -rf "$2"
cmake --install "$1" --prefix "$2" >/dev/null
[[ -d $2/include/QELPROEngine && -d $2/include/QELG ]]
