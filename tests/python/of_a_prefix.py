"""The package works from the prefix that it was installed to, with the libraries of that prefix.

usage: of_a_prefix.py PREFIX
"""

import sys
import tempfile
from pathlib import Path

import qelpro

prefix = Path(sys.argv[1]).resolve()
with tempfile.TemporaryDirectory() as scratch:
    path = Path(scratch, "a.pro")
    qelpro.new(path)
    qelpro.ProcessFile(path)["Flow-1"]["FillTime"] = 1.5
    assert qelpro.load_process(path).inlets[0].FillTime == 1.5

package = Path(qelpro.__file__).resolve().parent
assert prefix in package.parents, package
assert (package / "py.typed").exists() and (package / "_engine.pyi").exists()
maps = Path("/proc/self/maps")
if maps.exists():
    loaded = {line.split()[-1] for line in maps.read_text().splitlines() if "libQEL" in line}
    assert loaded and all(prefix in Path(library).parents for library in loaded), loaded
