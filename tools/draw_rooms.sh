#!/usr/bin/env bash
# Prints which room includes which, drawn from the includes themselves, the room that stands on most first. Fails where rooms include
# each other in a circle. With --write the drawing goes into docs/design.md, with --check it has to stand there.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
page=docs/design.md
first='<!-- made by tools/draw_rooms.sh -->'
last='<!-- made so far -->'

arrows() {
  local folder room header
  for folder in src/*/ tools/*/; do
    room=$(basename "$folder")
    grep -rhoE '^#include ["<][A-Za-z]+/[A-Za-z_/.]+' "$folder" | sed -E 's|.*["<]||' | sort -u |
      while read -r header; do
        case $header in
          QELPROEngine/* | QELG/*) echo "$room include" ;;
          sys/* | CLI/* | nlohmann/*) ;;
          *) [[ -e $folder$header || ${header%%/*} == "$room" ]] || echo "$room ${header%%/*}" ;;
        esac
      done | sort -u
  done
}

drawing() {
  local drawn order
  drawn=$(arrows)
  order=$(tsort <<<"$drawn")  # fails where there is a circle
  echo '```mermaid'
  echo 'graph TD'
  awk 'NR == FNR { place[$1] = NR; next } { print place[$1], place[$2], "  " $1 " --> " $2 }' <(echo "$order") - <<<"$drawn" |
    sort -n -k1,1 -k2,2 | cut -d' ' -f3-
  echo '```'
}

case ${1-} in
  --write | --check)
    made=$(drawing)
    page_with=$(awk -v first="$first" -v last="$last" -v made="$made" \
      '$0 == last { print made; skip = 0 } !skip { print } $0 == first { skip = 1 }' $page)
    if [[ $1 == --write ]]; then
      echo "$page_with" >$page
    elif [[ $page_with != "$(cat $page)" ]]; then
      echo "the drawing of rooms in $page is not of these includes; run ./dev generate"
      exit 1
    fi
    ;;
  *) drawing ;;
esac
