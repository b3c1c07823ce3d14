#!/usr/bin/env bash
# The libraries export the public classes and functions, and nothing else.
# usage: check_exports.sh ENGINE_LIBRARY SIMULATOR_LIBRARY
set -euo pipefail
engine='CQELPRO(RSV)?(Reader|Writer)_Manipulator|CQELProcess(Data_Manipulator|ValueReader)|CQEL_ProcessAdapter|CPROIO_Manipulator|CQELMachineIdentification|CQELPCSInterpolator'
about='((typeinfo|typeinfo name|vtable) for )?'

exported() {
  if [[ $1 == *.dll ]]; then
    x86_64-w64-mingw32-objdump -p "$1" | sed -n '/^\[Ordinal\/Name Pointer\] Table/,/^$/s/^\t\[ *[0-9]*\] //p' | c++filt
  else
    nm -DC --defined-only "$1" | cut -d' ' -f3- | sed -E 's/@@.*//'
  fi
}

check() {
  local names
  names=$(exported "$1")
  if ! grep -qE "$2" <<<"$names"; then
    echo "$1 exports nothing that it should" >&2
    exit 1
  fi
  if found=$(grep -vE "$2" <<<"$names"); then
    echo "$1 exports more than it should:"$'\n'"$found" >&2
    exit 1
  fi
}

check "$1" "^$about($engine)(::|$)|^GetPRODLLVersion\(\)$|^g_GetCurrentUserPSCFilePath\("
check "$2" "^${about}QELG_|^(set|get)_process_"
