"""What the tests share."""

import os
from pathlib import Path

import pytest

import qelpro

os.environ.setdefault("MPLBACKEND", "Agg")

ROOT = Path(os.environ["QELPRO_DATA"])
"""The source tree, for its examples and test data."""


@pytest.fixture
def path(tmp_path):
    """A new process file."""
    qelpro.new(tmp_path / "a.pro")
    return tmp_path / "a.pro"


@pytest.fixture
def file(path):
    return qelpro.ProcessFile(path)


@pytest.fixture
def unchanged(path):
    """Checks at the end that no byte of the file was changed, and that nothing stands beside it."""
    before = path.read_bytes()
    yield
    assert path.read_bytes() == before
    assert os.listdir(path.parent) == [path.name]
