#!/usr/bin/env bash
# usage: markdown_links.sh TREE
# The links of the documents lead somewhere as a repository shows them; and faults of each kind, made in a copy, are told.
set -euo pipefail
tree=$1
here=$(dirname "${BASH_SOURCE[0]}")
[[ -x /usr/bin/python3 ]] || { echo "no /usr/bin/python3"; exit 77; }
"$here/markdown_links.py" "$tree"

copy=$(mktemp -d)
trap 'rm -rf "$copy"' EXIT
cp -r "$tree"/{README.md,CHANGELOG.md,LICENSE,docs,examples} "$copy/"
failed=0
# told LINE TOLD: a line more in README.md
told() {
  cp "$tree/README.md" "$copy/README.md"
  printf '\n%s\n' "$1" >>"$copy/README.md"
  if "$here/markdown_links.py" "$copy" >/dev/null 2>"$copy/said"; then
    [[ -z $2 ]] || { echo "passes in spite of: $1"; failed=1; }
  elif [[ -z $2 ]] || ! grep -qF -- "$2" "$copy/said"; then
    echo "of $1 it tells: $(cat "$copy/said")"
    failed=1
  fi
}
told '[a page](docs/nothing.md)' 'docs/nothing.md: the tree has no such file'
told '[a heading](docs/tool.md#nothing)' 'docs/tool.md#nothing: there is no such heading'
told '![an image](docs/images/nothing.png)' 'docs/images/nothing.png: the tree has no such file'
told '[outside](../nothing)' '../nothing: the tree has no such file'
told '[from the root](/README.md)' '/README.md: the tree has no such file'
told '[not safe](http://example.org)' 'http://example.org is no https link'
told '[by name]: docs/nothing.md' 'docs/nothing.md: the tree has no such file'
told '[`code`](docs/nothing.md)' 'docs/nothing.md: the tree has no such file'
told '`[code](docs/nothing.md)`, [a heading](docs/tool.md#parameter-studies) and [a file](examples/lid.pro)' ''
exit $failed
