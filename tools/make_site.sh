#!/usr/bin/env bash
# Makes the site in FOLDER: the reference of the public headers and of the Python module, and the guides; every warning ends it. What it is made of is laid out
# in FOLDER.made.
# usage: make_site.sh FOLDER
#        make_site.sh --ready   tells what is missing on this machine
set -euo pipefail
tree=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
python=/usr/bin/python3  # the one that has Debian's packages

if [[ $1 == --ready ]]; then
  for command in doxygen dot "$python"; do
    command -v "$command" >/dev/null || { echo "no $command"; exit 1; }
  done
  "$python" -B -c 'import sphinx, myst_parser, furo'
  exit
fi

mkdir -p "$(dirname "$1")"
site=$(cd "$(dirname "$1")" && pwd)/$(basename "$1")
made=$site.made
rm -rf "$site" "$made"
mkdir -p "$made/pages"

cd "$tree"
{ cat docs/site/Doxyfile; echo "OUTPUT_DIRECTORY = \"$made\""; } | doxygen -
"$python" -B docs/site/reference.py "$made/xml" "$made/pages/reference"
if [[ -s python/qelpro/__init__.py ]]; then
  "$python" -B docs/site/python_reference.py python/qelpro "$made/pages/reference/python.rst"
fi
"$python" -B docs/site/guides.py "$tree" "$made/pages"
"$python" -B -m sphinx -q -W --keep-going -j auto -c docs/site -d "$made/read" "$made/pages" "$site"
# The theme's packaged style asks a web server for a file of another package.
cp -L /usr/share/javascript/normalize.css/normalize.css "$site/_static/styles/"
sed -i 's|^@import url(/javascript/normalize.css/|@import url(|' "$site/_static/styles/furo.css"
rm -f "$site/.buildinfo" "$site/objects.inv"
