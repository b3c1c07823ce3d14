#!/usr/bin/env bash
# The installed tool finds its libraries beside it. usage: tool.sh PREFIX
set -euo pipefail
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
"$1/bin/qelpro" new "$scratch/file.pro"
"$1/bin/qelpro" set "$scratch/file.pro" Flow-1 FillTime 1.5
"$1/bin/qelpro" get "$scratch/file.pro" Flow-1 FillTime | grep -qx 1.5
