"""A scan by a cluster's workers: the same frame, whatever happens to a worker."""

import os
import signal
import sys
import threading
import time

import pytest

distributed = pytest.importorskip("distributed")
import dask  # noqa: E402
from pandas.testing import assert_frame_equal  # noqa: E402

import qelpro  # noqa: E402
from qelpro import _cluster  # noqa: E402

WORDS = ["Flow-1.FillTime", "Flow-*.MeltTemp", "Flow-1.FRSet", "Own.Text"]
COUNT = 60


def new_cluster(**options):
    settings = {"n_workers": 2, "threads_per_worker": 1, "processes": True, "dashboard_address": ":0", "silence_logs": 50}
    return distributed.LocalCluster(**{**settings, **options})


@pytest.fixture(scope="module")
def client():
    with dask.config.set({"distributed.worker.daemon": True}), new_cluster() as cluster, distributed.Client(cluster) as client:
        yield client


@pytest.fixture
def paths(tmp_path):
    """Columns that some chunks have alone, whole numbers with gaps, texts among numbers."""
    made = []
    for number in range(COUNT):
        text = f"[Flow-1]\nFillTime = {number}.5\nFRSet = {number}\n[Flow-{number % 7 + 2}]\nMeltTemp = {200 + number}\n"
        text += f"[Own]\nText = t{number}\n" if number > 40 else ""
        made.append(tmp_path / f"{number}.pro")
        made[-1].write_text(text)
    return made


def with_faults(paths):
    paths[20].write_text("[Flow-1]\nFillTime = 1,5\nFRSet = 2\n")
    paths[33].unlink(missing_ok=True)
    paths[50].write_text("[Flow-1]\nFillTime = 7\nFRSet = x\n")
    return paths


def assert_same(client, paths, **options):
    assert_frame_equal(qelpro.scan(paths, WORDS, client=client, **options), qelpro.scan(paths, WORDS, **options))


def nothing_left(client):
    """The scheduler holds no task, at last: what the caller has let go reaches it later."""
    for _ in range(1000):
        left = client.run_on_scheduler(lambda dask_scheduler: len(dask_scheduler.tasks))
        if not left:
            return
        time.sleep(0.01)
    raise AssertionError(f"{left} tasks are left")


@pytest.mark.parametrize("largest", [1, 7, 1000])
def test_the_frame_is_the_same(client, paths, monkeypatch, largest):
    monkeypatch.setattr(_cluster, "_LARGEST", largest)
    assert_same(client, paths)
    with_faults(paths)
    assert_same(client, paths, errors="skip")
    assert_same(client, paths, errors="record")
    assert_same(client, [])


@pytest.mark.parametrize("largest", [1, 7, 1000])
def test_the_error_is_that_of_the_first_file(client, paths, monkeypatch, largest):
    monkeypatch.setattr(_cluster, "_LARGEST", largest)
    with_faults(paths)
    for some in (paths, paths[::-1], paths[30:]):
        with pytest.raises((OSError, ValueError)) as here:
            qelpro.scan(some, WORDS)
        with pytest.raises(type(here.value)) as there:
            qelpro.scan(some, WORDS, client=client)
        assert str(there.value) == str(here.value)
    nothing_left(client)


def test_paths_are_those_of_the_caller(client, paths, monkeypatch):
    client.run(os.chdir, "/")
    monkeypatch.chdir(paths[0].parent)
    assert_same(client, [path.name for path in paths])


def test_the_cluster_has_a_few_chunks_at_once(client, paths, monkeypatch):
    monkeypatch.setattr(_cluster, "_LARGEST", 1)
    submit = client.submit
    held = []

    def watched(*arguments, **options):
        future = submit(*arguments, **options)
        held.append(len(client.futures))
        return future

    monkeypatch.setattr(client, "submit", watched)
    assert_same(client, paths)
    assert len(held) == COUNT
    assert max(held) >= 2
    assert max(held) < COUNT // 2  # those that were let go may be counted for a moment
    nothing_left(client)


def test_the_columns_are_in_order_whatever_the_chunks(client, tmp_path, monkeypatch):
    monkeypatch.setattr(_cluster, "_LARGEST", 1)
    paths = [tmp_path / name for name in "abcd"]
    for path, section in zip(paths, ("Flow-9", "Flow-3", "Flow-1", "Flow-9")):
        path.write_text(f"[{section}]\nMeltTemp = 1\nFillTime = 2\n")
    words = ["Unit.Time", "Flow-[13].*", "Flow-1.MeltTemp", "Flow-*.FillTime"]
    frame = qelpro.scan(paths, words, client=client)
    assert_frame_equal(frame, qelpro.scan(paths, words))
    names = ["Flow-3.MeltTemp", "Flow-3.FillTime", "Flow-1.MeltTemp", "Flow-1.FillTime", "Flow-9.FillTime"]
    assert list(frame.columns) == ["file", "Unit.Time", *names]


def test_every_worker_has_something_to_do(client, paths, monkeypatch):
    sizes = []
    submit = client.submit
    monkeypatch.setattr(client, "submit", lambda *given, **options: sizes.append(len(given[2])) or submit(*given, **options))
    assert_same(client, paths)
    assert len(sizes) >= 2 * _cluster._CHUNKS_OF_A_THREAD - 1
    assert sum(sizes) == COUNT


def killing(marker, always=False):
    """A chunk's work whose worker is killed in the midst of it: once, or each time."""

    def work(first, places, names, words):
        if first > 20:
            try:
                with open(marker, "x" if not always else "w") as file:
                    file.write(str(os.getpid()))
                os.kill(os.getpid(), signal.SIGKILL)
            except FileExistsError:
                pass
        from qelpro._cluster import read_chunk

        return read_chunk(first, places, names, words)

    return work


def test_a_worker_that_dies_is_made_up_for(client, paths, tmp_path, monkeypatch):
    marker = tmp_path / "killed"
    monkeypatch.setattr(_cluster, "_LARGEST", 2)
    here = {errors: qelpro.scan(with_faults(paths), WORDS, errors=errors) for errors in ("skip", "record")}
    for errors, expected in here.items():
        before = set(client.run(os.getpid).values())
        monkeypatch.setattr(_cluster, "read_chunk", killing(str(marker)))
        assert_frame_equal(qelpro.scan(paths, WORDS, errors=errors, client=client), expected)
        killed = int(marker.read_text())
        assert killed in before
        client.wait_for_workers(2)
        assert killed not in set(client.run(os.getpid).values())
        marker.unlink()


def test_workers_that_die_again_and_again_are_an_error(paths, tmp_path, monkeypatch):
    monkeypatch.setattr(_cluster, "read_chunk", killing(str(tmp_path / "killed"), always=True))
    with dask.config.set({"distributed.scheduler.allowed-failures": 0}), new_cluster() as cluster:
        with distributed.Client(cluster) as client, pytest.raises(distributed.KilledWorker):
            qelpro.scan(paths, WORDS, client=client)


def test_ctrl_c_cancels(client, paths, tmp_path, monkeypatch):
    begun, release = str(tmp_path / "begun"), str(tmp_path / "release")

    def waiting(first, places, names, words):
        open(begun, "w").close()
        while not os.path.exists(release):
            time.sleep(0.01)

    monkeypatch.setattr(_cluster, "read_chunk", waiting)

    def interrupt():
        while not os.path.exists(begun):
            time.sleep(0.01)
        os.kill(os.getpid(), signal.SIGINT)

    thread = threading.Thread(target=interrupt)
    thread.start()
    with pytest.raises(KeyboardInterrupt):
        qelpro.scan(paths, WORDS, client=client)
    thread.join()
    open(release, "w").close()
    nothing_left(client)


def test_a_worker_without_the_module_or_the_file_is_told(paths, tmp_path, monkeypatch):
    def forget():
        for name in [name for name in sys.modules if name.partition(".")[0] == "qelpro"]:
            del sys.modules[name]
        sys.meta_path.insert(0, NoModule())

    class NoModule:
        def find_spec(self, name, *others):
            if name == "qelpro":
                raise ModuleNotFoundError("No module named 'qelpro'", name="qelpro")

    with new_cluster(n_workers=1) as cluster, distributed.Client(cluster) as client:

        def blind(first, places, names, words):
            from qelpro._cluster import read_chunk

            return read_chunk(first, [place + ".elsewhere" for place in places], names, words)

        with monkeypatch.context() as patched:
            patched.setattr(_cluster, "read_chunk", blind)
            with pytest.raises(FileNotFoundError, match="the same paths") as raised:
                qelpro.scan(paths, WORDS, client=client)
            assert raised.value.filename == str(paths[0])
        client.run(forget)
        with pytest.raises(ImportError, match="install it where the workers run"):
            qelpro.scan(paths, WORDS, client=client)

        # The cluster ends while a worker is at it.
        begun = str(tmp_path / "begun")

        def waiting(first, places, names, words):
            open(begun, "w").close()
            time.sleep(1000)

        def close():
            while not os.path.exists(begun):
                time.sleep(0.01)
            client.close()

        monkeypatch.setattr(_cluster, "read_chunk", waiting)
        thread = threading.Thread(target=close)
        thread.start()
        with pytest.raises(RuntimeError, match="closed"):
            qelpro.scan(paths, WORDS, client=client)
        thread.join()
    with pytest.raises(RuntimeError, match="closed"):
        qelpro.scan(paths, WORDS, client=client)


def test_what_is_no_client_is_a_type_error(client, paths):
    for other in (7, "tcp://localhost:1", distributed.Client):
        with pytest.raises(TypeError, match="Client"):
            qelpro.scan(paths, WORDS, client=other)

    async def asynchronously():
        async with distributed.Client(client.scheduler.address, asynchronous=True) as other:
            with pytest.raises(TypeError, match="asynchronous"):
                qelpro.scan(paths, WORDS, client=other)

    import asyncio

    asyncio.run(asynchronously())
