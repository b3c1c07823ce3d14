"""Every public name tells what it is, and what the docstrings show is what happens."""

import ast
import doctest
import inspect
import shutil
from pathlib import Path

import numpy as np
import pytest
from conftest import ROOT

import qelpro
from qelpro import _items

PUBLIC = [name for name in qelpro.__all__ if not name.startswith("_")]


def told(thing):
    """Whether it has words of its own, not those of a class that it is built on."""
    words = inspect.getdoc(thing)
    return bool(words and words.strip()) and words not in {
        inspect.getdoc(object),
        inspect.getdoc(tuple),
    }


def members(kind):
    """What the package itself adds to a class."""
    for owner in kind.__mro__:
        if owner.__module__.startswith("qelpro."):
            yield from vars(owner).items()


def callables():
    for name in PUBLIC:
        thing = getattr(qelpro, name)
        yield name, thing
        if isinstance(thing, type):
            for member, value in members(thing):
                if isinstance(value, (property, classmethod)) or inspect.isfunction(value):
                    yield f"{name}.{member}", getattr(value, "__func__", value)


@pytest.mark.parametrize(
    "thing", [pytest.param(thing, id=name) for name, thing in callables() if "._" not in name]
)
def test_it_has_a_docstring(thing):
    assert told(thing)


def test_the_names_are_those_that_help_shows():
    public = {
        name
        for name, value in vars(qelpro).items()
        if not name.startswith("_") and not inspect.ismodule(value)
    }
    assert public == set(PUBLIC)
    assert told(qelpro)


@pytest.mark.parametrize("name", [name for name, _ in callables() if name.count("__") == 2])
def test_what_makes_it_a_mapping_has_a_docstring(name):
    usual = {"__init__", "__repr__", "__reduce__", "__new__", "__getnewargs__", "__init_subclass__"}
    owner, _, member = name.partition(".")
    assert member in usual or told(
        vars(getattr(qelpro, owner)).get(member) or getattr(getattr(qelpro, owner), member)
    )


@pytest.mark.parametrize(
    "record", [qelpro.Finding, qelpro.Difference, qelpro.Machine, qelpro.CoolantProperties]
)
def test_the_fields_of_a_record_are_told(record):
    for field in record._fields:
        assert f"``{field}``" in record.__doc__


@pytest.mark.parametrize(
    "kind", [qelpro.Process, qelpro.Inlet, qelpro.ProcessMachine, qelpro.HeatTransfer]
)
def test_the_attributes_of_a_process_are_told(kind):
    names = [name for owner in kind.__mro__ for name in vars(owner).get("__annotations__", {})]
    assert len(names) > 5
    for name in names:
        assert f"``{name}``" in inspect.getdoc(kind), name


def test_an_editor_finds_each_attribute_of_a_process_told():
    for kind in ast.parse(Path(_items.__file__).read_text()).body:
        if isinstance(kind, ast.ClassDef):
            for attribute, words in zip(kind.body[1::2], kind.body[2::2]):
                assert isinstance(attribute, ast.AnnAssign)
                assert isinstance(words, ast.Expr) and words.value.value.strip()


@pytest.mark.parametrize("what", ["shape", "ValueError", "KeyError", "units"])
def test_a_profile_tells_its_shape_its_units_and_its_errors(what):
    assert what in inspect.getdoc(qelpro.ProcessFile.profile)


@pytest.fixture
def study(tmp_path, monkeypatch):
    """The files that the docstrings name."""
    monkeypatch.chdir(tmp_path)
    qelpro.new("a.pro")
    qelpro.ProcessFile.from_dict(qelpro.ProcessFile("a.pro").to_dict(), "b.pro")[
        "Flow-1", "MeltTemp"
    ] = 240
    for name in ("machines.bank", "coolants.pcs"):
        shutil.copy(ROOT / "examples" / name, tmp_path)


EXAMPLES = [
    (name, test)
    for name, thing in [("qelpro", qelpro), *callables()]
    for test in doctest.DocTestFinder(recurse=False).find(thing, name, module=False)
    if test.examples
]


@pytest.mark.parametrize(
    "name, test", [pytest.param(*example, id=example[0]) for example in EXAMPLES]
)
def test_what_a_docstring_shows_happens(name, test, study):
    test.globs = {"qelpro": qelpro, "np": np, "f": qelpro.ProcessFile("a.pro")}
    said = []
    runner = doctest.DocTestRunner(optionflags=doctest.ELLIPSIS | doctest.NORMALIZE_WHITESPACE)
    failed, tried = runner.run(test, out=said.append)
    assert tried > 0 and failed == 0, "".join(said)


def test_the_docstrings_show_something():
    assert len(EXAMPLES) >= 10


def test_a_notebook_completes_sections_and_keys(study):
    file = qelpro.ProcessFile("a.pro")
    assert file._ipython_key_completions_() == list(file)
    assert file["Flow-1"]._ipython_key_completions_() == list(file["Flow-1"])
    assert file["Flow-9"]._ipython_key_completions_() == []
