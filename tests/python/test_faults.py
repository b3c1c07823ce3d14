"""Whatever fails in a store: the file is the old one or the new one, whole, and nothing is left."""

import base64
import errno
import json
import os
import re
import subprocess
import sys
from pathlib import Path

import pytest
from faulty_stores import OLD, STORES
from scarce_memory import BIG, DONE, STORING, TOO_LITTLE, WORK

import qelpro

LIBRARY = os.environ.get("QELPRO_FAILING_CALLS")
DATE = re.compile(rb"(?m)^Date .*$")


def faulty(store, kind, folder):
    script = Path(__file__).with_name("faulty_stores.py")
    done = subprocess.run(
        [sys.executable, script, store, kind, folder],
        env={**os.environ, "LD_PRELOAD": LIBRARY},
        capture_output=True,
        check=False,
    )
    assert done.returncode == 0, done.stderr.decode()
    for status, raised, contents, names in json.loads(done.stdout):
        if contents is not None:
            contents = DATE.sub(b"", base64.b64decode(contents))
        yield status, raised, contents, names


def before_and_after(store, tmp_path):
    path = tmp_path / "a.pro"
    if store.startswith("new"):
        STORES[store](path)
        return None, DATE.sub(b"", path.read_bytes())
    path.write_text(OLD)
    STORES[store](path)
    return OLD.encode(), path.read_bytes()


needs_library = pytest.mark.skipif(
    LIBRARY is None, reason="this build has no library of failing calls"
)


@pytest.fixture
def folder(tmp_path):
    (tmp_path / "faulty").mkdir()
    return tmp_path / "faulty"


@needs_library
@pytest.mark.parametrize("store", STORES)
def test_each_call_that_fails_is_an_exception_or_does_not_matter(store, folder, tmp_path):
    old, new = before_and_after(store, tmp_path)
    assert old != new
    path = str(folder / "a.pro")
    outcomes = list(faulty(store, "FAIL", folder))
    for number, (status, raised, contents, names) in enumerate(outcomes, 1):
        assert status == 0, number
        assert names == ([] if contents is None else ["a.pro"]), (number, raised)
        if raised is None:
            # What makes default values passes over a call that fails among them.
            assert contents == new or (store == "new" and contents), number
            continue
        # A form that is stored is opened then, which may fail, too.
        assert contents == old or (store.endswith("form") and contents == new), (number, raised)
        kind, message, filename = raised
        assert (kind, filename) == ("OSError", path) or (
            kind == "ValueError"
            and message.startswith(path)
            and ("not stored" in message or "cannot be written" in message)
        ), (number, message)
    assert outcomes[-1][1] is None
    # Of a file without a name fewer calls matter; one that cannot be had has a name at once.
    assert len([raised for _, raised, _, _ in outcomes if raised]) >= (3 if store == "new" else 5)


@needs_library
@pytest.mark.parametrize("store", STORES)
def test_killed_in_front_of_each_call_it_leaves_the_old_file_or_the_new_one(
    store, folder, tmp_path
):
    old, new = before_and_after(store, tmp_path)
    outcomes = list(faulty(store, "KILL", folder))
    assert [status for status, _, _, _ in outcomes] == [-9] * (len(outcomes) - 1) + [0]
    found = [contents for _, _, contents, _ in outcomes]
    first_new = found.index(new)
    assert found == [old] * first_new + [new] * (len(found) - first_new)
    assert 5 <= first_new < len(found)


@pytest.fixture
def small_disk(tmp_path):
    """A file system with room for a few blocks."""
    place = tmp_path / "disk"
    place.mkdir()
    mounted = subprocess.run(
        ["mount", "-t", "tmpfs", "-o", "size=32k", "tmpfs", place], capture_output=True, check=False
    )
    if mounted.returncode != 0:
        pytest.skip("no file system may be mounted here: " + mounted.stderr.decode().strip())
    yield place
    subprocess.run(["umount", "-l", place], check=True)


@pytest.mark.parametrize("store", STORES)
def test_a_full_disk_is_an_error_and_the_file_as_it_was(store, small_disk):
    path = small_disk / "a.pro"
    if not store.startswith("new"):
        path.write_text(OLD)
    before = sorted([*os.listdir(small_disk), "fill"])
    with open(small_disk / "fill", "wb", buffering=0) as stream, pytest.raises(OSError):
        while True:
            stream.write(b"x" * 4096)
    with pytest.raises(OSError) as raised:
        STORES[store](path)
    assert raised.value.errno == errno.ENOSPC
    assert raised.value.filename == str(path)
    assert sorted(os.listdir(small_disk)) == before
    assert not path.exists() or path.read_text() == OLD


@pytest.mark.skipif(sys.platform != "linux", reason="limits the memory of a process")
@pytest.mark.parametrize("work", WORK)
def test_memory_that_fails_is_a_memory_error_and_no_crash(work, path):
    path.write_text(BIG)
    script = Path(__file__).with_name("scarce_memory.py")
    done = subprocess.run([sys.executable, script, work, path], capture_output=True, check=False)
    assert done.returncode == 0, done.stderr.decode()
    statuses = json.loads(done.stdout)
    assert set(statuses) == {DONE, TOO_LITTLE}, (statuses, done.stderr.decode())
    assert statuses[-1] == DONE
    assert list(qelpro.ProcessFile(path)["Mine"])[-1] == "k1999"
    assert (path.read_text() == BIG) == (work not in STORING)
    assert os.listdir(path.parent) == [path.name]
