"""What is stored reads back as the same value, or is refused."""

import array
import decimal
import fractions
import math
import random
import struct

import numpy as np
import pandas as pd
import pytest

import qelpro


def from_bits(bits):
    return struct.unpack("<d", struct.pack("<Q", bits))[0]


def bits_of(value):
    return struct.unpack("<Q", struct.pack("<d", value))[0]


def some_floats(count, seed):
    """Finite doubles of random bits, and those at the edges."""
    generator = random.Random(seed)
    found = [0.0, -0.0, 5e-324, -5e-324, 2.2250738585072014e-308, 2.225073858507201e-308]
    found += [1.7976931348623157e308, 0.1, 1 / 3, 1e22, 1e23, 9007199254740993.0, 123456789.125]
    while len(found) < count:
        value = from_bits(generator.getrandbits(64))
        if math.isfinite(value):
            found.append(value)
    return found


def test_floats_of_any_bits_survive(file):
    values = some_floats(1000, seed=1)
    file["Mine"] = {}
    with file.batch():
        file["Flow-1"] = {f"FR-{index + 1}": (0.0, value) for index, value in enumerate(values)}
    stored = [file["Flow-1"][f"FR-{index + 1}"][1] for index in range(len(values))]
    assert [bits_of(value) for value in stored] == [bits_of(value) for value in values]


def test_single_floats_survive(file):
    for value in some_floats(30, seed=2):
        file["Flow-1"]["FillTime"] = value
        assert bits_of(file["Flow-1"]["FillTime"]) == bits_of(value)


def test_floats_of_profiles_survive(file):
    values = np.array(some_floats(2000, seed=3)).reshape(-1, 2)
    file.set_profile("Flow-1", "FR", values)
    assert file.profile("Flow-1", "FR").tobytes() == values.tobytes()


def test_floats_have_the_fewest_digits_that_read_back(file):
    for value in some_floats(30, seed=4):
        file["Flow-1"]["FillTime"] = value
        text = file["Flow-1"].text("FillTime")
        # The exponent has three digits, and no point stands behind the last one.
        assert len(text) <= len(repr(value)) + 2
    for value, text in [(0.1, "0.1"), (1.5, "1.5"), (-0.0, "-0"), (240.0, "240")]:
        file["Flow-1"]["FillTime"] = value
        assert file["Flow-1"].text("FillTime") == text


def test_exponents_have_three_digits_as_in_process_files(file):
    file["Flow-1"]["MeltTemp"] = 2.5e-9
    file["Flow-1"]["FR-1"] = (0.0, 1e22)
    file.set_profile("Flow-1", "IP", [[1e-9, 2]])
    file["Mine"]["x"] = 1e-300
    assert file["Flow-1"].text("MeltTemp") == "2.5e-009"
    assert file["Flow-1"].text("FR-1") == "0\t1e+022"
    assert file["Flow-1"].text("IP-1") == "1e-009\t2"
    assert file["Mine"].text("x") == "1e-300"
    form = file.to_dict()
    text = qelpro.ProcessFile.from_dict(form, file.path.with_name("b.pro"))["Flow-1"].text("FR-1")
    assert text == "0\t1e+022"


@pytest.mark.parametrize(
    "value",
    [
        np.float64(2.5),
        np.float32(2.5),
        np.array(2.5),
        np.array([2.5]),
        [2.5],
        (2.5,),
        "2.5",
        pd.Series([2.5]),
        decimal.Decimal("2.5"),
        fractions.Fraction(5, 2),
        pd.Index([2.5]),
        pd.DataFrame({"a": [2.5]})["a"].iloc[0],
        array.array("d", [2.5]),
    ],
    ids=lambda value: type(value).__name__,
)
def test_a_real_is_taken_from_any_number(file, value):
    file["Flow-1"]["FillTime"] = value
    assert file["Flow-1"]["FillTime"] == 2.5


@pytest.mark.parametrize(
    "value",
    [3, 3.0, "3", np.int8(3), np.uint64(3), np.float32(3), np.array([3]), [3], pd.Series([3])],
    ids=lambda value: type(value).__name__,
)
def test_a_whole_number_is_taken_from_any_number_that_is_whole(file, value):
    file["Flow-1"]["FRSet"] = value
    assert file["Flow-1"]["FRSet"] == 3
    assert type(file["Flow-1"]["FRSet"]) is int


def test_ints_reach_to_the_ends_of_their_encoding(file):
    for value in (2**31 - 1, -(2**31), 0, -1):
        file["Flow-1"]["FRSet"] = value
        assert file["Flow-1"]["FRSet"] == value


def test_bools_are_1_and_0(file):
    for value in (True, False, np.True_, np.False_):
        file["Flow-1"]["FRSet"] = value
        assert file["Flow-1"].text("FRSet") == str(int(value))
        file["Flow-1"]["FillTime"] = value
        assert file["Flow-1"].text("FillTime") == str(int(value))


def test_an_int_of_any_length_is_a_real(file):
    file["Flow-1"]["FillTime"] = 2**70
    assert file["Flow-1"]["FillTime"] == float(2**70)


@pytest.mark.parametrize(
    "value",
    [
        (0, 50),
        [0, 50],
        np.array([0, 50]),
        np.array([[0.0, 50.0]])[0],
        pd.Series([0, 50]),
        range(0, 100, 50),
    ],
    ids=lambda value: type(value).__name__,
)
def test_several_fields_are_any_sequence(file, value):
    file["Flow-1"]["FR-1"] = value
    assert file["Flow-1"]["FR-1"] == (0.0, 50.0)
    assert all(type(field) is float for field in file["Flow-1"]["FR-1"])


def test_fields_of_several_kinds_are_a_tuple_of_them(file):
    value = (0.5, 1, 2.25, 3.5, 4)
    file["CoolChannel-1"]["TCP-1"] = value
    assert file["CoolChannel-1"]["TCP-1"] == value
    assert [type(field) for field in file["CoolChannel-1"]["TCP-1"]] == [
        float,
        int,
        float,
        float,
        int,
    ]


def test_a_text_of_several_fields_is_taken_as_it_stands(file):
    file["Flow-1"]["FR-1"] = "0.50 7"
    assert file["Flow-1"]["FR-1"] == (0.5, 7.0)
    assert file["Flow-1"].text("FR-1") == "0.50 7"


@pytest.mark.parametrize("text", ["x", "Ünï 溶", "a = b", "[no header]", "; no comment", "a\tb", ""])
def test_texts_survive(file, text):
    file["CaeHeader"]["Engineer"] = text
    assert file["CaeHeader"]["Engineer"] == text
    file["Mine"]["x"] = text
    assert file["Mine"]["x"] == text


@pytest.mark.parametrize("text", [" a b", "a b ", "a b\t", " "])
def test_blanks_around_a_text_would_not_be_read_and_are_refused(file, unchanged, text):
    with pytest.raises(ValueError, match="blanks"):
        file["CaeHeader"]["Engineer"] = text


class Endless:
    """Answers a question with itself."""

    def tolist(self):
        return [self]


def nested(depth):
    value = 1.0
    for _ in range(depth):
        value = [value]
    return value


own_member = []
own_member.append(own_member)

REFUSED = [
    None,
    object(),
    {},
    {"a": 1},
    {1.5},
    b"1.5",
    bytearray(b"1"),
    1j,
    np.complex128(1),
    lambda: 1,
    pd.NaT,
    pd.NA,
    pd.Timestamp("2026-01-01"),
    np.datetime64("2026-01-01"),
    [None],
    [[None]],
    np.array([None]),
    np.array([b"x"]),
    float,
    Ellipsis,
    [{}],
]


@pytest.mark.parametrize("value", REFUSED, ids=lambda value: type(value).__name__)
@pytest.mark.parametrize("key", ["FillTime", "FRSet", "FR-1", "Mine"])
def test_what_is_no_number_and_no_text_is_refused(file, unchanged, key, value):
    with pytest.raises((TypeError, ValueError)):
        file["Flow-1"][key] = value


@pytest.mark.parametrize("value", REFUSED[:13], ids=lambda value: type(value).__name__)
def test_what_is_no_number_and_no_text_is_a_type_error(file, unchanged, value):
    with pytest.raises(TypeError):
        file["Flow-1"]["FillTime"] = value
    with pytest.raises(TypeError):
        file["Flow-1"] = {"MeltTemp": 200, "FillTime": value}
    with pytest.raises(TypeError):
        file["Flow-1"].update(MeltTemp=200, FillTime=value)


@pytest.mark.parametrize(
    "value", [math.nan, math.inf, -math.inf, np.float32("nan"), np.array([np.inf])]
)
@pytest.mark.parametrize("key", ["FillTime", "FRSet", "Mine"])
def test_what_is_not_finite_is_a_value_error(file, unchanged, key, value):
    with pytest.raises(ValueError):
        file["Flow-1"][key] = value
    with pytest.raises(ValueError):
        file["Flow-1"]["FR-1"] = (0.0, value)


@pytest.mark.parametrize("text", ["nan", "inf", "-inf", "infinity", "1e999", 10**400])
def test_what_would_be_read_as_not_finite_is_a_value_error(file, unchanged, text):
    with pytest.raises(ValueError):
        file["Flow-1"]["FillTime"] = text


@pytest.mark.parametrize(
    "key, value",
    [
        ("FillTime", "fast"),
        ("FillTime", "1.5abc"),
        ("FillTime", ""),
        ("FillTime", "1,5"),
        ("FillTime", []),
        ("FillTime", [1, 2]),
        ("FillTime", "1 2"),
        ("FRSet", 1.5),
        ("FRSet", 2**31),
        ("FRSet", -(2**31) - 1),
        ("FRSet", 2**70),
        ("FRSet", "1.5"),
        ("FR-1", 1),
        ("FR-1", (1, 2, 3)),
        ("FR-1", "1"),
        ("FR-1", [[1, 2]]),
        ("FR-1", (1, "x")),
        ("Mine", "a\nb"),
        ("Mine", "a\rb"),
        ("Mine", "a\0b"),
        ("Mine", "\ud800"),
    ],
)
def test_what_the_encoding_cannot_hold_is_a_value_error(file, unchanged, key, value):
    with pytest.raises(ValueError):
        file["Flow-1"][key] = value


@pytest.mark.parametrize("key", ["", " ", "a b", "a=b", "a\nb", "a\0b", "[a]", ";a", "\ud800"])
def test_what_is_no_key_is_a_value_error(file, unchanged, key):
    with pytest.raises(ValueError):
        file["Flow-1"][key] = 1
    with pytest.raises(ValueError):
        file["Flow-1"] = {key: 1}


@pytest.mark.parametrize("section", ["", "a\nb", "a\0b", "\ud800"])
def test_what_is_no_section_is_a_value_error(file, unchanged, section):
    with pytest.raises(ValueError):
        file[section]["x"] = 1
    with pytest.raises(ValueError):
        file[section] = {"x": 1}


@pytest.mark.parametrize(
    "value", [own_member, nested(100_000), Endless()], ids=["of itself", "deep", "endless"]
)
def test_values_without_an_end_are_an_error_and_no_crash(file, unchanged, value):
    with pytest.raises((ValueError, RecursionError)):
        file["Flow-1"]["FillTime"] = value
    with pytest.raises((ValueError, TypeError, RecursionError)):
        qelpro.ProcessFile.from_dict({"Flow-1": {"FillTime": value}}, file.path.with_name("b.pro"))


def test_forms_without_an_end_are_an_error_and_no_crash(tmp_path):
    form = {}
    form["a"] = form
    with pytest.raises((ValueError, TypeError, RecursionError)):
        qelpro.ProcessFile.from_dict(form, tmp_path / "b.pro")
    assert list(tmp_path.iterdir()) == []


class Failing:
    def __index__(self):
        raise ZeroDivisionError("its own")


def test_what_a_value_raises_itself_is_raised(file, unchanged):
    with pytest.raises(ZeroDivisionError, match="its own"):
        file["Flow-1"]["FillTime"] = Failing()
    with pytest.raises(ZeroDivisionError, match="its own"):
        file["Flow-1"]["FR-1"] = [1.0, Failing()]


@pytest.mark.parametrize("text", ["1.5abc", "", "x", "1,5"])
def test_what_is_not_read_whole_tells_file_section_key_and_text(path, text):
    path.write_text(f"[Flow-1]\nMeltTemp = 1\nFillTime = {text}\n")
    section = qelpro.ProcessFile(path)["Flow-1"]
    with pytest.raises(ValueError) as raised:
        section["FillTime"]
    for part in (f"{path}:3:", "[Flow-1]", "FillTime", f'"{text}"'):
        assert part in str(raised.value)
    assert section.text("FillTime") == text
    assert section["MeltTemp"] == 1.0


def test_a_message_with_a_character_0_is_whole(file, unchanged):
    for section, key, value in [("a\0b", "x", 1), ("Mine", "a\0b", 1), ("Mine", "x", "a\0b")]:
        with pytest.raises(ValueError, match=r"character 0, where texts end"):
            file[section][key] = value
