"""What the tests share."""

import json
import locale
import os
import subprocess
import traceback
from pathlib import Path

import pytest

import qelpro

os.environ.setdefault("MPLBACKEND", "Agg")

if os.environ.get("QELPRO_TEST_LOCALE"):
    # Of this process, in which the module works, and of those that it starts.
    os.environ["LC_ALL"] = os.environ["QELPRO_TEST_LOCALE"]
    locale.setlocale(locale.LC_ALL, os.environ["LC_ALL"])
    # The system's words are held against those of processes that set none.
    locale.setlocale(locale.LC_MESSAGES, "C")


def pytest_runtest_logreport(report):
    """Tells the run's summary what was skipped, which ctest does not see."""
    told = os.environ.get("QELPRO_SKIPPED_TESTS")
    if told and report.skipped and not hasattr(report, "wasxfail"):
        reason = " ".join(str(report.longrepr[-1]).removeprefix("Skipped: ").split())
        with open(told, "a", encoding="utf-8") as stream:
            stream.write(f"python: {report.nodeid}: {reason}\n")

ROOT = Path(os.environ["QELPRO_DATA"])
"""The source tree, for its examples and test data."""


@pytest.fixture(scope="session")
def new_contents(tmp_path_factory):
    """What a new process file holds."""
    path = tmp_path_factory.mktemp("new") / "a.pro"
    qelpro.new(path)
    return path.read_bytes()


@pytest.fixture
def path(tmp_path, new_contents):
    """A new process file."""
    path = tmp_path / "a.pro"
    path.write_bytes(new_contents)
    return path


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


@pytest.fixture(scope="session")
def tool():
    """Runs the command line tool, and gives what it prints, as JSON where it is told to."""

    def run(*words, status=0):
        done = subprocess.run([os.environ["QELPRO_TOOL"], *words], capture_output=True, check=False)
        assert done.returncode == status, done.stderr
        text = done.stdout.decode("utf-8", "surrogateescape")
        return json.loads(text) if "--json" in words or words[0] == "export" else text

    return run


def process_files():
    """Every process file of the examples and of the test data."""
    folders = (ROOT / "examples", ROOT / "tests/data", ROOT / "tests/data/awkward")
    found = sorted(path for folder in folders for path in folder.glob("*.pro"))
    assert len(found) > 30
    return found


def in_a_child(work):
    """Does the work in a child process, and gives its status: 0 where it came back, 1 where it
    raised, which is printed, and below 0 where a signal ended it."""
    child = os.fork()
    if child == 0:
        status = 1
        try:
            work()
            status = 0
        except BaseException:
            traceback.print_exc()
        finally:
            os._exit(status)
    return os.waitstatus_to_exitcode(os.waitpid(child, 0)[1])
