"""What the operating system refuses is raised as open() raises it."""

import errno
import os

import pytest
from conftest import in_a_child

import qelpro

READS = {
    "ProcessFile": qelpro.ProcessFile,
    "diff": lambda path: qelpro.diff(path, path),
    "load_process": qelpro.load_process,
    "MachineBank": qelpro.MachineBank,
    "CoolantTable": qelpro.CoolantTable,
    "sweep": lambda path: qelpro.sweep(path, {"Flow-1.MeltTemp": [1]}, os.fspath(path) + ".study"),
    "scan": lambda path: qelpro.scan([path], ["Flow-1.FillTime"]),
}


def of_open(path, mode="r"):
    with pytest.raises(OSError) as raised:
        open(path, mode).close()
    return raised.value


@pytest.fixture(params=READS)
def read(request):
    return READS[request.param]


def check_same(raised, wanted):
    assert type(raised) is type(wanted)
    assert raised.errno == wanted.errno
    assert raised.filename == os.fspath(wanted.filename)
    assert raised.strerror


def test_a_file_that_is_not_there(read, tmp_path):
    for path in (tmp_path / "a.pro", tmp_path / "no" / "a.pro", os.fspath(tmp_path / "a.pro")):
        with pytest.raises(FileNotFoundError) as raised:
            read(path)
        check_same(raised.value, of_open(path))


def test_a_folder(read, tmp_path):
    with pytest.raises(IsADirectoryError) as raised:
        read(tmp_path)
    check_same(raised.value, of_open(tmp_path))


def test_a_file_in_the_place_of_a_folder(read, path):
    with pytest.raises(NotADirectoryError) as raised:
        read(path / "b.pro")
    check_same(raised.value, of_open(path / "b.pro"))


def test_links_that_go_round(read, tmp_path):
    (tmp_path / "a").symlink_to("b")
    (tmp_path / "b").symlink_to("a")
    with pytest.raises(OSError) as raised:
        read(tmp_path / "a")
    assert raised.value.errno == errno.ELOOP


def test_a_name_that_is_too_long(read, tmp_path):
    path = tmp_path / ("a" * 1000)
    with pytest.raises(OSError) as raised:
        read(path)
    check_same(raised.value, of_open(path))


def test_a_name_without_characters(read):
    with pytest.raises(FileNotFoundError):
        read("")


def test_a_pipe_is_not_waited_for(read, tmp_path):
    os.mkfifo(tmp_path / "a.pro")
    with pytest.raises(OSError) as raised:
        read(tmp_path / "a.pro")
    assert raised.value.filename == os.fspath(tmp_path / "a.pro")


def as_nobody(work):
    """Does the work as a user without rights, in a child; its status is 0 where it came back."""

    def drop_and_work():
        if os.geteuid() == 0:
            os.setegid(65534)
            os.seteuid(65534)
        work()

    return in_a_child(drop_and_work)


@pytest.fixture
def open_to_all(tmp_path):
    """A folder that everybody reaches; the folders of pytest are their owner's alone."""
    import tempfile

    with tempfile.TemporaryDirectory() as folder:
        os.chmod(folder, 0o755)
        yield folder


def test_a_file_that_may_not_be_read(open_to_all, read):
    path = os.path.join(open_to_all, "a.pro")
    qelpro.new(path)
    os.chmod(path, 0)

    def work():
        with pytest.raises(PermissionError) as raised:
            read(path)
        check_same(raised.value, of_open(path))

    assert as_nobody(work) == 0


def test_a_file_that_may_not_be_written(open_to_all):
    path = os.path.join(open_to_all, "a.pro")
    qelpro.new(path)
    os.chmod(path, 0o444)
    with open(path, "rb") as stream:
        before = stream.read()

    def work():
        file = qelpro.ProcessFile(path)
        assert file["Flow-1"]["FillTime"] == 1.0
        changes = [
            lambda: file["Flow-1"].update(FillTime=2),
            lambda: file.set_profile("Flow-1", "FR", [[0, 1]]),
            lambda: file.pop("Unit"),
            lambda: qelpro.ProcessFile.from_dict({}, path, overwrite=True),
        ]
        for change in changes:
            with pytest.raises(PermissionError) as raised:
                change()
            check_same(raised.value, of_open(path, "r+"))

    assert as_nobody(work) == 0
    with open(path, "rb") as stream:
        assert stream.read() == before
    assert os.listdir(open_to_all) == ["a.pro"]


def test_a_folder_that_may_not_be_written(open_to_all):
    path = os.path.join(open_to_all, "a.pro")
    qelpro.new(path)
    os.chmod(path, 0o666)

    def work():
        file = qelpro.ProcessFile(path)
        with pytest.raises(PermissionError) as raised:
            file["Flow-1"]["FillTime"] = 2
        assert raised.value.filename == path
        for make in (qelpro.new, lambda other: qelpro.ProcessFile.from_dict({}, other)):
            with pytest.raises(PermissionError) as raised:
                make(os.path.join(open_to_all, "b.pro"))
            assert raised.value.filename == os.path.join(open_to_all, "b.pro")

    assert as_nobody(work) == 0
    assert os.listdir(open_to_all) == ["a.pro"]


def test_a_file_that_vanishes_is_told_by_each_call(file, path):
    path.unlink()
    calls = [
        lambda: file["Flow-1"]["FillTime"],
        lambda: file["Flow-1"].update(FillTime=2),
        lambda: list(file), lambda: len(file), lambda: "Flow-1" in file, lambda: file.to_dict(),
        lambda: file.check(), lambda: file.inlets, lambda: file.profile("Flow-1", "FR"),
        lambda: file.set_profile("Flow-1", "FR", [[0, 1]]), lambda: file.get("Flow-1"),
    ]  # fmt: skip
    for call in calls:
        with pytest.raises(FileNotFoundError) as raised:
            call()
        assert raised.value.filename == str(path)
    with pytest.raises(FileNotFoundError):
        file["Flow-1"]["FillTime"] = 2
    with pytest.raises(FileNotFoundError):
        del file["Flow-1"]
    assert os.listdir(path.parent) == []
    qelpro.new(path)
    assert file["Flow-1"]["FillTime"] == 1.0


def test_a_file_that_becomes_a_folder_is_told(file, path):
    path.unlink()
    path.mkdir()
    with pytest.raises(IsADirectoryError):
        file["Flow-1"]["FillTime"]
    with pytest.raises(IsADirectoryError):
        file["Flow-1"]["FillTime"] = 2


@pytest.mark.parametrize("encoding", ["utf-16", "utf-16-be", "utf-16-le"])
def test_a_file_of_utf_16_is_a_value_error(path, encoding):
    contents = "\ufeff[Flow-1]\nFillTime = 1\n".encode(encoding)
    path.write_bytes(contents)
    with pytest.raises(ValueError, match="UTF-16"):
        qelpro.ProcessFile(path)
    assert path.read_bytes() == contents


def test_a_file_that_becomes_one_of_utf_16_is_not_changed(file, path):
    contents = "[Flow-1]\nFillTime = 1\n".encode("utf-16")
    path.write_bytes(contents)
    for call in (lambda: file["Flow-1"]["FillTime"], lambda: file["Flow-1"].update(FillTime=2)):
        with pytest.raises(ValueError):
            call()
    assert path.read_bytes() == contents


def test_new_files_where_none_can_be(tmp_path, path):
    for wrong, error in [
        (tmp_path / "no" / "b.pro", FileNotFoundError),
        (path / "b.pro", NotADirectoryError),
    ]:
        for make in (qelpro.new, lambda other: qelpro.ProcessFile.from_dict({}, other)):
            with pytest.raises(error) as raised:
                make(wrong)
            assert raised.value.filename == str(wrong)


def test_a_link_to_nothing_is_no_place_for_a_new_file(tmp_path):
    (tmp_path / "a.pro").symlink_to("b.pro")
    for make in (qelpro.new, lambda path: qelpro.ProcessFile.from_dict({}, path)):
        with pytest.raises(FileExistsError):
            make(tmp_path / "a.pro")
    assert os.listdir(tmp_path) == ["a.pro"]


def test_an_error_names_the_file_as_its_user_does(tmp_path, monkeypatch):
    monkeypatch.chdir(tmp_path)
    qelpro.new("a.pro")
    file = qelpro.ProcessFile("a.pro")
    os.remove("a.pro")
    with pytest.raises(FileNotFoundError) as raised:
        file["Flow-1"]["FillTime"] = 2
    assert raised.value.filename == "a.pro"
