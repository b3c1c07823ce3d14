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
if found=$(git grep -nE '_WIN32|__linux__|__APPLE__|__unix__' -- src tools/qelpro include ':!src/platform' ':!include/*/export.h'); then
  complain "a platform is tested for outside src/platform:"$'\n'"$found"
fi

# The older object shares nothing but src/platform.
if [[ -d src/proio ]] && found=$(git grep -nE '#include "(core|blocks|api|process|refdata)/' -- src/proio); then
  complain "src/proio includes more than src/platform:"$'\n'"$found"
fi

# Arrows point one way.
if found=$(git grep -nE '#include "(core|blocks|api|process|proio|refdata)/' -- src/platform); then
  complain "src/platform includes a higher room:"$'\n'"$found"
fi
if found=$(git grep -nE '#include "(api|process|proio|refdata)/' -- src/core src/blocks); then
  complain "src/core or src/blocks includes a higher room:"$'\n'"$found"
fi
if found=$(git grep -nE '#include "(core|blocks|api|process|platform)/' -- include tests/api tests/process tests/qelg examples); then
  complain "what is outside includes what is hidden:"$'\n'"$found"
fi

# No path of a machine.
if found=$(git grep -nIE '(^|[^[:alnum:]_.])/(home|root|Users)/' -- . ':!tools/check_tree.sh'); then
  complain "a path of a machine:"$'\n'"$found"
fi
exit $failed
