#!/usr/bin/env bash
# The rules of the tree that no compiler knows.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
git rev-parse --is-inside-work-tree >/dev/null  # what cannot be searched has not passed
failed=0

complain() {
  echo "$1"
  failed=1
}

# Only src/platform tests for a platform; the export macro is the one exception.
if found=$(git grep -nE '_WIN32|__linux__|__APPLE__|__unix__' -- src tools include ':!src/platform' ':!include/*/export.h' ':!tools/*.sh'); then
  complain "a platform is tested for outside src/platform:"$'\n'"$found"
fi

# Arrows point one way: what each room may include, beside itself and the public headers.
while read -r folder allowed; do
  allowed=$(tr ' ' '|' <<<"${folder##*/} $allowed")
  if found=$(git grep -nE '#include "[a-z]+/' -- "$folder" | grep -vE "#include \"($allowed|QELG|QELPROEngine)/"); then
    complain "$folder includes what it may not:"$'\n'"$found"
  fi
done <<'EOF'
src/platform
src/text platform
src/core text platform
src/blocks core text platform qelg
src/objects platform
src/api objects blocks core text platform refdata
src/process objects blocks core text platform qelg
src/proio objects blocks text platform
src/refdata objects text platform
src/qelg
tools/system text platform
tools/json system
tools/file blocks text platform system json
tools/check file blocks proio text platform system json
tools/compare file blocks text platform system json
tools/picture compare check file blocks text platform qelg system json
tools/work
tools/reference platform system
tools/scan file blocks text platform system json work
tools/simulation file blocks text platform qelg system json
tools/study file blocks text platform system json work
tools/qelpro arguments reference study simulation picture compare check file blocks text platform qelg system json
tools/generate blocks proio refdata text qelg
EOF
if found=$(git grep -nE '#include "((text|core|blocks|process|platform)/|api/[a-z_]+\.h)' -- include tests/api examples); then
  complain "what is outside includes what is hidden:"$'\n'"$found"
fi

tools/draw_rooms.sh --check || failed=1
tools/figures.py check || failed=1

# A program of the tests that is run by hand may leave a file where it stands, by whatever text it took for a path.
if found=$(git ls-files | grep -vE '^[A-Za-z0-9._/+-]+$'); then
  complain "a name that no file of the tree has:"$'\n'"$found"
fi

# No path of a machine.
if found=$(git grep -nIE '(^|[^[:alnum:]_.])/(home|root|Users)/' -- . ':!tools/check_tree.sh'); then
  complain "a path of a machine:"$'\n'"$found"
fi
exit $failed
