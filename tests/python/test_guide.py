"""What the guide and the README show of Python is what happens, block after block."""

import doctest
import re
import shutil

import pytest
from conftest import ROOT

import qelpro

FENCED = re.compile(r"^```python\n(.*?)^```$", re.MULTILINE | re.DOTALL)
FLAGS = doctest.ELLIPSIS | doctest.NORMALIZE_WHITESPACE


def blocks(document):
    text = (ROOT / document).read_text()
    for block in FENCED.finditer(text):
        yield text.count("\n", 0, block.start(1)), block[1]


def run(block, line, document, names):
    """Runs a session, or a program; gives how many examples it has."""
    if ">>>" not in block:
        exec(compile("\n" * line + block, document, "exec"), names)
        return 1
    test = doctest.DocTestParser().get_doctest(block, names, document, document, line)
    said = []
    failed, tried = doctest.DocTestRunner(optionflags=FLAGS).run(
        test, out=said.append, clear_globs=False
    )
    names.update(test.globs)  # which is a copy
    if failed:
        pytest.fail("".join(said), pytrace=False)
    return tried


@pytest.mark.parametrize("document, least", [("docs/python.md", 60), ("README.md", 4)])
def test_every_block_runs(document, least, tmp_path, monkeypatch):
    monkeypatch.chdir(tmp_path)
    shutil.copytree(ROOT / "examples", tmp_path / "examples")
    names = {"__name__": "guide"}
    assert sum(run(block, line, document, names) for line, block in blocks(document)) >= least


def test_a_session_that_shows_something_else_fails():
    with pytest.raises(pytest.fail.Exception, match="Expected:\n    3"):
        run(">>> 1 + 1\n3\n", 0, "a.md", {})


def test_no_block_is_passed_over():
    """Every session of the documents stands in a fence that is run."""
    for document in sorted([*ROOT.glob("docs/*.md"), ROOT / "README.md"]):
        sessions = len(re.findall(r"^ *>>>", document.read_text(), re.MULTILINE))
        name = str(document.relative_to(ROOT))
        run_ones = sum(len(re.findall(r"^>>>", block, re.MULTILINE)) for _, block in blocks(name))
        assert sessions == run_ones, name
        assert not run_ones or name in ("docs/python.md", "README.md")


def test_the_guide_tells_of_every_call():
    text = (ROOT / "docs" / "python.md").read_text()
    records = {"Difference", "Finding", "HeatTransfer", "Inlet", "Machine", "Process"}
    records |= {"CoolantProperties", "ProcessMachine", "Section"}
    calls = set(qelpro.__all__) - records
    calls |= {name for name in vars(qelpro.ProcessFile) if not name.startswith("_")}
    missing = {name for name in calls if not re.search(rf"\b{name}\b", text)}
    assert missing <= {"clear", "popitem", "setdefault"}  # those of a dict
