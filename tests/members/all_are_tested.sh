#!/usr/bin/env bash
# Every section member that the public headers declare has a row in a table of the tests, or, where its shape fits no table,
# tests of its own that call it. Prints the counts.
set -euo pipefail
api_tests=$1
include=$2
tests=$3
here=$(dirname "${BASH_SOURCE[0]}")

rows=$("$api_tests" --gtest_list_tests | sed -nE 's/^  (ReadsTheEntryOfItsSection|BeginsItsSectionInANewFile)\/([A-Za-z0-9_]+)_[0-9]+ .*/\2/p' | sort -u)
all_tests=$(cat "$tests"/api/reader_writer/*_test.cpp | tr -s ' \n' ' ')
status=0
for object in Reader Writer; do
  declared=0 by_table=0 by_hand=0
  while IFS= read -r declaration; do
    declaration=${declaration#MEMBER(}
    declaration=${declaration%)}
    name=${declaration%%,*}
    types=
    [[ $declaration != *,* ]] || types=${declaration#*, }
    ((declared += 1))
    # An overload has a row of its own where its types choose it.
    if [[ $all_tests == *"\"$name\", Taking<$types>::of("* ]] ||
      { [[ $all_tests == *"ER($name)"* ]] && grep -qx "$name" <<<"$rows"; }; then
      ((by_table += 1))
    elif [[ $all_tests == *".$name("* || $all_tests == *"::$name"[,\)]* ]]; then
      ((by_hand += 1))
    else
      echo "$object: no test of $name($types)"
      status=1
    fi
  done < <("$here/list_members.sh" "$include/QELPROEngine/CQELPRO${object}_Manipulator.h")
  echo "$object: $((by_table + by_hand)) of $declared members tested, $by_table by table, $by_hand by tests of their own"
done
exit $status
