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
