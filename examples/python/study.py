"""A parameter study: make the files, solve each, and put parameters and results in one table.

The filling pressure over the filling time is a U: to fill fast takes pressure, and to fill slowly
lets the melt freeze. Writes study/, study.csv and study.png into the current folder.
"""

from __future__ import annotations

import subprocess
import sys
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path

import matplotlib.pyplot as plt
import pandas as pd

import qelpro

SOLVER = Path(__file__).with_name("solver.py")


def solve(path: Path) -> float:
    """Runs the solver as a program of its own, and gives the filling pressure, in MPa."""
    subprocess.run([sys.executable, SOLVER, path], check=True)
    name, _, value = path.with_suffix(".txt").read_text().partition("=")
    return float(value)


def run_study() -> pd.DataFrame:
    base = Path("base.pro")
    if not base.exists():
        qelpro.new(base)
    parameters = {
        "Flow-1.FillTime": [0.5, 1, 2, 3, 4.5],
        "Flow-1.MeltTemp": [220, 240],
    }
    files = qelpro.sweep(base, parameters, "study", overwrite=True)
    with ThreadPoolExecutor() as pool:  # a thread waits for each solver that runs
        pressures = list(pool.map(solve, files))
    table = qelpro.scan(files, parameters)
    return table.assign(pressure=pressures)  # both are in the order of the files


def plot(table: pd.DataFrame) -> None:
    figure, axes = plt.subplots()
    for temperature, rows in table.groupby("Flow-1.MeltTemp"):
        axes.plot(rows["Flow-1.FillTime"], rows["pressure"], "o-", label=f"{temperature:g} oC")
    axes.set_xlabel("filling time (sec)")
    axes.set_ylabel("filling pressure (MPa)")
    axes.legend(title="melt temperature")
    figure.savefig("study.png")


if __name__ == "__main__":
    table = run_study()
    table.to_csv("study.csv", index=False)
    print(table.to_string(index=False))
    plot(table)
