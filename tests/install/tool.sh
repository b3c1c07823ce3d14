#!/usr/bin/env bash
# The installed tool finds its libraries beside it, and has its manual pages and completions. usage: tool.sh PREFIX
set -euo pipefail
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
"$1/bin/qelpro" new "$scratch/file.pro"
"$1/bin/qelpro" set "$scratch/file.pro" Flow-1 FillTime 1.5
"$1/bin/qelpro" get "$scratch/file.pro" Flow-1 FillTime | grep -qx 1.5
for file in bash-completion/completions/qelpro zsh/site-functions/_qelpro fish/vendor_completions.d/qelpro.fish man/man1/qelpro.1; do
  [[ -s $1/share/$file ]] || { echo "share/$file is not installed" >&2; exit 1; }
done
"$1/bin/qelpro" complete -- '' | while read -r command; do
  [[ -s $1/share/man/man1/qelpro-$command.1 ]] || { echo "qelpro-$command has no manual page" >&2; exit 1; }
done
[[ $(find "$1/share/man/man1" -name 'qelpro-*.1' | wc -l) == $("$1/bin/qelpro" complete -- '' | wc -l) ]]
