#!/usr/bin/env bash
# What the documents show is what runs. Of README.md and docs/*.md every block of commands ("sh") is run in order, in a folder of the document's
# own that holds the examples and `./dev`; a session ("console") shows the very output of its commands; and every program ("cpp" with a main
# function) is a file of examples/, to the byte, all of which compile without a warning and are run by a document.
# usage: documents_run.sh TREE BUILD_FOLDER PREFIX COMPILER
set -euo pipefail
tree=$1
export QELPRO_BUILT=$2  # what `./dev install` installs
prefix=$3
compiler=$4
here=$(dirname "${BASH_SOURCE[0]}")
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
export PATH=$prefix/bin:$PATH CXX=$compiler XDG_CONFIG_HOME=$scratch/config
failed=0
complain() { echo "$1" >&2; failed=1; }

# run FILE WHERE
run() {
  if ! (cd "$folder" && bash -euo pipefail "$1") </dev/null >"$scratch/out" 2>&1; then
    complain "$2 fails:"$'\n'"$(tail -n 20 "$scratch/out")"
  fi
}

# A session: lines that begin with "$ " are commands, those below a command are what it prints.
session() {
  sed -n 's/^\$ //p' "$1" | while IFS= read -r command; do
    printf '$ %s\n' "$command"
    (cd "$folder" && bash -c "$command") </dev/null 2>&1 || true
  done >"$scratch/session"
  diff -u "$1" "$scratch/session" >"$scratch/out" || complain "$2 prints something else:"$'\n'"$(cat "$scratch/out")"
}

is_an_example() {
  local example
  for example in "$tree"/examples/*.cpp; do
    ! cmp -s "$1" "$example" || return 0
  done
  return 1
}

commands=0 programs=0
for document in "$tree"/README.md "$tree"/docs/*.md; do
  name=${document#"$tree"/}
  folder=$scratch/run/$name
  blocks=$scratch/blocks/$name
  mkdir -p "$folder" "$blocks"
  cp -r "$tree/dev" "$tree/examples" "$folder/"
  awk -v folder="$blocks" -f "$here/code_blocks.awk" "$document" >"$scratch/list"
  while read -r line language reason; do
    block=$blocks/$line.$language
    if [[ $language == unfenced ]]; then
      complain "$name:$line: commands stand in a fence of \"sh\""
    elif [[ $language == cpp ]] && grep -q 'int main(' "$block"; then
      is_an_example "$block" || complain "$name:$line: the program is no file of examples/"
      programs=$((programs + 1))
    elif [[ -n $reason ]]; then
      echo "$name:$line: not run: $reason"
    elif [[ $language == sh ]]; then
      run "$block" "$name:$line"
      commands=$((commands + $(grep -c . "$block")))
    elif [[ $language == console ]]; then
      session "$block" "$name:$line"
      commands=$((commands + $(grep -c '^\$ ' "$block")))
    fi
  done <"$scratch/list"
done

flags=(-std=c++17 -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Werror "-I$prefix/include")
for example in "$tree"/examples/*.cpp; do
  "$compiler" "${flags[@]}" -fsyntax-only "$example" || complain "${example#"$tree"/} does not compile"
  name=$(basename "$example" .cpp)
  [[ -n $(find "$scratch/run" -name "$name" -type f -perm -u+x) ]] || complain "no document builds $name"
done
((commands >= 10 && programs >= 1)) || complain "only $commands commands and $programs programs were found"
echo "$commands commands and $programs programs of the documents run"
exit $failed
