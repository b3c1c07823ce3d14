"""One table of a folder of process files, read by the workers of a cluster.

usage: cluster_scan.py [--scheduler ADDRESS] [FOLDER]

Without an address a cluster of two processes is started on this machine; without a folder 2000
files are made in cluster-files/. Workers elsewhere have to see the files under the same paths, and
have qelpro installed.
"""

from __future__ import annotations

import argparse
import tempfile
from contextlib import ExitStack
from pathlib import Path

from distributed import Client, LocalCluster

import qelpro

ADDRESSES = ["Flow-1.FillTime", "Flow-*.MeltTemp"]


def make_files(folder: Path) -> None:
    """A random design over two parameters, the same wherever it is made."""
    with tempfile.TemporaryDirectory() as scratch:
        base = Path(scratch, "run.pro")
        qelpro.new(base)
        ranges = {"Flow-1.FillTime": (0.5, 3.0), "Flow-1.MeltTemp": (220, 250)}
        qelpro.sweep(base, ranges, folder, samples=2000, seed=1, overwrite=True)


def main() -> None:
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--scheduler", metavar="ADDRESS", help="tcp://host:8786")
    parser.add_argument("folder", nargs="?", type=Path)
    arguments = parser.parse_args()

    folder = arguments.folder or Path("cluster-files")
    if arguments.folder is None:
        make_files(folder)
    with ExitStack() as stack:
        cluster = arguments.scheduler or stack.enter_context(
            LocalCluster(n_workers=2, threads_per_worker=1, dashboard_address=None)
        )
        client = stack.enter_context(Client(cluster))
        table = qelpro.scan(sorted(folder.glob("*.pro")), ADDRESSES, client=client)
    table.to_csv("cluster-scan.csv", index=False)
    print(table.describe().to_string())


if __name__ == "__main__":  # the workers import this file
    main()
