"""A file is a mapping of mappings, typed by the catalogue."""

import pytest

import qelpro


def test_a_value_has_the_type_of_its_key(file):
    assert file["Flow-1"]["FillTime"] == 1.0
    assert type(file["Flow-1"]["FillTime"]) is float
    assert type(file["Flow-1"]["FRSet"]) is int
    assert file["Flow-1"]["FR-1"] == (0.0, 50.0)
    assert type(file["Unit"]["Time"]) is str


def test_what_is_not_there_is_a_key_error(file):
    with pytest.raises(KeyError):
        file["Flow-1"]["NoSuchKey"]
    with pytest.raises(KeyError):
        file["Flow-9"]["FillTime"]
    with pytest.raises(KeyError):
        list(file["Flow-9"])


def test_a_value_that_is_not_read_whole_is_a_value_error_that_tells_where(path):
    path.write_text("[Flow-1]\nFillTime = 1.5abc\n")
    with pytest.raises(ValueError, match=r'a\.pro:2: \[Flow-1\] FillTime: "1\.5abc"'):
        qelpro.ProcessFile(path)["Flow-1"]["FillTime"]
    assert qelpro.ProcessFile(path)["Flow-1"].text("FillTime") == "1.5abc"
    assert qelpro.ProcessFile(path).to_dict() == {"Flow-1": {"FillTime": "1.5abc"}}


def test_a_pair_of_names_is_a_value(file):
    assert file["Flow-1", "FillTime"] == 1.0
    assert file["[Flow-1]", "FillTime"] == 1.0
    with pytest.raises(KeyError):
        file["Flow-1", "NoSuchKey"]
    with pytest.raises(KeyError):
        file["Flow-1", "FillTime", "more"]


def test_a_key_that_the_catalogue_does_not_know_is_its_text(path):
    path.write_text("[Flow-1]\nMyOwn = 1.50 \n[Mine]\nx = 2\n")
    file = qelpro.ProcessFile(path)
    assert file["Flow-1"]["MyOwn"] == "1.50"
    assert file["Mine"]["x"] == "2"


def test_of_several_encodings_of_a_key_the_first_that_reads_it_whole_counts(path):
    path.write_text(
        "[CaeHeader]\nFileVersion = 12\n[EjectCriteria]\nSensorNode-1 = 3\nSensorNode-2 = 3 1.5\n"
    )
    file = qelpro.ProcessFile(path)
    assert file["CaeHeader"]["FileVersion"] == "12"
    assert list(file["EjectCriteria"].values()) == [3, (3, 1.5)]


def test_text_is_what_stands_there_without_the_blanks_around_it(path):
    path.write_text("[Flow-1]\nFillTime  =  1.50\t \n")
    section = qelpro.ProcessFile(path)["Flow-1"]
    assert section["FillTime"] == 1.5
    assert section.text("FillTime") == "1.50"
    with pytest.raises(KeyError):
        section.text("MeltTemp")


def test_each_read_sees_the_file_as_it_is_now(file, path):
    section = file["Flow-1"]
    path.write_text("[Flow-1]\nFillTime = 7\n")
    assert section["FillTime"] == 7.0
    assert list(file) == ["Flow-1"]
    path.write_text("[Flow-2]\n")
    with pytest.raises(KeyError):
        section["FillTime"]


def test_bytes_that_are_no_utf_8_are_read_and_stored_as_they_are(path):
    path.write_bytes(b"[CaeHeader]\nEngineer = M\xfcller\n")
    file = qelpro.ProcessFile(path)
    engineer = file["CaeHeader"]["Engineer"]
    assert engineer.encode("utf-8", "surrogateescape") == b"M\xfcller"
    file["CaeHeader"]["Project"] = engineer
    assert path.read_bytes().splitlines()[-1].endswith(b"= M\xfcller")


def test_the_first_entry_and_the_first_section_of_a_name_count(path):
    path.write_text("[Flow-1]\nFillTime = 1\nFillTime = 2\n[Flow-1]\nFillTime = 3\nMeltTemp = 4\n")
    file = qelpro.ProcessFile(path)
    assert list(file) == ["Flow-1"]
    assert dict(file["Flow-1"]) == {"FillTime": 1.0}


def test_inlets_are_the_numbers_of_their_sections(path):
    names = ["Flow-12", "Pack-3", "Flow-2", "Flow-EM7", "Flow-4-Skin", "Flow", "Flow-0", "Flow--1"]
    path.write_text("".join(f"[{name}]\n" for name in [*names, "CaeHeader", "Flow-2"]))
    assert qelpro.ProcessFile(path).inlets == [2, 12]
    path.write_text("")
    assert qelpro.ProcessFile(path).inlets == []
