"""Many changes, one write, all or nothing."""

import os
import pickle

import pytest

import qelpro


class Stop(Exception):
    pass


def identity(path):
    status = os.stat(path)
    return (status.st_ino, status.st_mtime_ns)


def test_many_changes_are_one_write_at_the_end(file, path):
    before = path.read_bytes()
    with file.batch() as same:
        assert same is file
        file["Flow-1"]["FillTime"] = 2
        file["Flow-7"] = {"FillTime": 3}
        file.set_profile("Flow-1", "FR", [[0, 1]])
        del file["Unit"]
        assert path.read_bytes() == before
    after = qelpro.ProcessFile(path)
    assert after["Flow-1"]["FillTime"] == 2.0
    assert after["Flow-7"]["FillTime"] == 3.0
    assert after.profile("Flow-1", "FR").tolist() == [[0, 1]]
    assert "Unit" not in after


def test_reads_inside_see_the_changes_made_in_it(file):
    with file.batch():
        file["Flow-1"]["FillTime"] = 2
        file["Flow-7"]["MeltTemp"] = 200
        del file["Unit"]
        file.set_profile("Flow-1", "FR", [[0, 1]])
        assert file["Flow-1"]["FillTime"] == 2.0
        assert dict(file["Flow-7"]) == {"MeltTemp": 200.0}
        assert "Unit" not in file and "Unit" not in list(file)
        assert file.inlets == [1, 7]
        assert file.profile("Flow-1", "FR").tolist() == [[0, 1]]
        assert file.to_dict()["Flow-1"]["FillTime"] == 2


def test_nothing_is_stored_where_the_block_raises(file, unchanged):
    before = file.to_dict()
    with pytest.raises(Stop):
        with file.batch():
            file["Flow-1"]["FillTime"] = 2
            raise Stop
    assert file.to_dict() == before


def test_a_refused_change_stores_nothing(file, unchanged):
    with pytest.raises(ValueError):
        with file.batch():
            file["Flow-1"]["MeltTemp"] = 200
            file["Flow-1"]["FillTime"] = "fast"


def test_a_refused_change_that_is_caught_is_left_out(file):
    with file.batch():
        file["Flow-1"]["MeltTemp"] = 200
        with pytest.raises(ValueError):
            file["Flow-1"]["FillTime"] = "fast"
        with pytest.raises(KeyError):
            del file["Flow-9"]
    assert (file["Flow-1"]["MeltTemp"], file["Flow-1"]["FillTime"]) == (200.0, 1.0)


def test_a_batch_without_changes_writes_nothing(file, path):
    before = identity(path)
    with file.batch():
        assert file["Flow-1"]["FillTime"] == 1.0
    assert identity(path) == before


def test_a_batch_inside_a_batch_is_part_of_it(file, path):
    before = path.read_bytes()
    with file.batch():
        file["Flow-1"]["MeltTemp"] = 200
        with file.batch():
            file["Flow-1"]["FillTime"] = 2
        assert path.read_bytes() == before
    assert (file["Flow-1"]["MeltTemp"], file["Flow-1"]["FillTime"]) == (200.0, 2.0)


def test_of_a_batch_inside_a_batch_that_raises_nothing_is_left(file):
    with file.batch():
        file["Flow-1"]["MeltTemp"] = 200
        with pytest.raises(Stop):
            with file.batch():
                file["Flow-1"]["MeltTemp"] = 300
                file["Flow-1"]["FillTime"] = 2
                raise Stop
        assert file["Flow-1"]["MeltTemp"] == 200.0
    assert (file["Flow-1"]["MeltTemp"], file["Flow-1"]["FillTime"]) == (200.0, 1.0)


def test_the_outer_batch_takes_the_inner_one_with_it(file, unchanged):
    with pytest.raises(Stop):
        with file.batch():
            with file.batch():
                file["Flow-1"]["FillTime"] = 2
            raise Stop


def test_the_file_is_usable_after_either_end(file):
    with pytest.raises(Stop):
        with file.batch():
            raise Stop
    file["Flow-1"]["FillTime"] = 2
    with file.batch():
        file["Flow-1"]["FillTime"] = 3
    file["Flow-1"]["FillTime"] = 4
    assert file["Flow-1"]["FillTime"] == 4.0


def test_changes_by_others_meanwhile_stay(file, path):
    with file.batch():
        file["Flow-1"]["FillTime"] = 2
        qelpro.ProcessFile(path)["Flow-1"]["MeltTemp"] = 200
    assert (file["Flow-1"]["MeltTemp"], file["Flow-1"]["FillTime"]) == (200.0, 2.0)


def test_nothing_is_stored_where_another_took_away_what_is_changed(file, path):
    with pytest.raises(KeyError):
        with file.batch():
            file["Flow-1"]["MeltTemp"] = 200
            del file["Unit"]
            other = qelpro.ProcessFile(path)
            del other["Unit"]
            before = path.read_bytes()
    assert path.read_bytes() == before


def test_a_batch_of_a_file_that_vanished_is_told_at_its_begin(file, path):
    path.unlink()
    with pytest.raises(FileNotFoundError):
        with file.batch():
            pytest.fail("the block is not entered")


def test_a_batch_whose_file_vanishes_stores_nothing(file, path):
    with pytest.raises(FileNotFoundError):
        with file.batch():
            file["Flow-1"]["FillTime"] = 2
            path.unlink()
    assert not path.exists()


def test_an_open_batch_does_not_travel(file):
    with file.batch():
        with pytest.raises(ValueError):
            pickle.dumps(file)


def test_later_changes_of_a_batch_build_on_the_earlier_ones(path):
    path.write_text("")
    file = qelpro.ProcessFile(path)
    with file.batch():
        for number in range(1, 51):
            file[f"Flow-{number}"] = {"FillTime": number, "MeltTemp": 1}
            del file[f"Flow-{number}"]["MeltTemp"]
            if number % 2:
                del file[f"Flow-{number}"]
    assert file.inlets == list(range(2, 51, 2))
    assert [dict(section) for section in file.values()] == [
        {"FillTime": n} for n in range(2, 51, 2)
    ]
