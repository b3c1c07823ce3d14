"""Differences are those of the tool."""

import itertools

import pytest
from conftest import ROOT, process_files

import qelpro

FILES = [ROOT / "examples/lid.pro", *sorted((ROOT / "tests/data").glob("*.pro"))]


def as_python_gives(printed):
    section = printed["section"]
    key = printed.get("key", printed.get("profile"))
    address = f"[{section}]" if key is None else f"{section}.{key}"
    return (printed["change"], address, printed.get("before"), printed.get("after"))


def plain(value):
    return list(value) if isinstance(value, tuple) else value


@pytest.mark.parametrize(
    "a, b", [pair for pair in itertools.permutations(FILES, 2)], ids=lambda path: path.name[:9]
)
def test_the_differences_are_the_tools(a, b, tool):
    printed = [as_python_gives(entry) for entry in tool("diff", a, b, "--json", status=1)]
    found = qelpro.diff(a, b)
    assert [(d.kind, d.address, plain(d.old), plain(d.new)) for d in found] == printed
    assert all(type(difference) is qelpro.Difference for difference in found)


@pytest.mark.parametrize("path", process_files(), ids=lambda path: path.name)
def test_a_file_does_not_differ_from_itself(path):
    assert qelpro.diff(path, path) == []


@pytest.fixture
def other(tmp_path):
    return tmp_path / "b.pro"


def test_differences_have_kind_address_and_typed_values(path, other):
    path.write_text(
        "[Flow-1]\nFillTime = 1\nFRSet=2\nFR-1=0 1\nFR-2=1 1\nMine = a\n"
        "[Old]\nx=1\n[Flow-3]\nFillTime=1\n"
    )
    other.write_text(
        "[Flow-1]\nFillTime = 1.50\nFRSet=1\nFR-1=0 2\nYours = b\n"
        "[Flow-3]\nMeltTemp=2\nFillTime=1.0\n[New]\n"
    )
    assert qelpro.diff(path, other) == [
        ("changed", "Flow-1.FillTime", 1.0, 1.5),
        ("changed", "Flow-1.FR", [[0, 1], [1, 1]], [[0, 2]]),
        ("removed", "Flow-1.Mine", "a", None),
        ("removed", "[Old]", None, None),
        ("added", "Flow-1.Yours", None, "b"),
        ("added", "Flow-3.MeltTemp", None, 2.0),
        ("added", "[New]", None, None),
    ]


def test_spelling_and_order_do_not_count(path, other):
    path.write_text("[Flow-1]\nFillTime = 1\nMeltTemp = 230\n")
    other.write_text("; other\n[Flow-1]\nMeltTemp=2.3e2\nFillTime\t= 1.000\n")
    assert qelpro.diff(path, other) == []


def test_a_tolerance_is_relative_to_the_larger_one(path, other):
    path.write_text("[Flow-1]\nFillTime = 100\n")
    other.write_text("[Flow-1]\nFillTime = 101\n")
    assert len(qelpro.diff(path, other)) == 1
    assert qelpro.diff(path, other, tolerance=0.0099) != []
    assert qelpro.diff(path, other, tolerance=0.00991) == []
    assert qelpro.diff(path, other, 1) == []


@pytest.mark.parametrize("wrong", [-1, -1e-300, float("nan")])
def test_a_tolerance_below_0_is_a_value_error(path, wrong):
    with pytest.raises(ValueError):
        qelpro.diff(path, path, tolerance=wrong)


@pytest.mark.parametrize("wrong", ["x", None])
def test_a_tolerance_that_is_no_number_is_a_type_error(path, wrong):
    with pytest.raises(TypeError):
        qelpro.diff(path, path, tolerance=wrong)


def test_the_file_that_is_not_there_is_named(path, other):
    for pair in ((path, other), (other, path)):
        with pytest.raises(FileNotFoundError) as raised:
            qelpro.diff(*pair)
        assert raised.value.filename == str(other)
