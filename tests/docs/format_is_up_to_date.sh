#!/usr/bin/env bash
# usage: format_is_up_to_date.sh PROGRAM FILE
set -euo pipefail
"$1" | diff -u "$2" - || { echo "docs/format.md is out of date: run ./dev docs"; exit 1; }
