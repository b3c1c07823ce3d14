#!/usr/bin/env python3
"""Runs pytest. Exits with 77, which is a skipped test, where a package that the tests need is missing."""

import importlib.util
import sys

missing = [name for name in ("pytest", "numpy", "pandas", "matplotlib", "distributed", "mypy") if not importlib.util.find_spec(name)]
if missing:
    print("skipped: Python has no " + ", ".join(missing))
    sys.exit(77)

import pytest

sys.exit(pytest.main(["-q", "-p", "no:cacheprovider", "--strict-markers", *sys.argv[1:]]))
