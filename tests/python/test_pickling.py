"""Objects pickle by path, so that they travel to workers."""

import copy
import multiprocessing
import os
import pickle

import pytest
from conftest import ROOT

import qelpro

PROTOCOLS = range(2, pickle.HIGHEST_PROTOCOL + 1)


def again(value, protocol=pickle.DEFAULT_PROTOCOL):
    return pickle.loads(pickle.dumps(value, protocol))


@pytest.mark.parametrize("protocol", PROTOCOLS)
def test_a_file_is_the_same_file(file, path, protocol):
    other = again(file, protocol)
    assert type(other) is qelpro.ProcessFile
    assert other.path == path
    other["Flow-1"]["FillTime"] = 2
    assert file["Flow-1"]["FillTime"] == 2.0


@pytest.mark.parametrize("protocol", PROTOCOLS)
def test_a_section_is_the_same_section(file, protocol):
    other = again(file["Flow-1"], protocol)
    assert (type(other), other.name) == (qelpro.Section, "Flow-1")
    other["FillTime"] = 2
    assert file["Flow-1"]["FillTime"] == 2.0


def test_what_travels_is_the_path_and_not_the_contents(file):
    assert len(pickle.dumps(file)) < 300


def test_a_relative_path_travels_to_another_folder(path, monkeypatch):
    monkeypatch.chdir(path.parent)
    pickled = [
        pickle.dumps(kind)
        for kind in (qelpro.ProcessFile("a.pro"), qelpro.ProcessFile("a.pro")["Flow-1"])
    ]
    monkeypatch.chdir(os.sep)
    assert pickle.loads(pickled[0])["Flow-1"]["FillTime"] == 1.0
    assert pickle.loads(pickled[1])["FillTime"] == 1.0


def test_a_file_that_is_gone_is_told_where_it_arrives(file, path):
    pickled = pickle.dumps(file)
    path.unlink()
    with pytest.raises(FileNotFoundError):
        pickle.loads(pickled)


def test_copies_are_of_the_same_file(file):
    for other in (copy.copy(file), copy.deepcopy(file)):
        assert other is not file
        other["Flow-1"]["FillTime"] = 3
        assert file["Flow-1"]["FillTime"] == 3.0


@pytest.mark.parametrize("protocol", PROTOCOLS)
def test_banks_and_tables_travel(protocol, monkeypatch):
    monkeypatch.chdir(ROOT / "tests/data")
    bank = again(qelpro.MachineBank("machines.bank"), protocol)
    assert bank.machines("Tessaro") == qelpro.MachineBank("machines.bank").machines("Tessaro")
    pickled = pickle.dumps(qelpro.CoolantTable("coolants.pcs"), protocol)
    monkeypatch.chdir(os.sep)
    assert pickle.loads(pickled).properties(6, 25) == qelpro.CoolantTable(
        ROOT / "tests/data/coolants.pcs"
    ).properties(6, 25)
    assert bank.path == ROOT / "tests/data/machines.bank"


def test_records_travel(path, tmp_path):
    path.write_text("[Flow-1]\nFillTime = 1,2\nFRSet=1\nFR-1=0 1\n")
    (tmp_path / "b.pro").write_text("[Flow-1]\nFillTime = 1\n[Machine]\nMaker = Any\n")
    records = [
        *qelpro.ProcessFile(path).check(),
        *qelpro.diff(path, tmp_path / "b.pro"),
        *qelpro.MachineBank(ROOT / "tests/data/machines.bank").machines("Tessaro"),
        qelpro.CoolantTable(ROOT / "tests/data/coolants.pcs").properties(0, 25),
    ]
    assert {type(record).__name__ for record in records} == {
        "Finding",
        "Difference",
        "Machine",
        "CoolantProperties",
    }
    assert again(records) == records
    assert [type(record) for record in again(records)] == [type(record) for record in records]


def test_a_process_travels(path):
    path.write_text("[Flow-1]\nFillTime = 1\nFRSet=1\nFR-1=0 1\n[Machine]\nMaker = Any\n")
    process = again(qelpro.load_process(path))
    assert process.machine.Maker == "Any"
    assert process.inlets[0].FillTime == 1.0
    assert process.inlets[0].MeltTemp is None
    assert process.inlets[0].flow_rate.tolist() == [[0, 1]]


def test_errors_travel(path):
    path.unlink()
    with pytest.raises(FileNotFoundError) as raised:
        qelpro.ProcessFile(path)
    other = again(raised.value)
    assert (type(other), other.errno, other.filename) == (
        FileNotFoundError,
        raised.value.errno,
        str(path),
    )


def set_fill_time(section, value):
    section["FillTime"] = value
    return section["FillTime"], os.getpid()


def test_objects_travel_to_processes_that_know_nothing_of_this_one(file):
    with multiprocessing.get_context("spawn").Pool(1) as pool:
        value, worker = pool.apply(set_fill_time, (file["Flow-1"], 2.5))
    assert value == 2.5 and worker != os.getpid()
    assert file["Flow-1"]["FillTime"] == 2.5
