#!/usr/bin/env bash
# The libraries export the public classes and functions, and nothing else. usage: check_exports.sh BUILD_FOLDER
set -euo pipefail
engine='CQELPRO(RSV)?(Reader|Writer)_Manipulator|CQELProcess(Data_Manipulator|ValueReader)|CQEL_ProcessAdapter|CPROIO_Manipulator|CQELMachineIdentification|CQELPCSInterpolator'

exported() { nm -DC --defined-only "$1" | cut -d' ' -f3- | sed -E 's/@@.*//'; }

check() {
  if found=$(exported "$1" | grep -vE "$2"); then
    echo "$1 exports more than it should:"$'\n'"$found"
    exit 1
  fi
}

check "$1/src/libQELPROEngine.so" "^((typeinfo|typeinfo name|vtable) for )?($engine)(::|$)|^GetPRODLLVersion\(\)$|^g_GetCurrentUserPSCFilePath\("
check "$1/src/libQELG.so" "^((typeinfo|typeinfo name|vtable) for )?QELG_|^(set|get)_process_"
