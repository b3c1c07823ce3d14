"""A value is in the file before its statement ends, and nothing else is changed."""

import os
import stat

import pytest

import qelpro


def test_a_value_is_stored_before_the_statement_ends(file, path):
    file["Flow-1"]["FillTime"] = 1.5
    assert qelpro.ProcessFile(path)["Flow-1"]["FillTime"] == 1.5
    file["Flow-1", "FillTime"] = 2.5
    assert qelpro.ProcessFile(path)["Flow-1"]["FillTime"] == 2.5


def test_no_other_byte_is_changed(path):
    path.write_bytes(
        b"\xef\xbb\xbf[Flow-1]  ; a\r\n;FillTime = 0\r\nFillTime  =   1 \r\nx =\r\n; end"
    )
    qelpro.ProcessFile(path)["Flow-1"]["FillTime"] = 2
    assert path.read_bytes() == (
        b"\xef\xbb\xbf[Flow-1]  ; a\r\n;FillTime = 0\r\nFillTime  =   2 \r\nx =\r\n; end"
    )


def test_a_new_key_makes_its_section(path):
    path.write_text("[Flow-1]\nFillTime = 1\n")
    file = qelpro.ProcessFile(path)
    section = file["Flow-2"]
    assert "Flow-2" not in file
    section["FillTime"] = 3
    assert dict(file["Flow-2"]) == {"FillTime": 3.0}
    assert path.read_text().startswith("[Flow-1]\nFillTime = 1\n\n[Flow-2]\n")


def test_a_section_of_a_mapping_is_made(path):
    path.write_text("")
    file = qelpro.ProcessFile(path)
    file["Flow-3"] = {"FillTime": 1.5, "FR-1": (0, 50), "Mine": "x"}
    assert file.to_dict() == {"Flow-3": {"FillTime": 1.5, "FR-1": [0, 50], "Mine": "x"}}
    file["[Flow-4]"] = {}
    assert list(file) == ["Flow-3", "Flow-4"]


def test_a_section_of_a_mapping_holds_these_values_and_no_others(path):
    path.write_text(
        "[Flow-1]\n; why\nFillTime = 1\nMeltTemp = 2\nMeltTemp = 3\n[Flow-2]\nFillTime = 4\n"
    )
    file = qelpro.ProcessFile(path)
    file["Flow-1"] = {"MoldTemp": 60, "FillTime": 5}
    assert dict(file["Flow-1"]) == {"FillTime": 5.0, "MoldTemp": 60.0}
    assert dict(file["Flow-2"]) == {"FillTime": 4.0}
    assert "; why" in path.read_text()


def test_a_section_can_be_assigned_to_another(path):
    path.write_text("[Flow-1]\nFillTime = 1\nFR-1 = 0\t50\nMine = a\n")
    file = qelpro.ProcessFile(path)
    file["Flow-2"] = file["Flow-1"]
    assert dict(file["Flow-2"]) == {"FillTime": 1.0, "FR-1": (0.0, 50.0), "Mine": "a"}


def test_a_removed_key_is_gone_with_all_its_lines(path):
    path.write_text("[Flow-1]\nFillTime = 1\nMeltTemp = 2\nFillTime = 3\n")
    file = qelpro.ProcessFile(path)
    del file["Flow-1"]["FillTime"]
    assert path.read_text() == "[Flow-1]\nMeltTemp = 2\n"
    with pytest.raises(KeyError):
        del file["Flow-1"]["FillTime"]
    del file["Flow-1", "MeltTemp"]
    assert path.read_text() == "[Flow-1]\n"


def test_a_removed_section_is_gone_with_header_and_lines(path):
    path.write_text("[Flow-1]\nFillTime = 1\n[Flow-2]\nFillTime = 2\n[Flow-1]\nMeltTemp = 3\n")
    file = qelpro.ProcessFile(path)
    del file["Flow-1"]
    assert path.read_text() == "[Flow-2]\nFillTime = 2\n"
    with pytest.raises(KeyError):
        del file["Flow-1"]


def test_what_another_program_stored_meanwhile_stays(file, path):
    other = qelpro.ProcessFile(path)
    assert file["Flow-1"]["FillTime"] == 1.0
    other["Flow-1"]["MeltTemp"] = 241
    file["Flow-1"]["FillTime"] = 2
    assert (other["Flow-1"]["MeltTemp"], other["Flow-1"]["FillTime"]) == (241.0, 2.0)


def test_permissions_and_links_stay(file, path):
    path.chmod(0o640)
    link = path.with_name("link.pro")
    link.symlink_to(path.name)
    qelpro.ProcessFile(link)["Flow-1"]["FillTime"] = 3
    assert link.is_symlink()
    assert file["Flow-1"]["FillTime"] == 3.0
    assert stat.S_IMODE(path.stat().st_mode) == 0o640


def test_new_makes_a_file_and_takes_no_ones_place(tmp_path, path, unchanged):
    with pytest.raises(FileExistsError) as raised:
        qelpro.new(path)
    assert raised.value.filename == str(path)


def test_new_makes_what_the_tool_makes(path, tmp_path, tool):
    tool("new", tmp_path / "b.pro")
    texts = [(tmp_path / name).read_text().splitlines() for name in ("a.pro", "b.pro")]
    different = [pair for pair in zip(*texts) if pair[0] != pair[1]]
    assert all(line.startswith(("Date", "Name")) for pair in different for line in pair)
    assert len(texts[0]) == len(texts[1])


def test_a_path_is_a_str_or_pathlike_and_stays_where_it_was(path, monkeypatch, tmp_path):
    monkeypatch.chdir(path.parent)
    file = qelpro.ProcessFile(path.name)
    monkeypatch.chdir("/")
    file["Flow-1"]["FillTime"] = 4
    assert qelpro.ProcessFile(path)["Flow-1"]["FillTime"] == 4.0
    assert file.path == path
    assert os.fspath(file) == str(path)
    assert qelpro.ProcessFile(file)["Flow-1"]["FillTime"] == 4.0


def test_a_name_of_any_bytes_is_a_path(tmp_path):
    path = os.fsdecode(os.fsencode(tmp_path) + b"/\xff \xc3\xa4.pro")
    qelpro.new(path)
    assert qelpro.ProcessFile(path)["Flow-1"]["FillTime"] == 1.0
    assert os.listdir(tmp_path) == [os.path.basename(path)]


def test_a_dash_is_a_file_of_that_name(tmp_path, monkeypatch):
    monkeypatch.chdir(tmp_path)
    (tmp_path / "-").write_text("[Flow-1]\nFillTime = 2\n")
    assert qelpro.ProcessFile("-")["Flow-1"]["FillTime"] == 2.0


@pytest.mark.parametrize("wrong", [None, 1, 1.5, [], object()])
def test_what_is_no_path_is_a_type_error(wrong):
    with pytest.raises(TypeError):
        qelpro.ProcessFile(wrong)
    with pytest.raises(TypeError):
        qelpro.new(wrong)


def test_a_path_with_a_nul_is_a_value_error():
    with pytest.raises(ValueError):
        qelpro.ProcessFile("a\0b.pro")
