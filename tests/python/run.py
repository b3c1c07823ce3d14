#!/usr/bin/env python3
"""Runs pytest. Exits with 77, a skipped test, where a package that the tests need is missing."""

import importlib.util
import sys

NEEDED = ("pytest", "numpy", "pandas", "matplotlib", "distributed", "mypy")
missing = [name for name in NEEDED if not importlib.util.find_spec(name)]
if missing:
    print("skipped: Python has no " + ", ".join(missing))
    sys.exit(77)

import pytest

# The workers of a cluster import this file, too.
if __name__ == "__main__":
    sys.exit(pytest.main(["-q", "-p", "no:cacheprovider", "--strict-markers", *sys.argv[1:]]))
