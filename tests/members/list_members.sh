#!/bin/sh
# Lists the public members of a header whose names match (section members where no pattern is given) and that yield bool, one
# "MEMBER(name, argument types)" a line.
set -eu
name=${2:-'[A-Za-z0-9]+_[A-Za-z0-9_]+'}
sed '/^ private:/,$d' "$1" | tr '\n' ' ' | tr ';' '\n' | grep -oE "\\bbool $name\\([^)]*\\) *\$" |
  sed -E -e 's/ *$//' -e 's/^bool ([A-Za-z0-9_]+)\((.*)\)$/\1, \2/' -e 's/ +/ /g' \
    -e 's/ [a-z][A-Za-z0-9_]*(,|$)/\1/g' -e 's/, $//' -e 's/^(.*)$/MEMBER(\1)/'
