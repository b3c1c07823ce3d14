"""Tables of points as arrays, whatever the catalogue calls them."""

import re
import tempfile

import numpy as np
import pytest

import qelpro

NUMBERS = {"real", "integer", "mode"}


def tables():
    """Of every table of the catalogue: section, name, count key, point key, field kinds."""
    found = []
    with tempfile.TemporaryDirectory() as folder:
        for section, known in qelpro.catalogue().items():
            for point, entry in known["keys"].items():
                name = re.sub("[-_]?%d$", "", point)
                place = re.sub(r"%l?d", "3", section)
                if name == point or not name:
                    continue
                try:
                    made = qelpro.ProcessFile.from_dict({}, f"{folder}/a.pro", overwrite=True)
                    made.set_profile(place, name, [])
                except KeyError:
                    continue
                (count,) = made[place]
                kinds = ["mode" if f["name"] == "mode" else f["kind"] for f in entry["fields"]]
                found.append((place, name, count, point, kinds))
    assert len(found) > 40
    return found


def named(table):
    return f"{table[0]}.{table[1]}" if isinstance(table, tuple) else None


@pytest.mark.parametrize("table", tables(), ids=named)
def test_each_table_of_the_catalogue_reads_back_what_was_written(file, table):
    section, name, count, point, kinds = table
    if not set(kinds) <= NUMBERS:  # its points have texts
        with pytest.raises(ValueError):
            file.set_profile(section, name, np.ones((2, len(kinds))))
        return
    generator = np.random.default_rng(5)
    points = generator.uniform(-9, 1e6, (7, len(kinds)))
    points[:, [kind == "integer" for kind in kinds]] //= 1
    points[:, [kind == "mode" for kind in kinds]] = 2
    if len(kinds) == 1:
        points = points[:, 0]
    file.set_profile(section, name, points)
    read = file.profile(section, name)
    assert read.dtype == np.float64
    assert read.shape == points.shape
    assert read.tobytes() == points.tobytes()
    assert file[section][count] == 7
    # The first of the point's keys; "USerGP-7" of "UserGPSet".
    assert (
        len([key for key in file[section] if key.lower() == point.lower().replace("%d", "7")]) == 1
    )
    assert len(file[section]) == 8


def test_a_profile_is_what_its_entries_say(path):
    path.write_text("[Flow-1]\nFRSet = 2\nFR-1 = 0\t50\nFR-2 = 100\t40\n")
    read = qelpro.ProcessFile(path).profile("Flow-1", "FR")
    np.testing.assert_array_equal(read, [[0, 50], [100, 40]])
    np.testing.assert_array_equal(qelpro.ProcessFile(path).profile("[Flow-1]", "FR"), read)


def test_points_in_another_order_are_put_in_theirs(path):
    path.write_text("[Flow-1]\nFR-2 = 100 40\nFRSet = 2\nFR-1 = 0 50\n")
    read = qelpro.ProcessFile(path).profile("Flow-1", "FR")
    np.testing.assert_array_equal(read, [[0, 50], [100, 40]])


def test_a_missing_point_is_a_row_of_nan(path):
    path.write_text(
        "[Flow-1]\nFRSet = 4\nFR-1 = 0 50\nFR-3 = 100 40\nTimeConstFRSet = 2\nTimeConstFR-2 = 5\n"
    )
    file = qelpro.ProcessFile(path)
    nan = np.nan
    np.testing.assert_array_equal(
        file.profile("Flow-1", "FR"), [[0, 50], [nan, nan], [100, 40], [nan, nan]]
    )


def test_a_point_beyond_the_count_is_none(path):
    path.write_text("[Flow-1]\nFRSet = 1\nFR-1 = 0 50\nFR-2 = 100 40\nFR-9 = x\n")
    np.testing.assert_array_equal(qelpro.ProcessFile(path).profile("Flow-1", "FR"), [[0, 50]])


@pytest.mark.parametrize("count", ["0", "-3"])
def test_a_count_of_none_is_an_array_without_rows(path, count):
    path.write_text(f"[Flow-1]\nFRSet = {count}\nFR-1 = 0 50\n")
    assert qelpro.ProcessFile(path).profile("Flow-1", "FR").shape == (0, 2)


@pytest.mark.parametrize("count", ["x", "", "1.5", "99999999999", "2147483647"])
def test_a_count_that_cannot_be_is_a_value_error(path, count):
    path.write_text(f"[Flow-1]\nFRSet = {count}\nFR-1 = 0 50\n")
    with pytest.raises(ValueError, match=r"\[Flow-1\] FRSet"):
        qelpro.ProcessFile(path).profile("Flow-1", "FR")


@pytest.mark.parametrize("point", ["x", "", "1", "1 2 3", "1 x"])
def test_a_point_that_is_not_read_is_a_value_error(path, point):
    path.write_text(f"[Flow-1]\nFRSet = 2\nFR-1 = 0 50\nFR-2 = {point}\n")
    with pytest.raises(ValueError, match=r"\[Flow-1\] FR-2"):
        qelpro.ProcessFile(path).profile("Flow-1", "FR")


def test_what_is_not_there_is_a_key_error(file):
    for section, name in [
        ("Flow-9", "FR"),
        ("Flow-1", "NoSuch"),
        ("Mine", "FR"),
        ("Flow-1", "FRSet"),
    ]:
        with pytest.raises(KeyError):
            file.profile(section, name)
    del file["Flow-1"]["FRSet"]
    with pytest.raises(KeyError):
        file.profile("Flow-1", "FR")


def test_a_table_of_a_section_or_name_that_the_catalogue_has_not_is_not_written(file, unchanged):
    for section, name in [("Flow-1", "NoSuch"), ("Mine", "FR"), ("Flow-1", "FRSet"), ("", "FR")]:
        with pytest.raises(KeyError):
            file.set_profile(section, name, [[0, 1]])


def test_points_beyond_the_new_count_are_removed(path):
    path.write_text(
        "[Flow-1]\nFRSet = 3\nFR-1 = 0 1\nFR-2 = 1 1\nFR-3 = 2 1\nFR-9 = 3 3\nFillTime = 1\n"
    )
    file = qelpro.ProcessFile(path)
    file.set_profile("Flow-1", "FR", [[5, 6]])
    assert dict(file["Flow-1"]) == {"FRSet": 1, "FR-1": (5.0, 6.0), "FillTime": 1.0}
    file.set_profile("Flow-1", "FR", [])
    assert dict(file["Flow-1"]) == {"FRSet": 0, "FillTime": 1.0}
    file.set_profile("Flow-1", "FR", np.empty((0, 2)))
    assert file.profile("Flow-1", "FR").shape == (0, 2)


def test_a_table_is_stored_in_one_write_and_makes_its_section(path):
    path.write_text("")
    file = qelpro.ProcessFile(path)
    file.set_profile("Flow-2", "FR", [[0, 50], [100, 40]])
    assert file.to_dict() == {"Flow-2": {"FRSet": 2, "FR-1": [0, 50], "FR-2": [100, 40]}}


SHAPES = [
    1.5,
    [1, 2],
    [[1], [2]],
    [[1, 2, 3]],
    [[[1, 2]]],
    [[1, 2], [3]],
    np.zeros((2, 2, 2)),
    np.zeros((0, 3, 1)),
]


@pytest.mark.parametrize("points", SHAPES, ids=repr)
def test_another_shape_is_a_value_error(file, unchanged, points):
    with pytest.raises(ValueError):
        file.set_profile("Flow-1", "FR", points)


@pytest.mark.parametrize("value", [np.nan, np.inf, -np.inf, "nan"])
def test_what_is_not_finite_is_a_value_error(file, unchanged, value):
    with pytest.raises(ValueError):
        file.set_profile("Flow-1", "FR", [[0, 1], [value, 2]])


@pytest.mark.parametrize(
    "points", [None, "x", {}, object(), [["a", "b"]], [[None, 1]], b"ab"], ids=repr
)
def test_what_are_no_numbers_is_an_error(file, unchanged, points):
    with pytest.raises((TypeError, ValueError)):
        file.set_profile("Flow-1", "FR", points)


@pytest.mark.parametrize("name", [None, 1, b"FR"])
def test_what_is_no_name_is_a_type_error(file, unchanged, name):
    with pytest.raises(TypeError):
        file.profile("Flow-1", name)
    with pytest.raises(TypeError):
        file.set_profile("Flow-1", name, [[0, 1]])


@pytest.mark.parametrize(
    "points",
    [
        ((0, 50), (100, 40)),
        np.array([[0, 50], [100, 40]], dtype="i2"),
        np.array([[0, 100], [50, 40]], order="F").T,
    ],
    ids=["tuples", "short", "strided"],
)
def test_points_are_anything_that_numpy_takes(file, points):
    file.set_profile("Flow-1", "FR", points)
    np.testing.assert_array_equal(file.profile("Flow-1", "FR"), [[0, 50], [100, 40]])


def test_keys_with_odd_names_are_those_of_the_catalogue(file):
    """The points of "GP" of a user's gas profile begin with "USerGP" or "UserGP"."""
    known = qelpro.catalogue()["GasF-%d"]["keys"]
    point = next(key for key in known if re.fullmatch("U[sS]erGP-%d", key))
    file.set_profile("GasF-1", "UserGP", [[0, 1], [1, 2]])
    assert point.replace("%d", "2") in file["GasF-1"]
    np.testing.assert_array_equal(file.profile("GasF-1", "UserGP"), [[0, 1], [1, 2]])
    file.set_profile("RamPosition", "RP_IP", [[0, 1]])
    assert file["RamPosition"]["RP_IP-1"] == (0.0, 1.0)


def test_an_array_is_the_callers_own(file):
    read = file.profile("Flow-1", "FR")
    again = read.copy()
    read[:] = 7
    np.testing.assert_array_equal(file.profile("Flow-1", "FR"), again)


def test_points_of_other_modes_have_the_number_that_the_reader_gives_them(file):
    points = np.array([[1, 0, 1, -1], [1, 1, 2, 7], [2, 0, 4, -1]], dtype=float)
    file.set_profile("GateValve-1", "GC", points)
    np.testing.assert_array_equal(file.profile("GateValve-1", "GC"), points)
    assert file["GateValve-1"].text("GC-1") == "1\t0\t1"
