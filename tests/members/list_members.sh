#!/bin/sh
# Lists the section members that a public header declares, one "MEMBER(name, argument types)" a line.
set -eu
tr '\n' ' ' <"$1" | tr ';' '\n' | grep -oE '\bbool [A-Za-z0-9]+_[A-Za-z0-9_]+\([^)]*\) *$' |
  sed -E -e 's/ *$//' -e 's/^bool ([A-Za-z0-9_]+)\((.*)\)$/\1, \2/' -e 's/ +/ /g' \
    -e 's/ [a-z][A-Za-z0-9_]*(,|$)/\1/g' -e 's/, $//' -e 's/^(.*)$/MEMBER(\1)/'
