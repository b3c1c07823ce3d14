"""Messages are those of a library: none speaks of the command line's options and commands."""

import pytest
from conftest import ROOT

import qelpro

EXAMPLES = ROOT / "examples"


@pytest.fixture
def refused(path):
    """What is refused, by name: calls that raise KeyError or ValueError."""
    file = qelpro.ProcessFile(path)
    bank = qelpro.MachineBank(EXAMPLES / "machines.bank")
    table = qelpro.CoolantTable(EXAMPLES / "coolants.pcs")
    folder = path.parent / "study"
    return {
        "a maker": lambda: bank.machines("Nobody"),
        "a coolant": lambda: table.properties(99, 25.0),
        "a key": lambda: file["Flow-1"]["NoSuchKey"],
        "a section": lambda: len(file["Flow-9"]),
        "a value": lambda: file["Flow-1"].update(FillTime="soon"),
        "a pattern": lambda: qelpro.sweep(path, {"Nope.*": [1]}, folder),
        "a range": lambda: qelpro.sweep(path, {"Flow-1.FillTime": "1:2"}, folder),
        "no values": lambda: qelpro.sweep(path, {"Flow-1.FillTime": []}, folder),
        "no ranges": lambda: qelpro.sweep(path, {}, folder),
        "an address": lambda: qelpro.scan([path], ["FillTime"]),
        "a profile": lambda: file.profile("Flow-1", "XX"),
        "a bank": lambda: qelpro.MachineBank(path),
    }


def test_no_message_speaks_of_the_command_line(refused):
    for what, call in refused.items():
        with pytest.raises((KeyError, ValueError)) as raised:
            call()
        message = str(raised.value)
        assert len(message) > 10, what
        assert "qelpro " not in message and "--" not in message, message


def test_a_message_keeps_what_helps(refused):
    with pytest.raises(KeyError, match='maker "Nobody": not found'):
        refused["a maker"]()
    with pytest.raises(KeyError, match="there are 0"):
        refused["a coolant"]()


def test_a_process_is_plain_data_all_through(path):
    process = qelpro.load_process(path)
    plain = process.to_dict()
    assert plain["machine"] == {} and plain["heat_transfer"] == {}
    assert [inlet["number"] for inlet in plain["inlets"]] == [1]
    assert plain["inlets"][0]["FillTime"] == 1.0
    assert plain["inlets"][0]["flow_rate"].shape == (2, 2)
    assert "FillTime=1.0" in repr(process) and "machine=ProcessMachine()" in repr(process)


def test_pop_takes_a_default_as_a_mapping_does(file):
    assert file.pop("Flow-9", None) is None
    assert file.pop("Flow-9", default=3) == 3
    assert file.pop(("Flow-1", "FillTime"), 3) == 1.0
    with pytest.raises(KeyError):
        file.pop("Flow-9")
    assert file.pop("Flow-1")["MeltTemp"] == 230
