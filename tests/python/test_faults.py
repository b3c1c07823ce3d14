"""Whatever fails in a store: the file is the old one or the new one, whole, and nothing is left."""

import base64
import errno
import json
import os
import re
import resource
import subprocess
import sys
import traceback
from pathlib import Path

import pytest
from conftest import in_a_child
from faulty_stores import OLD, STORES

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


needs_library = pytest.mark.skipif(LIBRARY is None, reason="this build has no library of failing calls")


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
            kind == "ValueError" and message.startswith(path) and ("not stored" in message or "cannot be written" in message)
        ), (number, message)
    assert outcomes[-1][1] is None
    assert len([raised for _, raised, _, _ in outcomes if raised]) >= 5


@needs_library
@pytest.mark.parametrize("store", STORES)
def test_killed_in_front_of_each_call_it_leaves_the_old_file_or_the_new_one(store, folder, tmp_path):
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


def used_memory():
    with open("/proc/self/statm") as stream:
        return int(stream.read().split()[0]) * resource.getpagesize()


def under_limits(work, least, most, step):
    """The work in children that may have so much more memory: how many of them had enough."""

    def limited(more):
        soft = used_memory() + more
        resource.setrlimit(resource.RLIMIT_AS, (soft, resource.RLIM_INFINITY))
        try:
            work()
        except MemoryError:
            os._exit(7)
        except BaseException as error:
            if "out of memory" in str(error) or getattr(error, "errno", None) == errno.ENOMEM:
                os._exit(7)
            resource.setrlimit(resource.RLIMIT_AS, (resource.RLIM_INFINITY, resource.RLIM_INFINITY))
            traceback.print_exc()
            os._exit(1)

    statuses = [in_a_child(lambda more=more: limited(more)) for more in range(least, most, step)]
    assert set(statuses) <= {0, 7}, statuses
    return statuses


BIG = "[Flow-1]\nFillTime = 1\n[Mine]\n" + "".join(f"k{n} = {'x' * 900}\n" for n in range(2_000))


def read_values(path):
    assert qelpro.ProcessFile(path)["Flow-1"]["FillTime"] == 1.0


def change_two(path):
    file = qelpro.ProcessFile(path)
    with file.batch():
        file["Flow-1"]["FillTime"] = 2
        file["Mine"]["k7"] = "y"


MEMORY = {
    "read": read_values,
    "section": lambda path: dict(qelpro.ProcessFile(path)["Flow-1"]),
    "check": lambda path: qelpro.ProcessFile(path).check(),
    "diff": lambda path: qelpro.diff(path, path),
    "process": lambda path: qelpro.load_process(path),
    "store": lambda path: qelpro.ProcessFile(path)["Flow-1"].__setitem__("FillTime", 2),
    "batch": change_two,
    "profile": lambda path: qelpro.ProcessFile(path).set_profile("Flow-1", "FR", [[0, 1]] * 500),
}


@pytest.mark.skipif(sys.platform != "linux", reason="limits the memory of a process")
@pytest.mark.parametrize("name", MEMORY)
def test_memory_that_fails_is_a_memory_error_and_no_crash(name, path):
    path.write_text(BIG)

    def work():
        MEMORY[name](path)

    statuses = under_limits(work, 0, 30_000_000, 2_000_000)
    assert statuses[0] == 7 and statuses[-1] == 0, statuses
    if name not in ("store", "batch", "profile"):
        assert path.read_text() == BIG
        return
    done = path.read_text()
    assert list(qelpro.ProcessFile(path)["Mine"])[-1] == "k1999"
    assert done != BIG
    assert os.listdir(path.parent) == [path.name]
