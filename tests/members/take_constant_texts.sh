#!/usr/bin/env bash
# usage: take_constant_texts.sh INCLUDE_FOLDER COMPILER ...
# Every public member that takes a text as char* takes a literal and c_str() too, without a warning, with those of the compilers that
# are there; a null pointer, a text that may change, and the address of the member by its exact type mean the same as ever.
set -euo pipefail
here=$(dirname "${BASH_SOURCE[0]}")
include=$1
shift
program=$(mktemp --suffix=.cpp)
trap 'rm -f "$program"' EXIT

{
  echo '#include <QELPROEngine/QELPROEngine.h>'
  echo '#include <string>'
  for class in CQELPROWriter_Manipulator CPROIO_Manipulator CQEL_ProcessAdapter; do
    awk -f "$here/list_docstrings.awk" "$include/QELPROEngine/$class.h" | cut -f1,2 | awk -F'\t' -v class="$class" '
      # The path of the older object has a form for constant texts of its own, which behaves otherwise.
      $1 == "SetFilePath" || !($2 ~ /(^|, )char\* /) { next }
      {
        count = split($2, arguments, ", ")
        types = texts = ""
        for (i = 1; i <= count; ++i) {
          type = name = arguments[i]
          sub(/ [A-Za-z0-9_]+$/, "", type)
          sub(/.* /, "", name)
          types = types (i > 1 ? ", " : "") type
          texts = texts (i > 1 ? ", " : "") (type == "char*" ? "TEXT" : type == "double" ? "0.5" : "1")
        }
        ++number
        print "void call_" class "_" number "(" class "& object, std::string text) {"
        split("\"a literal\"|text.c_str()|text.data()|nullptr", forms, "|")
        for (form = 1; form <= 4; ++form) {
          call = texts
          gsub(/TEXT/, forms[form], call)
          print "  object." $1 "(" call ");"
        }
        print "  bool (" class "::*member)(" types ") = &" class "::" $1 ";"
        print "  static_cast<void>(member);"
        print "}"
      }'
  done
} >"$program"
members=$(grep -c '^void call_' "$program")
[[ $members -gt 50 ]] || { echo "the headers were not understood" && exit 1; }
for compiler in $(printf '%s\n' "$@" | sort -u); do
  command -v "$compiler" >/dev/null || continue
  "$compiler" -std=c++17 -Wall -Wextra -Wpedantic -Wwrite-strings -Wconversion -Werror -I"$include" -fsyntax-only "$program"
  echo "$compiler: $members members"
done
