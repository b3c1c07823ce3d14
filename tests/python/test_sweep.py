"""Parameter studies."""

import csv
import json
import os

import numpy as np
import pandas as pd
import pytest

import qelpro


@pytest.fixture
def folder(tmp_path):
    return tmp_path / "study"


def values_of(paths, section="Flow-1", key="MeltTemp"):
    return [qelpro.ProcessFile(path)[section][key] for path in paths]


def test_a_file_is_made_for_each_value(path, folder):
    paths = qelpro.sweep(path, {"Flow-1.MeltTemp": [220, 240.5]}, folder)
    assert all(made.parent == folder and made.is_file() for made in paths)
    assert values_of(paths) == [220.0, 240.5]
    assert sorted(os.listdir(folder)) == sorted(
        [*(made.name for made in paths), "manifest.csv", "manifest.json"]
    )


def test_the_last_address_turns_fastest(path, folder):
    paths = qelpro.sweep(path, {"Flow-1.MeltTemp": [1, 2], "Flow-1.FillTime": [3, 4, 5]}, folder)
    assert values_of(paths) == [1, 1, 1, 2, 2, 2]
    assert values_of(paths, key="FillTime") == [3, 4, 5, 3, 4, 5]


def test_the_files_and_manifests_are_the_tools(path, folder, tmp_path, tool):
    other = tmp_path / "tool"
    tool(
        "sweep",
        path,
        "--set",
        "Flow-1.MeltTemp=220:260:10",
        "--set",
        "Flow-1.FillTime=1,2.5",
        "-o",
        other,
    )
    paths = qelpro.sweep(
        path, {"Flow-1.MeltTemp": "220:260:10", "Flow-1.FillTime": "1,2.5"}, folder
    )
    assert sorted(os.listdir(folder)) == sorted(os.listdir(other))
    for made in paths:
        assert made.read_bytes() == (other / made.name).read_bytes()
    assert (folder / "manifest.csv").read_bytes() == (other / "manifest.csv").read_bytes()


def test_samples_are_the_tools_for_a_seed(path, folder, tmp_path, tool):
    other = tmp_path / "tool"
    tool(
        "sweep",
        path,
        "--sample",
        "7",
        "--seed",
        "5",
        "--set",
        "Flow-1.MeltTemp=220:260",
        "-o",
        other,
    )
    paths = qelpro.sweep(path, {"Flow-1.MeltTemp": (220, 260)}, folder, samples=7, seed=5)
    assert len(paths) == 7
    assert [made.read_bytes() for made in paths] == [
        (other / made.name).read_bytes() for made in paths
    ]


def test_samples_lie_one_in_each_part_of_the_range(path, folder):
    paths = qelpro.sweep(path, {"Flow-1.MeltTemp": (200.0, 300.0)}, folder, samples=10, seed=1)
    assert sorted(int((value - 200) // 10) for value in values_of(paths)) == list(range(10))


def test_without_a_seed_samples_are_others_each_time_and_the_seed_is_told(path, folder, tmp_path):
    first = qelpro.sweep(path, {"Flow-1.MeltTemp": (200.0, 300.0)}, folder, samples=5)
    second = qelpro.sweep(path, {"Flow-1.MeltTemp": (200.0, 300.0)}, tmp_path / "second", samples=5)
    assert values_of(first) != values_of(second)
    seed = json.loads((folder / "manifest.json").read_text())["seed"]
    again = qelpro.sweep(
        path, {"Flow-1.MeltTemp": (200.0, 300.0)}, tmp_path / "again", samples=5, seed=seed
    )
    assert values_of(again) == values_of(first)


def test_the_manifest_tells_the_values(path, folder):
    paths = qelpro.sweep(path, {"Flow-1.MeltTemp": [220, 240]}, folder)
    with open(folder / "manifest.csv", newline="") as stream:
        rows = list(csv.DictReader(stream))
    assert [os.path.basename(row["file"]) for row in rows] == [made.name for made in paths]
    assert [float(row["Flow-1.MeltTemp"]) for row in rows] == [220.0, 240.0]


def test_a_pattern_sets_all_that_it_matches(path, folder):
    path.write_text("[Flow-1]\nMeltTemp = 1\n[Flow-2]\nMeltTemp = 2\n")
    paths = qelpro.sweep(path, {"Flow-*.MeltTemp": [5, 6]}, folder)
    assert values_of(paths) == values_of(paths, "Flow-2") == [5.0, 6.0]


def test_points_and_texts_are_values(path, folder, tmp_path):
    points = qelpro.sweep(path, {"Flow-1.FR-1": [(0, 10), (0, 20)]}, folder)
    assert values_of(points, key="FR-1") == [(0.0, 10.0), (0.0, 20.0)]
    texts = qelpro.sweep(path, {"CaeHeader.Engineer": ["A, B", "C"]}, tmp_path / "texts")
    assert values_of(texts, "CaeHeader", "Engineer") == ["A, B", "C"]


@pytest.mark.parametrize(
    "values",
    [[1.5, 2.5], np.array([1.5, 2.5]), pd.Series([1.5, 2.5]), (x + 0.5 for x in (1, 2)), "1.5,2.5"],
    ids=lambda values: type(values).__name__,
)
def test_values_are_any_list(path, folder, values):
    assert values_of(qelpro.sweep(path, {"Flow-1.MeltTemp": values}, folder)) == [1.5, 2.5]


def test_floats_survive(path, folder):
    values = [0.1, 1 / 3, 5e-324, 1.7976931348623157e308]
    assert values_of(qelpro.sweep(path, {"Flow-1.MeltTemp": values}, folder)) == values


def test_a_file_that_exists_is_not_overwritten(path, folder):
    paths = qelpro.sweep(path, {"Flow-1.MeltTemp": [220, 240]}, folder)
    before = {name: (folder / name).read_bytes() for name in os.listdir(folder)}
    with pytest.raises(FileExistsError):
        qelpro.sweep(path, {"Flow-1.MeltTemp": [1, 2]}, folder)
    assert {name: (folder / name).read_bytes() for name in os.listdir(folder)} == before
    again = qelpro.sweep(path, {"Flow-1.MeltTemp": [1, 2]}, folder, overwrite=True)
    assert again == paths
    assert values_of(paths) == [1.0, 2.0]


REFUSED = [
    ({"Flow-1.MeltTemp": ["hot"]}, {}, ValueError),
    ({"Flow-1.FRSet": [1.5]}, {}, ValueError),
    ({"Flow-1.MeltTemp": [float("nan")]}, {}, ValueError),
    ({"Flow-1.MeltTemp": "1:2:0"}, {}, ValueError),
    ({"Flow-1.MeltTemp": (1, 2)}, {}, ValueError),
    ({"Flow-1.MeltTemp": (1, 2, 3)}, {"samples": 3}, ValueError),
    ({"Flow-1.MeltTemp": ("1", 2)}, {"samples": 3}, TypeError),
    ({"Flow-1.MeltTemp": (None, 2)}, {"samples": 3}, TypeError),
    ({"Flow-1.MeltTemp": (1, 2)}, {"samples": 0}, ValueError),
    ({"Flow-1.MeltTemp": (1, 2)}, {"samples": -1}, ValueError),
    ({"Flow-1.MeltTemp": (1, 2)}, {"samples": 1.5}, TypeError),
    ({"Flow-1.MeltTemp": (1, 2)}, {"samples": 10**9}, ValueError),
    ({"Flow-1.MeltTemp": (1, 2)}, {"samples": 2**70}, ValueError),
    ({"Flow-1.MeltTemp": (1, 2)}, {"samples": 2, "seed": -1}, ValueError),
    ({"Flow-1.MeltTemp": (1, 2)}, {"samples": 2, "seed": 2**64}, ValueError),
    ({"Flow-1.MeltTemp": (1, 2)}, {"samples": 2, "seed": "x"}, TypeError),
    ({"Flow-1.MeltTemp": (1, float("inf"))}, {"samples": 3}, ValueError),
    ({"Flow-1.MeltTemp": []}, {}, ValueError),
    ({"Flow-1.MeltTemp": [None]}, {}, TypeError),
    ({"Flow-1.MeltTemp": {"a": 1}}, {}, TypeError),
    ({"Flow-1.MeltTemp": b"1,2"}, {}, TypeError),
    ({"Flow-7*.MeltTemp": [1]}, {}, KeyError),
    ({"MeltTemp": [1]}, {}, ValueError),
    ({}, {}, ValueError),
    (None, {}, TypeError),
    ([("Flow-1.MeltTemp", [1])], {}, TypeError),
    ({1: [1]}, {}, TypeError),
]


@pytest.mark.parametrize("ranges, options, error", REFUSED, ids=lambda value: repr(value)[:40])
def test_a_study_that_cannot_be_is_refused_and_nothing_is_written(
    path, folder, ranges, options, error
):
    with pytest.raises(error):
        qelpro.sweep(path, ranges, folder, **options)
    assert not folder.exists() or os.listdir(folder) == []
