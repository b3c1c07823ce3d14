#!/usr/bin/env bash
# usage: site.sh TREE
# The site is made without a warning and its links lead somewhere; and faults of each kind, made in copies, are told.
set -euo pipefail
tree=$1
here=$(dirname "${BASH_SOURCE[0]}")
"$tree/tools/make_site.sh" --ready || exit 77
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT

"$tree/tools/make_site.sh" "$scratch/site"
"$here/site_links.py" "$scratch/site" "$tree"

failed=0
# told WHAT COMMAND...: the command fails, and says what.
told() {
  if "${@:2}" >"$scratch/said" 2>&1; then
    echo "passes in spite of: $1"
    failed=1
  elif ! grep -qF -- "$1" "$scratch/said"; then
    echo "does not tell \"$1\" but:"
    tail -n 5 "$scratch/said"
    failed=1
  fi
}

# with_fault FILE SED TOLD: the site with one file changed, or without it.
with_fault() {
  cp "$scratch/site/$1" "$scratch/good"
  if [[ -n $2 ]]; then
    sed -i "$2" "$scratch/site/$1"
    ! cmp -s "$scratch/good" "$scratch/site/$1" || { echo "no fault was made in $1"; failed=1; }
  else
    rm "$scratch/site/$1"
  fi
  told "$3" "$here/site_links.py" "$scratch/site" "$tree"
  cp "$scratch/good" "$scratch/site/$1"
}
with_fault docs/format.html 's|href="#an-example"|href="#no-example"|' 'docs/format.html: #no-example: there is no such anchor'
with_fault index.html 's|href="docs/tool.html"|href="docs/tools.html"|' 'index.html: docs/tools.html: there is no such file'
with_fault index.html 's|<h1>|<a href="http://example.org">x</a><h1>|' 'index.html: http://example.org is no https link'
with_fault index.html 's|<h1>|<img src="https://example.org/a.png"><h1>|' 'index.html: loads https://example.org/a.png'
with_fault _static/styles/furo.css '1s|^|@import url(/elsewhere.css);|' 'furo.css: /elsewhere.css: there is no such file'
with_fault _images/report.png '' 'index.html: _images/report.png: there is no such file'
with_fault docs/windows.html '' 'docs/windows.html: the site has no such page'

# Headers with one member more, or with one comment less.
cp -r "$tree/include" "$scratch/include"
mkdir -p "$scratch/docs" && cp -r "$tree/docs/site" "$scratch/docs/"
documented() { (cd "$scratch" && { cat docs/site/Doxyfile; echo "OUTPUT_DIRECTORY = $scratch/xml"; } | doxygen -); }
mkdir "$scratch/xml"
documented
sed -i '/^ public:/a\  bool Untold(int value);' "$scratch/include/QELPROEngine/CQELPROReader_Manipulator.h"
told 'Member Untold(int value) (function) of class CQELPROReader_Manipulator is not documented' documented
cp "$tree"/include/QELPROEngine/*.h "$scratch/include/QELPROEngine/"
sed -i '/^\/\/\/ What `set_process_FlagUNF` stored/d' "$scratch/include/QELG/items.h"
told 'get_process_FlagUNF' documented

# A Python package of two functions, one of them without a word.
mkdir "$scratch/package"
printf '%s\n' '"""A package."""' 'def told(text):' '    """Says *it*, "Flow-*.MeltTemp"."""' >"$scratch/package/__init__.py"
python_page() { /usr/bin/python3 -B "$tree/docs/site/python_reference.py" "$scratch/package" "$scratch/page.rst"; }
python_page
for line in '.. py:function:: told(text)' 'Says \*it\*, "Flow-\*.MeltTemp".'; do
  grep -qF -- "$line" "$scratch/page.rst" || { echo "not on the page: $line"; failed=1; }
done
printf '%s\n' 'def silent(text):' '    return text' >>"$scratch/package/__init__.py"
told 'package/__init__.py: silent is not documented' python_page
exit $failed
