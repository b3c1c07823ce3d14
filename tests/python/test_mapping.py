"""A file and its sections are mappings all through."""

from collections.abc import Mapping, MutableMapping

import pytest

import qelpro

CONTENTS = "[Flow-1]\nFillTime = 1\nMeltTemp = 230\nFR-1 = 0\t50\n\n[Mine]\nx = a\n"


@pytest.fixture
def file(path):
    path.write_text(CONTENTS)
    return qelpro.ProcessFile(path)


def test_both_are_mutable_mappings(file):
    for mapping in (file, file["Flow-1"]):
        assert isinstance(mapping, MutableMapping)


def test_a_file_has_its_sections_in_their_order(file):
    assert list(file) == ["Flow-1", "Mine"]
    assert list(file.keys()) == ["Flow-1", "Mine"]
    assert list(reversed(list(file))) == ["Mine", "Flow-1"]
    assert len(file) == 2
    assert [name for name, _ in file.items()] == ["Flow-1", "Mine"]
    assert [section.name for section in file.values()] == ["Flow-1", "Mine"]


def test_a_section_has_its_keys_in_their_order(file):
    section = file["Flow-1"]
    assert list(section) == list(section.keys()) == ["FillTime", "MeltTemp", "FR-1"]
    assert list(section.values()) == [1.0, 230.0, (0.0, 50.0)]
    assert list(section.items())[2] == ("FR-1", (0.0, 50.0))
    assert dict(section) == {"FillTime": 1.0, "MeltTemp": 230.0, "FR-1": (0.0, 50.0)}
    assert len(section) == 3


def test_in_tells_sections_and_keys(file):
    assert "Flow-1" in file and "[Flow-1]" in file and ("Flow-1", "FillTime") in file
    assert "Flow-2" not in file and ("Flow-1", "x") not in file and ("Flow-2", "x") not in file
    assert "FillTime" in file["Flow-1"] and "x" not in file["Flow-1"] and "x" not in file["Flow-2"]


@pytest.mark.parametrize(
    "wrong", [None, 1, 1.5, b"Flow-1", (), ("Flow-1",), ("a", "b", "c"), (1, 2)]
)
def test_what_is_no_name_is_in_nothing(file, path, unchanged_contents, wrong):
    assert wrong not in file
    assert wrong not in file["Flow-1"]
    assert file.get(wrong) is None
    assert file["Flow-1"].get(wrong, 3) == 3
    for container in (file, file["Flow-1"]):
        with pytest.raises(KeyError):
            container[wrong]
        with pytest.raises(KeyError):
            del container[wrong]


@pytest.fixture
def unchanged_contents(path):
    yield
    assert path.read_text() == CONTENTS


@pytest.mark.parametrize("wrong", [None, 1, b"Flow-1"])
def test_what_is_no_name_is_not_set(file, unchanged_contents, wrong):
    with pytest.raises(TypeError):
        file[wrong] = {"FillTime": 1}
    with pytest.raises(TypeError):
        file["Flow-1"][wrong] = 1


def test_unhashable_names_are_in_nothing(file):
    assert [] not in file["Flow-1"]
    assert [] not in file


def test_get_gives_the_section_the_value_or_the_default(file):
    assert file.get("Flow-1")["FillTime"] == 1.0
    assert file.get("Flow-9") is None
    assert file.get("Flow-9", 7) == 7
    assert file.get(("Flow-1", "FillTime")) == 1.0
    assert file["Flow-1"].get("FillTime") == 1.0
    assert file["Flow-1"].get("x") is None
    assert file["Flow-9"].get("x", 7) == 7


def test_mappings_of_the_same_values_are_equal(file, tmp_path):
    assert file["Flow-1"] == {"FillTime": 1.0, "MeltTemp": 230.0, "FR-1": (0.0, 50.0)}
    assert file["Flow-1"] != {"FillTime": 1.0}
    assert file["Flow-1"] != file["Mine"]
    (tmp_path / "b.pro").write_text(
        "[Mine]\nx=a\n[Flow-1]\nMeltTemp = 230.0\nFR-1=0 50\nFillTime=1\n"
    )
    assert file == qelpro.ProcessFile(tmp_path / "b.pro")
    (tmp_path / "b.pro").write_text("[Mine]\nx=a\n")
    assert file != qelpro.ProcessFile(tmp_path / "b.pro")


def test_setdefault_stores_what_is_missing(file):
    assert file["Flow-1"].setdefault("FillTime", 9) == 1.0
    assert file["Flow-1"].setdefault("MoldTemp", 60) == 60
    assert file["Flow-1"]["MoldTemp"] == 60.0
    assert dict(file.setdefault("Flow-2", {"FillTime": 2})) == {"FillTime": 2.0}
    assert dict(file.setdefault("Flow-2", {"FillTime": 3})) == {"FillTime": 2.0}
    assert dict(file.setdefault("Flow-3")) == {}
    assert "Flow-3" in file


def test_pop_removes_and_gives(file, path):
    assert file["Flow-1"].pop("FillTime") == 1.0
    assert "FillTime" not in file["Flow-1"]
    assert file["Flow-1"].pop("FillTime", 5) == 5
    with pytest.raises(KeyError):
        file["Flow-1"].pop("FillTime")
    assert file.pop(("Flow-1", "MeltTemp")) == 230.0
    assert file.pop("Flow-1") == {"FR-1": (0.0, 50.0)}
    assert file.pop("Flow-1", None) is None
    with pytest.raises(KeyError):
        file.pop("Flow-1")
    assert path.read_text() == "[Mine]\nx = a\n"


def test_popitem_removes_the_last(file):
    assert file["Flow-1"].popitem() == ("FR-1", (0.0, 50.0))
    assert file.popitem() == ("Mine", {"x": "a"})
    assert list(file) == ["Flow-1"]
    file["Flow-1"].clear()
    with pytest.raises(KeyError):
        file["Flow-1"].popitem()
    file.clear()
    with pytest.raises(KeyError):
        file.popitem()


def test_update_is_one_write_or_none(file, path):
    file["Flow-1"].update({"FillTime": 2}, MoldTemp=60)
    file["Flow-1"].update([("MeltTemp", 231)])
    assert dict(file["Flow-1"]) == {
        "FillTime": 2.0,
        "MeltTemp": 231.0,
        "FR-1": (0.0, 50.0),
        "MoldTemp": 60.0,
    }
    before = path.read_bytes()
    with pytest.raises(ValueError):
        file["Flow-1"].update({"FillTime": 3, "MeltTemp": "hot"})
    with pytest.raises(TypeError):
        file.update({"Flow-2": {"FillTime": 3}, "Flow-3": 5})
    assert path.read_bytes() == before
    file.update({"Flow-2": {"FillTime": 3}}, New={"x": 1})
    assert list(file) == ["Flow-1", "Mine", "Flow-2", "New"]


def test_clear_empties(file, path):
    file["Flow-1"].clear()
    assert "Flow-1" in file and len(file["Flow-1"]) == 0
    file.clear()
    assert list(file) == []


def test_merging_is_not_offered_in_place_of_a_file(file):
    with pytest.raises(TypeError):
        file | {}


def test_a_mapping_that_is_changed_while_it_is_walked_is_walked_as_it_was(file):
    for key in file["Flow-1"]:
        del file["Flow-1"][key]
    assert list(file["Flow-1"]) == []


def test_unhashable_as_other_mutable_mappings(file):
    with pytest.raises(TypeError):
        hash(file)


def test_a_section_can_be_matched(file):
    match file["Flow-1"]:
        case {"FillTime": 1.0, **rest}:
            assert set(rest) == {"MeltTemp", "FR-1"}
        case _:
            pytest.fail("no mapping to match")


def test_a_section_is_only_made_from_a_mapping(file, unchanged_contents):
    for wrong in (None, 1, "x", [("FillTime", 1)]):
        with pytest.raises(TypeError):
            file["Flow-2"] = wrong


def test_a_section_is_made_from_any_mapping(file):
    class Values(Mapping):
        def __getitem__(self, key):
            return {"FillTime": 8}[key]

        def __iter__(self):
            return iter(["FillTime"])

        def __len__(self):
            return 1

    file["Flow-2"] = Values()
    assert dict(file["Flow-2"]) == {"FillTime": 8.0}


def test_messages_and_reprs_name_the_file(file, path):
    assert repr(file) == f"ProcessFile({str(path)!r})"
    assert repr(file["Flow-1"]) == f"<Section [Flow-1] of {str(path)!r}>"
    with pytest.raises(KeyError, match=r"a\.pro: \[Flow-1\] x: not found"):
        file["Flow-1"]["x"]


def test_an_iteration_over_items_and_values_sees_one_moment(path, file):
    for view in (file["Flow-1"].items, file["Flow-1"].values):
        before = list(view())
        rest = iter(view())
        first = next(rest)
        path.write_text("[Flow-1]\nFillTime = 99\n")
        assert [first, *rest] == before
        assert list(view()) != before
        path.unlink()
        qelpro.new(path)
