#!/usr/bin/env bash
# pip builds and installs the package without a network, and it works from where it was put, without the build folder.
# usage: pip_install.sh PYTHON SOURCE_FOLDER BUILD_FOLDER
set -euo pipefail
python=$1
source=$2
if ! "$python" -c 'import sys, importlib.util; sys.exit(not all(map(importlib.util.find_spec, ["pip", "setuptools", "wheel"])))'; then
  echo "skipped: Python has no pip, setuptools or wheel"
  exit 77
fi
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
# What the build folder has is not compiled again.
QELPRO_BUILD=$3 "$python" -m pip install --no-index --no-build-isolation --root "$scratch/root" --no-warn-script-location --no-deps \
  --disable-pip-version-check "$source" >"$scratch/log" 2>&1 || { cat "$scratch/log" >&2; exit 1; }
package=$(dirname "$(find "$scratch/root" -name __init__.py -path '*/qelpro/*')")
if find "$package" -type l -o -name '*.so.*.*' | grep .; then
  echo "a library stands there twice" >&2
  exit 1
fi
if objdump -p "$package"/*.so* | grep -E 'R(UN)?PATH' | grep -v '\$ORIGIN'; then
  echo "a library is looked for elsewhere" >&2
  exit 1
fi

mv "$(dirname "$package")" "$scratch/elsewhere"
cd "$scratch"
PYTHONPATH=$scratch/elsewhere "$python" - <<'EOF'
import os
import qelpro

assert os.path.dirname(os.path.dirname(qelpro.__file__)).endswith("elsewhere"), qelpro.__file__
qelpro.new("a.pro")
file = qelpro.ProcessFile("a.pro")
file["Flow-1"]["FillTime"] = 1.5
assert qelpro.load_process("a.pro").inlets[0].FillTime == 1.5
libraries = {line.split()[-1] for line in open("/proc/self/maps") if "libQEL" in line}
assert len(libraries) == 2 and all("elsewhere/qelpro" in library for library in libraries), libraries
assert os.path.exists(os.path.join(os.path.dirname(qelpro.__file__), "py.typed"))
EOF
