"""Lines that have a position and no key."""

import pytest

import qelpro

HEADER = "SURFACE ELEMENT BOUNDARY CONDITION NAME"
CONTENTS = f"[A]\nx=1\n[{HEADER}]\n1 2 3\n\n; c\nfoo\n[B]\ny=1\n"
LINES = ["1 2 3", "", "; c", "foo"]


@pytest.fixture
def file(path):
    path.write_text(CONTENTS)
    return qelpro.ProcessFile(path)


@pytest.fixture(params=["SURFACE", HEADER, f"[{HEADER}]"])
def section(file, request):
    return file[request.param]


def lines_of(path):
    text = path.read_text()
    return text[text.index(f"[{HEADER}]\n") + len(HEADER) + 3 : text.index("[B]")].splitlines()


def test_the_lines_are_a_list_of_texts(section):
    assert section["lines"] == LINES
    assert list(section) == ["lines"]
    assert dict(section) == {"lines": LINES}
    assert "lines" in section and len(section) == 1


def test_the_form_of_the_file_has_them(file, tmp_path):
    assert file.to_dict()[HEADER] == {"lines": LINES}
    made = qelpro.ProcessFile.from_dict(file.to_dict(), tmp_path / "b.pro")
    assert made["SURFACE"]["lines"] == LINES


@pytest.mark.parametrize(
    "lines",
    [
        ["a"],
        ["a", "b"],
        ("a", "b"),
        [],
        LINES,
        [*LINES, "more"],
        ["1 2 3", "", "x", "foo", "y", "z"],
    ],
)
def test_the_lines_are_stored_as_they_are_given(section, path, lines):
    section["lines"] = lines
    assert section["lines"] == list(lines)
    assert lines_of(path) == list(lines)
    assert path.read_text().startswith("[A]\nx=1\n") and path.read_text().endswith("[B]\ny=1\n")


def test_a_section_is_made_of_lines(path):
    path.write_text("[A]\nx=1\n")
    file = qelpro.ProcessFile(path)
    file["SURFACE"]["lines"] = ["1 2", "3"]
    assert path.read_text() == f"[A]\nx=1\n\n[{HEADER}]\n1 2\n3\n"
    del file["SURFACE"]
    assert "SURFACE" not in file
    file["SURFACE"] = {"lines": ["4"]}
    assert file["SURFACE"]["lines"] == ["4"]
    assert list(file) == ["A", HEADER]


def test_a_section_without_lines_can_be_made(path):
    path.write_text("")
    file = qelpro.ProcessFile(path)
    file["SURFACE"] = {}
    assert file["SURFACE"]["lines"] == []
    assert list(file) == [HEADER]


def test_the_lines_can_be_removed(section, path):
    del section["lines"]
    assert section["lines"] == []
    section["lines"] = ["a"]
    section.clear()
    assert section["lines"] == []
    assert "[B]\ny=1\n" in path.read_text()


def test_one_line_has_an_address(section, path):
    assert section["#1"] == "1 2 3"
    section["#4"] = "bar"
    assert section["lines"] == ["1 2 3", "", "; c", "bar"]


def test_pop_gives_the_lines(file):
    assert file["SURFACE"].pop("lines") == LINES
    file["SURFACE"]["lines"] = ["a"]
    assert file.pop("SURFACE") == {"lines": ["a"]}
    assert "SURFACE" not in file


@pytest.mark.parametrize(
    "lines",
    [5, "ab", None, [5], [None], ["a\nb"], ["[Flow-1]"], {"a": 1}, [["a"]], ["a\0b"]],
    ids=repr,
)
def test_what_are_no_lines_is_refused(section, path, lines):
    with pytest.raises((TypeError, ValueError)):
        section["lines"] = lines
    with pytest.raises((TypeError, ValueError)):
        section.update(lines=lines)
    assert path.read_text() == CONTENTS


def test_a_key_is_refused(file, path):
    with pytest.raises(ValueError):
        file["SURFACE"]["x"] = 1
    with pytest.raises(ValueError):
        file["SURFACE"] = {"lines": [], "x": 1}
    with pytest.raises(KeyError):
        file["SURFACE"]["x"]
    with pytest.raises(KeyError):
        del file["SURFACE"]["x"]
    assert path.read_text() == CONTENTS


def test_a_batch_sees_its_own_lines(file):
    with file.batch():
        file["SURFACE"]["lines"] = ["a", "b"]
        assert file["SURFACE"]["lines"] == ["a", "b"]
        file["SURFACE"]["#2"] = "c"
        del file["SURFACE"]["#1"]
    assert file["SURFACE"]["lines"] == ["c"]
