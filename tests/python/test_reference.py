"""Machine banks and coolant tables."""

import pytest
from conftest import ROOT

import qelpro

BANKS = [ROOT / "tests/data/machines.bank", ROOT / "examples/machines.bank"]
TABLES = [ROOT / "tests/data/coolants.pcs", ROOT / "examples/coolants.pcs"]


@pytest.mark.parametrize("path", BANKS, ids=lambda path: path.parent.name)
def test_makers_and_machines_are_those_of_the_tool(path, tool):
    bank = qelpro.MachineBank(path)
    printed = tool("machines", path, "--json")
    assert bank.makers == [entry["maker"] for entry in printed]
    for entry in printed:
        machines = bank.machines(entry["maker"])
        assert len(machines) == entry["grades"]
        grades = tool("machines", path, entry["maker"], "--json")["grades"]
        assert machines == [(entry["maker"], grade) for grade in grades]
        assert all(type(machine) is qelpro.Machine for machine in machines)


def test_machines_have_maker_and_grade_repeats_included():
    machines = qelpro.MachineBank(BANKS[0]).machines("Tessaro")
    assert [machine.grade for machine in machines] == ["T 160 Hybrid", "T 160 Hybrid", "T 320"]
    assert {machine.maker for machine in machines} == {"Tessaro"}


def test_an_unknown_maker_is_a_key_error():
    bank = qelpro.MachineBank(BANKS[0])
    with pytest.raises(KeyError, match="No One"):
        bank.machines("No One")
    with pytest.raises(KeyError):
        bank.machines(1)


@pytest.mark.parametrize(
    "contents",
    [
        b"",
        b"x",
        b"[Header]\nVersion,1\n",
        b"[Header]\nVersion,x\n",
        b"[Flow-1]\nFillTime = 1\n",
        b"\0\xff",
    ],
)
def test_what_is_no_bank_of_the_version_is_a_value_error(tmp_path, contents):
    path = tmp_path / "a.bank"
    path.write_bytes(contents)
    with pytest.raises(ValueError, match="a.bank"):
        qelpro.MachineBank(path)


def test_a_bank_of_another_version_is_a_value_error():
    with pytest.raises(ValueError):
        qelpro.MachineBank(ROOT / "tests/data/machines_foreign_version.bank")


@pytest.mark.parametrize("kind", [qelpro.MachineBank, qelpro.CoolantTable])
def test_a_file_that_cannot_be_read_raises_what_open_raises(kind, tmp_path):
    for path, error in [(tmp_path / "a", FileNotFoundError), (tmp_path, IsADirectoryError)]:
        with pytest.raises(error) as raised:
            kind(path)
        assert raised.value.filename == str(path)
    with pytest.raises(TypeError):
        kind(None)


@pytest.mark.parametrize("temperature", [-100, 5, 10, 14.1, 25, 99.99, 1e6])
@pytest.mark.parametrize("path", TABLES, ids=lambda path: path.parent.name)
def test_properties_are_those_of_the_tool(path, temperature, tool):
    printed = tool("coolant", path, "0", f"{temperature}", "--json")
    properties = qelpro.CoolantTable(path).properties(0, temperature)
    assert list(properties) == printed["properties"]
    assert all(type(value) is float for value in properties)


def test_properties_are_named():
    properties = qelpro.CoolantTable(TABLES[1]).properties(0, 25.0)
    assert type(properties) is qelpro.CoolantProperties
    assert properties._fields == ("density", "specific_heat", "conductivity", "viscosity")
    assert properties == (
        properties.density,
        properties.specific_heat,
        properties.conductivity,
        properties.viscosity,
    )


def test_a_coolant_is_asked_for_by_its_identifier(tool):
    table = qelpro.CoolantTable(TABLES[0])
    assert (
        list(table.properties(6, 25))
        == tool("coolant", TABLES[0], "6", "25", "--json")["properties"]
    )
    assert table.properties(6, 25) != table.properties(0, 25)


@pytest.mark.parametrize("coolant", [3, 4, 5, 77, -1, 2**31 - 1, 2**40])
def test_a_coolant_that_is_not_there_is_a_key_error(coolant):
    with pytest.raises(KeyError):
        qelpro.CoolantTable(TABLES[0]).properties(coolant, 25)


@pytest.mark.parametrize(
    "arguments", [("0", 25), (0, "25"), (None, 25), (0, None), (0.5, 25)]
)
def test_what_is_no_number_is_a_type_error(arguments):
    with pytest.raises(TypeError):
        qelpro.CoolantTable(TABLES[0]).properties(*arguments)


def test_they_stay_as_they_were_when_they_were_read(tmp_path):
    path = tmp_path / "a.bank"
    path.write_bytes(BANKS[0].read_bytes())
    bank = qelpro.MachineBank(path)
    path.unlink()
    assert "Tessaro" in bank.makers and bank.machines("Tessaro")
    table_path = tmp_path / "a.pcs"
    table_path.write_bytes(TABLES[0].read_bytes())
    table = qelpro.CoolantTable(table_path)
    table_path.unlink()
    assert table.properties(0, 25.0) == qelpro.CoolantTable(TABLES[0]).properties(0, 25.0)
