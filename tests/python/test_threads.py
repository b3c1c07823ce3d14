"""Other threads go on while one reads or writes."""

import os
import subprocess
import sys
import threading
from concurrent.futures import ThreadPoolExecutor

import pytest
from conftest import ROOT

import qelpro

THREADS = 8


@pytest.fixture
def locked(path):
    """A file that another process holds the lock of, and what gives it free."""
    code = (
        "import fcntl, struct, sys\n"
        "stream = open(sys.argv[1], 'r+')\n"
        "a_byte_far_behind_the_end = struct.pack('hhqqi4x', fcntl.F_WRLCK, 0, 1 << 62, 1, 0)\n"
        "fcntl.fcntl(stream, 37, a_byte_far_behind_the_end)  # F_OFD_SETLK\n"
        "print('locked', flush=True)\n"
        "sys.stdin.read()\n"
    )
    holder = subprocess.Popen(
        [sys.executable, "-c", code, path], stdin=subprocess.PIPE, stdout=subprocess.PIPE
    )
    assert holder.stdout.readline() == b"locked\n"

    def free():
        holder.stdin.close()
        holder.wait()

    yield free
    free()
    holder.stdout.close()


def waits_for_a_lock(thread):
    """Whether the thread pauses in clock_nanosleep(): the kernel's word for where it sleeps."""
    with open(f"/proc/self/task/{thread.native_id}/syscall") as stream:
        return stream.read().split()[0] == "230"


STORES = {
    "an entry": lambda file: file["Flow-1"].__setitem__("FillTime", 2),
    "a batch": lambda file: file["Flow-1"].update(FillTime=2),
    "a section": lambda file: file.__setitem__("Flow-1", {"FillTime": 2}),
    "a profile": lambda file: file.set_profile("Flow-1", "FR", [[0, 1]]),
    "a removal": lambda file: file.__delitem__("Unit"),
    "a form": lambda file: qelpro.ProcessFile.from_dict(
        {"Flow-1": {"FillTime": 2}}, file, overwrite=True
    ),
}


@pytest.mark.skipif(sys.platform != "linux" or os.uname().machine != "x86_64", reason="reads /proc")
@pytest.mark.parametrize("store", STORES.values(), ids=STORES.keys())
def test_other_threads_go_on_while_a_store_waits(path, locked, store, tmp_path):
    before = path.read_bytes()
    file = qelpro.ProcessFile(path)
    thread = threading.Thread(target=store, args=(file,))
    thread.start()
    while not waits_for_a_lock(thread):  # this loop ends: this thread runs, though that one waits
        assert thread.is_alive()
    assert qelpro.ProcessFile(path)["Flow-1"]["FillTime"] == 1.0
    qelpro.new(tmp_path / "b.pro")
    qelpro.ProcessFile(tmp_path / "b.pro")["Flow-1"]["FillTime"] = 5
    assert thread.is_alive() and path.read_bytes() == before
    locked()
    thread.join()
    assert path.read_bytes() != before


def in_threads(work):
    """What work(0), work(1) and so on give, each in a thread of its own, all begun at once."""
    begin = threading.Barrier(THREADS)

    def begun(number):
        begin.wait()
        return work(number)

    with ThreadPoolExecutor(THREADS) as pool:
        return list(pool.map(begun, range(THREADS)))


def test_separate_files_are_free(tmp_path):
    def work(number):
        path = tmp_path / f"{number}.pro"
        qelpro.new(path)
        file = qelpro.ProcessFile(path)
        for value in range(10):
            file["Flow-1"]["FillTime"] = value + number
            assert file["Flow-1"]["FillTime"] == value + number
            assert file.profile("Flow-1", "FR").shape == (2, 2)
            file.check()
            qelpro.load_process(path)
        return file["Flow-1"]["FillTime"]

    assert in_threads(work) == [9.0 + number for number in range(THREADS)]


def test_separate_objects_of_one_file_lose_no_change(path):
    def work(number):
        file = qelpro.ProcessFile(path)
        for step in range(5):
            file["Mine"][f"k{number}-{step}"] = step
        with file.batch():
            for step in range(5, 10):
                file["Mine"][f"k{number}-{step}"] = step

    in_threads(work)
    keys = {f"k{number}-{step}" for number in range(THREADS) for step in range(10)}
    assert set(qelpro.ProcessFile(path)["Mine"]) == keys


def test_one_object_in_several_threads_is_a_misuse_and_no_crash(file, path):
    def work(number):
        for step in range(20):
            try:
                if number % 4 == 0:
                    file["Mine"][f"k{number}"] = step
                elif number % 4 == 1:
                    with file.batch():
                        file["Mine"][f"k{number}"] = step
                elif number % 4 == 2:
                    file.to_dict(), file.check(), dict(file["Flow-1"]), file.profile("Flow-1", "FR")
                else:
                    file["Mine"].pop(f"k{number - 3}", None)
            except (KeyError, ValueError, TypeError, AttributeError):
                pass  # what comes of a misuse is not said

    in_threads(work)
    fresh = qelpro.ProcessFile(path)
    assert fresh["Flow-1"]["FillTime"] == 1.0
    assert {finding.code for finding in fresh.check() if finding.severity == "error"} == set()
    assert os.listdir(path.parent) == [path.name]


def test_banks_and_tables_can_be_asked_by_several_threads():
    def work(number):
        bank = qelpro.MachineBank(ROOT / "tests/data/machines.bank")
        table = qelpro.CoolantTable(ROOT / "tests/data/coolants.pcs")
        return [
            (len(bank.machines("Tessaro")), table.properties(0, 20 + step)) for step in range(50)
        ]

    assert len({str(answer) for answer in in_threads(work)}) == 1
