#!/usr/bin/env python3
"""Runs pytest. Exits with 77, a skipped test, where a package that the tests need is missing."""

import importlib.util
import sys

NEEDED = ("pytest", "numpy", "pandas", "matplotlib", "distributed", "mypy")


def main():
    missing = [name for name in NEEDED if not importlib.util.find_spec(name)]
    if missing:
        print("skipped: Python has no " + ", ".join(missing))
        return 77

    import pytest

    return pytest.main(["-q", "-p", "no:cacheprovider", "--strict-markers", *sys.argv[1:]])


# Processes that tests spawn import this file.
if __name__ == "__main__":
    sys.exit(main())
