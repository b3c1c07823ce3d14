"""Many files as one table: what it holds is what reading each file by itself gives."""

import fnmatch
import math
import os
import random
import signal
import threading
import time
from pathlib import Path

import numpy as np
import pandas as pd
import pytest
from pandas.testing import assert_frame_equal

import qelpro
from qelpro import _engine

WORDS = ["Flow-1.FillTime", "Flow-*.MeltTemp", "Flow-1.FRSet", "Flow-1.FR-1", "Flow-2.FillTime", "Own.Text"]


def written(folder, **texts):
    paths = []
    for name, text in texts.items():
        paths.append(folder / f"{name}.pro")
        paths[-1].write_bytes(text if isinstance(text, bytes) else text.encode())
    return paths


def random_text(chance):
    lines = ["[Flow-1]", "[Flow-2]", "[Flow-12]", "[Own]", "[Flow-1] old", "FillTime = 1.5", "FillTime = 3,5", "FillTime", "MeltTemp=2e2"]
    lines += [" MeltTemp = 5", "MeltTemp\t = 240", "FRSet = 3", "FRSet = 2.5", "FR-1 = 0 50", "FR-1 = 7", "Text = a b", "; FillTime = 9", ""]
    lines += ["Text = " + 300 * "t", "Text = \x00", "FillTime = inf", "[Flow-1"]
    return chance.choice(["\n", "\r\n"]).join(chance.choices(lines, k=chance.randint(0, 14))).encode()


def random_files(folder, count, seed):
    chance = random.Random(seed)
    paths = []
    for number in range(count):
        path = folder / f"{number}.pro"
        kind = chance.randrange(12)
        if kind == 0:
            path.mkdir()
        elif kind == 1:
            path.write_bytes(b"\xff\xfe[\0F\0")  # UTF-16, which is no text of the format
        elif kind != 2:
            path.write_bytes(random_text(chance))
        paths.append(str(path))
    return paths


def read_alone(path, words):
    """The values of a file as a reader of it alone finds them, and its first error."""
    values, first = {}, None
    try:
        file = qelpro.ProcessFile(path)
        there = [(section, key) for section in file for key in file[section]]
    except (OSError, ValueError) as error:
        return values, error
    for word in words:
        for section, key in there:
            if fnmatch.fnmatchcase(f"{section}.{key}", word):
                try:
                    values[f"{section}.{key}"] = file[section][key]
                except ValueError as error:
                    first = first or error
    return values, first


def is_same(one, other):
    both_nan = isinstance(one, float) and isinstance(other, float) and math.isnan(one) and math.isnan(other)
    return both_nan or (one == other and isinstance(one, tuple) == isinstance(other, tuple))


def test_what_is_skipped_has_no_part_in_the_columns(tmp_path):
    sections = ["FRSet = 2\nFillTime = x", "FRSet = 3\nMeltTemp = 1", "FillTime = x\nMoldTemp = 2"]
    paths = []
    for number, section in enumerate(sections):
        paths.append(tmp_path / f"{number}.pro")
        paths[-1].write_text(f"[Flow-1]\n{section}\n")
    words = ["Flow-1.FRSet", "Flow-1.FillTime", "Flow-1.M*"]
    frame = qelpro.scan(paths, words, errors="skip")
    assert list(frame.columns) == ["file", "Flow-1.FRSet", "Flow-1.FillTime", "Flow-1.MeltTemp"]
    assert frame["Flow-1.FRSet"].dtype == "int64"
    assert_frame_equal(frame, qelpro.scan([paths[1]], words))


def test_finds_what_reading_each_file_by_itself_finds(tmp_path):
    paths = random_files(tmp_path, 600, seed=1)
    alone = [read_alone(path, WORDS) for path in paths]
    failed = [path for path, (_, error) in zip(paths, alone) if error]
    assert 100 < len(failed) < 400

    frame = qelpro.scan(paths, WORDS, errors="record")
    assert list(frame["file"]) == paths
    for row, (values, error) in enumerate(alone):
        assert (frame["error"][row] is None) == (error is None)
        if isinstance(error, ValueError):
            assert frame["error"][row] == str(error)
        for name in frame.columns[1:-1]:
            assert is_same(frame[name][row], values.get(name, math.nan)), (paths[row], name)
        assert set(values) <= set(frame.columns)

    skipped = qelpro.scan(paths, WORDS, errors="skip")
    assert_frame_equal(skipped, qelpro.scan(frame["file"][frame["error"].isnull()], WORDS))

    first = next(error for _, error in alone if error)
    with pytest.raises(type(first)) as raised:
        qelpro.scan(paths, WORDS)
    assert str(raised.value) == str(first)


def test_columns_are_in_the_order_asked_and_a_patterns_in_that_of_first_appearance(tmp_path):
    paths = written(tmp_path, a="[Flow-3]\nMeltTemp = 1\n", b="[Flow-1]\nMeltTemp = 2\n[Unit]\nTime = s\n")
    frame = qelpro.scan(paths, ["Cool.CoolTime", "Flow-*.MeltTemp", "Unit.Time", "Flow-1.MeltTemp"])
    assert list(frame.columns) == ["file", "Cool.CoolTime", "Flow-3.MeltTemp", "Flow-1.MeltTemp", "Unit.Time"]


def test_types_of_columns(tmp_path):
    text = "[Flow-1]\nFillTime = {0}\nFRSet = {0}\nFR-1 = 0 {0}\n[Own]\nText = t{0}\n"
    paths = written(tmp_path, a=text.format(1), b=text.format(2))
    words = ["Flow-1.FillTime", "Flow-1.FRSet", "Flow-1.FR-1", "Own.Text", "Own.Nothing"]
    frame = qelpro.scan(paths, words)
    expected = pd.DataFrame(
        {
            "file": pd.Series([str(path) for path in paths], dtype=object),
            "Flow-1.FillTime": [1.0, 2.0],
            "Flow-1.FRSet": np.array([1, 2], dtype=np.int64),
            "Flow-1.FR-1": pd.Series([(0.0, 1.0), (0.0, 2.0)], dtype=object),
            "Own.Text": pd.Series(["t1", "t2"], dtype=object),
            "Own.Nothing": [np.nan, np.nan],
        }
    )
    assert_frame_equal(frame, expected)
    with_gap = qelpro.scan([*paths, *written(tmp_path, c="")], words)
    assert [str(kind) for kind in with_gap.dtypes] == ["object", "float64", "float64", "object", "object", "float64"]
    assert math.isnan(with_gap["Flow-1.FR-1"][2])


def test_the_frame_is_its_owners(tmp_path):
    frame = qelpro.scan(written(tmp_path, a="[Flow-1]\nFillTime = 1\nFRSet = 1\n"), ["Flow-1.FillTime", "Flow-1.FRSet"])
    frame.loc[0, "Flow-1.FillTime"] = 7.5
    frame["Flow-1.FRSet"] += 1
    assert list(frame.iloc[0, 1:]) == [7.5, 2]


def test_paths_are_named_as_given_and_may_be_repeated(tmp_path, monkeypatch):
    (path,) = written(tmp_path, a="[Flow-1]\nFillTime = 1\n")
    monkeypatch.chdir(tmp_path)
    frame = qelpro.scan([Path("a.pro"), "a.pro", path], ["Flow-1.FillTime"])
    assert list(frame["file"]) == ["a.pro", "a.pro", str(path)]
    assert list(frame["Flow-1.FillTime"]) == [1.0, 1.0, 1.0]


def test_no_files_are_a_table_without_rows():
    frame = qelpro.scan([], ["Flow-1.FillTime", "Flow-*.MeltTemp"], errors="record")
    assert list(frame.columns) == ["file", "Flow-1.FillTime", "error"]
    assert len(frame) == 0


def test_what_cannot_be_asked_is_refused_before_a_file_is_read(tmp_path):
    missing = tmp_path / "missing.pro"
    with pytest.raises(ValueError, match="Flow-1"):
        qelpro.scan([missing], ["Flow-1"])
    with pytest.raises(ValueError, match="errors"):
        qelpro.scan([missing], ["A.B"], errors="ignore")
    with pytest.raises(TypeError):
        qelpro.scan(str(missing), ["A.B"])
    with pytest.raises(TypeError):
        qelpro.scan([missing], "A.B")
    with pytest.raises(TypeError):
        qelpro.scan([missing], [7])
    with pytest.raises(TypeError):
        qelpro.scan([7], ["A.B"])
    with pytest.raises(FileNotFoundError) as raised:
        qelpro.scan([missing], ["A.B"])
    assert raised.value.filename == str(missing)


def reads():
    """How often this process has read something."""
    lines = Path("/proc/self/io").read_text().splitlines()
    return int(next(line for line in lines if line.startswith("syscr")).split()[1])


@pytest.mark.skipif(not os.path.exists("/proc/self/io"), reason="the system does not count reads")
def test_an_interruption_ends_a_long_scan(path, monkeypatch):
    count = 300_000
    begun = threading.Event()
    engine_scan = _engine.scan

    def scan(places, *others):
        if places:
            begun.set()
        return engine_scan(places, *others)

    monkeypatch.setattr(_engine, "scan", scan)

    def interrupt():
        begun.wait()
        before = reads()
        while reads() < before + 100:  # it reads by now
            time.sleep(0.001)
        os.kill(os.getpid(), signal.SIGINT)

    thread = threading.Thread(target=interrupt)
    before = reads()
    with pytest.raises(KeyboardInterrupt):
        thread.start()
        qelpro.scan([path] * count, ["Flow-1.FillTime"])
    thread.join()
    assert reads() - before < count
