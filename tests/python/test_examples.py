"""The examples run as they are, in an empty folder, and make what they say."""

import math
import os
import subprocess
import sys

import matplotlib.image
import numpy as np
import pandas as pd
import pytest
from conftest import ROOT

import qelpro

EXAMPLES = ROOT / "examples" / "python"


@pytest.fixture
def run(tmp_path):
    def run(name, *arguments, status=0):
        command = [sys.executable, str(EXAMPLES / name), *map(str, arguments)]
        environment = {**os.environ, "MPLBACKEND": "Agg", "PYTHONDONTWRITEBYTECODE": "1"}
        result = subprocess.run(
            command, cwd=tmp_path, env=environment, capture_output=True, text=True, timeout=300
        )
        assert result.returncode == status, result.stderr
        return result.stdout if status == 0 else result.stderr

    return run


def colours(picture):
    """How many pixels there are of each colour."""
    pixels = np.round(matplotlib.image.imread(picture)[:, :, :3] * 255).astype(int).reshape(-1, 3)
    found, counts = np.unique(pixels, axis=0, return_counts=True)
    return {tuple(colour): count for colour, count in zip(found.tolist(), counts.tolist())}


# The first two of matplotlib's cycle, and its paper.
BLUE, ORANGE, WHITE = (31, 119, 180), (255, 127, 14), (255, 255, 255)


def test_a_profile_is_plotted_before_and_after(run, tmp_path):
    said = run("plot_profile.py")
    assert said.endswith("findings: []\n")
    profile = qelpro.ProcessFile(tmp_path / "profile.pro").profile("Flow-1", "FR")
    assert profile.shape == (6, 2) and profile[2].tolist() == [25, 60]
    seen = colours(tmp_path / "profile.png")
    assert min(seen[BLUE], seen[ORANGE]) > 200 and seen[WHITE] > 100_000
    assert seen[ORANGE] != seen[BLUE]


def test_it_is_a_notebook(run):
    """Cells as notebook programs know them, each of which is Python by itself."""
    cells = (EXAMPLES / "plot_profile.py").read_text().split("# %%")
    assert cells[0] == "" and len(cells) > 6
    for cell in cells[1:]:
        if cell.startswith(" [markdown]"):
            assert all(line.startswith("#") for line in cell.splitlines()[1:] if line)
        else:
            compile(cell, "cell", "exec")


def test_a_study_puts_parameters_and_results_in_one_table(run, tmp_path):
    run("study.py")
    table = pd.read_csv(tmp_path / "study.csv")
    assert list(table) == ["file", "Flow-1.FillTime", "Flow-1.MeltTemp", "pressure"]
    assert table["Flow-1.FillTime"].tolist() == [0.5, 0.5, 1, 1, 2, 2, 3, 3, 4.5, 4.5]
    assert table["Flow-1.MeltTemp"].tolist() == [220, 240] * 5
    for row in table.itertuples(index=False):
        file = qelpro.ProcessFile(tmp_path / row.file)
        time, temperature = file["Flow-1"]["FillTime"], file["Flow-1"]["MeltTemp"]
        assert (time, temperature) == (row[1], row[2])
        # Pa: 12 viscosities, length squared by time, by the square of what is not frozen.
        opening = 0.002 - 2 * (1e-7 * time) ** 0.5
        pressure = 12 * 200 * math.e ** ((230 - temperature) / 50) * 0.25**2 / time / opening**2
        assert row.pressure == pytest.approx(pressure / 1e6)
    slow_and_fast = table.groupby("Flow-1.MeltTemp")["pressure"]
    assert (slow_and_fast.min() < slow_and_fast.first()).all() and (
        slow_and_fast.min() < slow_and_fast.last()
    ).all()
    seen = colours(tmp_path / "study.png")
    assert min(seen[BLUE], seen[ORANGE]) > 200 and seen[WHITE] > 100_000


def test_a_study_runs_again_in_its_folder(run, tmp_path):
    qelpro.new(tmp_path / "base.pro")
    qelpro.ProcessFile(tmp_path / "base.pro")["Flow-1"]["MoldTemp"] = 45
    assert run("study.py") == run("study.py")
    assert (
        qelpro.scan(sorted((tmp_path / "study").glob("*.pro")), ["Flow-1.MoldTemp"])[
            "Flow-1.MoldTemp"
        ].tolist()
        == [45] * 10
    )


def test_the_solver_refuses_a_file_without_what_it_needs(run, path):
    del qelpro.ProcessFile(path)["Flow-1"]["MeltTemp"]
    assert "the first inlet has no filling time or no melt temperature" in run(
        "solver.py", path, status=1
    )
    assert not path.with_suffix(".txt").exists()


def test_a_cluster_scans_a_folder(run, tmp_path):
    said = run("cluster_scan.py")
    files = sorted((tmp_path / "cluster-files").glob("*.pro"))
    assert len(files) == 2000 and "2000" in said
    table = pd.read_csv(tmp_path / "cluster-scan.csv")
    here = qelpro.scan(files, ["Flow-1.FillTime", "Flow-*.MeltTemp"])
    assert table["Flow-1.FillTime"].tolist() == here["Flow-1.FillTime"].tolist()
    assert table["Flow-1.MeltTemp"].tolist() == here["Flow-1.MeltTemp"].tolist()
    assert (
        0.5 <= table["Flow-1.FillTime"].min() < 0.51 and 2.99 < table["Flow-1.FillTime"].max() <= 3
    )


def test_a_cluster_that_is_there_scans_a_folder_that_is_given(run, tmp_path):
    from distributed import LocalCluster

    qelpro.new(tmp_path / "a.pro")
    with LocalCluster(n_workers=1, threads_per_worker=1, dashboard_address=None) as cluster:
        run("cluster_scan.py", "--scheduler", cluster.scheduler_address, tmp_path)
    table = pd.read_csv(tmp_path / "cluster-scan.csv")
    assert table["Flow-1.FillTime"].tolist() == [1.0]
    assert not (tmp_path / "cluster-files").exists()
