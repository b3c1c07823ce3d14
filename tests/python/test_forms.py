"""A file as a dict of dicts, and back."""

import json
import math

import pytest
from conftest import process_files

import qelpro


def is_utf_16(path):
    return path.read_bytes()[:2] in (b"\xff\xfe", b"\xfe\xff")


FILES = [path for path in process_files() if not is_utf_16(path)]


def same(a, b):
    """Equal, of the same types, to the last bit and in the same order."""
    if isinstance(a, dict):
        return (
            isinstance(b, dict) and list(a) == list(b) and all(same(a[name], b[name]) for name in a)
        )
    if isinstance(a, list):
        return isinstance(b, list) and len(a) == len(b) and all(map(same, a, b))
    return type(a) is type(b) and a == b and str(a) == str(b)


@pytest.mark.parametrize("path", FILES, ids=lambda path: path.name)
def test_the_form_is_what_the_tool_exports(path, tool):
    # The tool writes a byte that is no UTF-8 as JSON has room for it.
    exported = tool("export", path)
    form = qelpro.ProcessFile(path).to_dict()
    text = json.dumps(form, ensure_ascii=True)
    if "\\udc" in text:
        assert list(form) == list(exported)
        return
    assert same(form, exported)


@pytest.mark.parametrize("path", FILES, ids=lambda path: path.name)
def test_a_file_of_the_form_has_the_same_form(path, tmp_path):
    form = qelpro.ProcessFile(path).to_dict()
    made = qelpro.ProcessFile.from_dict(form, tmp_path / "b.pro")
    assert made.path == tmp_path / "b.pro"
    assert same(made.to_dict(), form)


def test_the_form_of_a_new_file_comes_back(file, tmp_path):
    form = file.to_dict()
    assert same(qelpro.ProcessFile.from_dict(form, tmp_path / "b.pro").to_dict(), form)
    assert qelpro.ProcessFile(tmp_path / "b.pro").check() == [
        finding._replace(file=str(tmp_path / "b.pro"), line=other.line)
        for finding, other in zip(file.check(), qelpro.ProcessFile(tmp_path / "b.pro").check())
    ]


def test_what_the_encoding_does_not_read_is_the_text(path, tmp_path):
    path.write_text(
        "[Flow-1]\nFillTime = 1.5abc\nFR-1 = 0\nMeltTemp = nan\nMoldTemp = inf\n"
        "FRSet = 9999999999\n"
    )
    form = qelpro.ProcessFile(path).to_dict()
    assert form["Flow-1"] == {
        "FillTime": "1.5abc",
        "FR-1": "0",
        "MeltTemp": "nan",
        "MoldTemp": "inf",
        "FRSet": "9999999999",
    }
    assert same(qelpro.ProcessFile.from_dict(form, tmp_path / "b.pro").to_dict(), form)


def test_floats_of_the_form_are_those_of_the_file(file):
    value = math.nextafter(0.1, 1)
    file["Flow-1"]["FillTime"] = value
    assert file.to_dict()["Flow-1"]["FillTime"] == value


def test_from_dict_takes_no_ones_place(path, unchanged):
    with pytest.raises(FileExistsError) as raised:
        qelpro.ProcessFile.from_dict({"Flow-1": {"FillTime": 2}}, path)
    assert raised.value.filename == str(path)


def test_from_dict_overwrites_where_it_is_told_to(path):
    made = qelpro.ProcessFile.from_dict({"Flow-1": {"FillTime": 2}}, path, overwrite=True)
    assert made.to_dict() == {"Flow-1": {"FillTime": 2.0}}


SURFACE = "SURFACE ELEMENT BOUNDARY CONDITION NAME"
WRONG = [
    None,
    5,
    "x",
    [("Flow-1", {})],
    {"Flow-1": 5},
    {"Flow-1": None},
    {"Flow-1": {"FillTime": None}},
    {"Flow-1": {"FillTime": {"a": 1}}},
    {"Flow-1": {"FillTime": math.nan}},
    {1: {}},
    {"Flow-1": {1: 2}},
    {"Flow-1": {"a b": 1}},
    {"a\nb": {"x": 1}},
    {"Flow-1": {"x": "a\nb"}},
    {"Flow-1": [1]},
    {SURFACE: {"lines": 5}},
    {SURFACE: {"lines": [None]}},
    {SURFACE: {"x": 1}},
]


@pytest.mark.parametrize("form", WRONG, ids=repr)
def test_what_no_file_can_hold_is_refused_and_nothing_written(tmp_path, form):
    with pytest.raises((TypeError, ValueError)):
        qelpro.ProcessFile.from_dict(form, tmp_path / "b.pro")
    assert list(tmp_path.iterdir()) == []


@pytest.mark.parametrize("form", WRONG, ids=repr)
def test_what_no_file_can_hold_overwrites_nothing(path, unchanged, form):
    with pytest.raises((TypeError, ValueError)):
        qelpro.ProcessFile.from_dict(form, path, overwrite=True)


def test_a_file_of_a_subclass_is_of_the_subclass(tmp_path):
    class Mine(qelpro.ProcessFile):
        pass

    assert type(Mine.from_dict({}, tmp_path / "b.pro")) is Mine


def test_the_form_of_mappings_and_tuples_is_taken_too(file, tmp_path):
    made = qelpro.ProcessFile.from_dict(
        {"Flow-1": file["Flow-1"], "Flow-2": {"FR-1": (0, 5)}}, tmp_path / "b.pro"
    )
    assert made["Flow-1"] == file["Flow-1"]
    assert made["Flow-2"]["FR-1"] == (0.0, 5.0)
