#!/usr/bin/env python3
"""qelpro.scan beside a plain line parser and configparser: files a second on one core and on two, as ratios of one run."""

import argparse
import json
import os
import resource
import subprocess
import sys
import tempfile
import time
from concurrent.futures import ProcessPoolExecutor

import pandas

import generated_files
import peers
import qelpro

FEW = ["Flow-1.FillTime", "Flow-*.MeltTemp"]
MANY = FEW + [
    *(f"Flow-{inlet}.{key}" for inlet in (1, 2) for key in ("MoldTemp", "InjectPres", "MaxFR", "FRSet", "IPSet")),
    *(f"Pack-{inlet}.{key}" for inlet in (1, 2) for key in ("PackTime", "PackPres", "PPSet")),
    "Cool.CoolTime",
    "Machine.Diameter",
]


def in_parts(peer, paths, addresses, cores):
    """A peer on several cores: each process has its part of the files."""
    if cores == 1:
        return peer(paths, addresses)
    size = -(-len(paths) // cores)
    with ProcessPoolExecutor(cores) as pool:
        parts = pool.map(peer, [paths[at : at + size] for at in range(0, len(paths), size)], [addresses] * cores)
        return pandas.concat(parts, ignore_index=True)


WAYS = {
    "scan": lambda paths, addresses, cores: qelpro.scan(paths, addresses),
    "lines": lambda paths, addresses, cores: in_parts(peers.by_lines, paths, addresses, cores),
    "configparser": lambda paths, addresses, cores: in_parts(peers.by_configparser, paths, addresses, cores),
}


def measure(way, cores, addresses, paths):
    """In a process of its own, on so many cores: seconds, those of processors, how far its memory grew (in MB)."""
    os.sched_setaffinity(0, sorted(os.sched_getaffinity(0))[:cores])
    before = resource.getrusage(resource.RUSAGE_SELF).ru_maxrss
    worked = time.process_time()
    begin = time.perf_counter()
    frame = WAYS[way](paths, addresses, cores)
    seconds = time.perf_counter() - begin
    assert len(frame) == len(paths)
    return seconds, time.process_time() - worked, (resource.getrusage(resource.RUSAGE_SELF).ru_maxrss - before) / 1024


def measured(way, cores, addresses, list_file, count):
    answer = subprocess.run(
        [sys.executable, __file__, "--measure", way, str(cores), json.dumps(addresses), list_file, str(count)],
        check=True,
        stdout=subprocess.PIPE,
        text=True,
    )
    return json.loads(answer.stdout)


def compare(paths, list_file, rounds, peer_part):
    some = paths[: max(1, len(paths) // peer_part)]
    counts = {"scan": len(paths), "lines": len(some), "configparser": len(some)}
    cores_there = min(2, len(os.sched_getaffinity(0)))
    growth = []
    print("| addresses | cores | scan, files a second | line parser | configparser | scan : line parser | scan : configparser | scan's memory |")
    print("|---|---|---|---|---|---|---|---|")
    for addresses in (FEW, MANY):
        rates = {}
        memory = 0.0
        processors = {}
        for _ in range(rounds):
            for cores in range(1, cores_there + 1):
                for way in WAYS:
                    seconds, worked, grown = measured(way, cores, addresses, list_file, counts[way])
                    rates[way, cores] = max(rates.get((way, cores), 0), counts[way] / seconds)
                    if way == "scan":
                        processors[cores] = min(processors.get(cores, worked), worked)
                    memory = max(memory, grown) if way == "scan" else memory
        for cores in range(1, cores_there + 1):
            scan, lines, configured = (rates[way, cores] for way in WAYS)
            print(f"| {len(addresses)} | {cores} | {scan:.0f} | {lines:.0f} | {configured:.0f} | {scan / lines:.1f} | {scan / configured:.1f} | {memory:.0f} MB |")
        growth.append(
            f"{rates['scan', cores_there] / rates['scan', 1]:.2f} times as fast with {len(addresses)} addresses, "
            f"for {processors[cores_there] / processors[1]:.2f} times the processors' time"
        )
    print(f"\nscan on {cores_there} cores beside one: {'; '.join(growth)}")


def main():
    options = argparse.ArgumentParser(description=__doc__)
    options.add_argument("--files", type=int, default=2000, help="how many files (2000)")
    options.add_argument("--rounds", type=int, default=3, help="of each the best of so many runs (3)")
    options.add_argument("--peer-part", type=int, default=1, metavar="N", help="the peers read the first N-th of the files alone (1: all)")
    options.add_argument("--measure", nargs=5, help=argparse.SUPPRESS)
    asked = options.parse_args()
    if asked.measure:
        way, cores, addresses, list_file, count = asked.measure
        with open(list_file, encoding="utf-8") as lines:
            paths = lines.read().splitlines()[: int(count)]
        print(json.dumps(measure(way, int(cores), json.loads(addresses), paths)))
        return
    with tempfile.TemporaryDirectory() as folder:
        paths = generated_files.generate(folder, asked.files)
        sizes = [os.path.getsize(path) for path in paths]
        print(f"{len(paths)} files of {min(sizes) / 1e3:.1f} to {max(sizes) / 1e3:.1f} KB, {sum(sizes) / 1e6:.0f} MB in all\n")
        sample = paths[:200]
        for addresses in (FEW, MANY):
            scanned = qelpro.scan(sample, addresses)
            assert peers.is_same(peers.by_lines(sample, addresses), scanned), "the line parser finds something else"
            assert peers.is_same(peers.by_configparser(sample, addresses), scanned), "configparser finds something else"
        list_file = os.path.join(folder, "paths")
        with open(list_file, "w", encoding="utf-8") as lines:
            lines.write("\n".join(paths))
        compare(paths, list_file, asked.rounds, asked.peer_part)


if __name__ == "__main__":
    main()
