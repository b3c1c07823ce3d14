"""The simulator's process is that of the tool."""

import numpy as np
import pytest
from conftest import process_files

import qelpro

FILES = [
    path
    for path in process_files()
    if "[" in path.read_text("latin-1") and path.name != "broken.pro"
]


def printed(tool, path):
    json = tool("process", path, "--json")
    del json["notes"]
    return json


def plain(values):
    return {
        name: value.tolist() if isinstance(value, np.ndarray) else value
        for name, value in values.items()
    }


def underscored(json):
    return {name.replace(" ", "_"): value for name, value in json.items()}


def has_sections(path):
    return bool(list(qelpro.ProcessFile(path)))


@pytest.mark.parametrize("path", FILES, ids=lambda path: path.name)
def test_the_process_is_the_tools(path, tool):
    if not has_sections(path):
        with pytest.raises(ValueError):
            qelpro.load_process(path)
        return
    json = printed(tool, path)
    process = qelpro.load_process(path)
    inlets = json.pop("inlets")
    for name, value in {**json.pop("values"), **json}.items():
        held = getattr(process, name.replace(" ", "_"))
        if isinstance(value, dict):
            assert plain(held.to_dict()) == value
        else:
            assert (held.tolist() if isinstance(value, list) else held) == value
    assert len(process.inlets) == len(inlets)
    for inlet, values in zip(process.inlets, inlets):
        assert plain(inlet.to_dict()) == underscored({**values.pop("values"), **values})


def test_lists_are_arrays_of_float64(path):
    path.write_text(
        "[Flow-1]\nFRSet=2\nFR-1=0 50\nFR-2=100 40\n"
        "TimeConstFRSet=2\nTimeConstFR-1=5\nTimeConstFR-2=6\n"
    )
    inlet = qelpro.load_process(path).inlets[0]
    for array, shape in [
        (inlet.flow_rate, (2, 2)),
        (inlet.injection_pressure, (0, 2)),
        (inlet.flow_rate_time_constants, (2,)),
        (inlet.packing_pressure_time_constants, (0,)),
    ]:
        assert array.dtype == np.float64
        assert array.shape == shape
    np.testing.assert_array_equal(inlet.flow_rate, [[0, 50], [100, 40]])
    np.testing.assert_array_equal(inlet.flow_rate_time_constants, [5, 6])


def test_values_are_those_of_the_file_in_its_units(path):
    path.write_text("[Flow-1]\nFillTime=1.25\nMeltTemp=230\n[Machine]\nMaker=Any\nDiameter=25\n")
    process = qelpro.load_process(path)
    assert process.inlets[0].number == 1
    assert process.inlets[0].FillTime == 1.25
    assert process.inlets[0].MeltTemp == 230.0
    assert process.machine.Maker == "Any"
    assert process.machine.Diameter == 25.0
    units = qelpro.catalogue()["Flow-%ld"]["keys"]
    assert (units["FillTime"]["unit"], units["MeltTemp"]["unit"]) == ("sec", "oC")


def test_what_the_file_does_not_say_is_none(path):
    path.write_text("[Flow-1]\nFillTime=1.25\n")
    process = qelpro.load_process(path)
    assert process.inlets[0].MeltTemp is None
    assert process.machine.Maker is None
    assert process.heat_transfer.to_dict() == {}
    assert process.ProjectType is None
    for part in (process, process.machine, process.heat_transfer, process.inlets[0]):
        for base in type(part).__mro__:
            for name in vars(base).get("__annotations__", {}):
                getattr(part, name)


def test_each_value_of_the_process_has_its_attribute_and_its_meaning():
    from qelpro import _items

    for group in (
        _items.ProcessItems,
        _items.InletItems,
        _items.MachineItems,
        _items.HeatTransferItems,
    ):
        assert group.__doc__
        assert group.__annotations__
        assert all(name.isidentifier() for name in group.__annotations__)


def test_a_name_that_is_none_is_an_attribute_error(file):
    with pytest.raises(AttributeError):
        qelpro.load_process(file).inlets[0].NoSuchItem


def test_a_file_without_sections_is_a_value_error(path):
    path.write_text("x = 1\n")
    with pytest.raises(ValueError):
        qelpro.load_process(path)


def test_two_inlets_are_in_their_order(path):
    path.write_text("[FlowCTLInfo]\nTotalInlet=2\n[Flow-2]\nFillTime=2\n[Flow-1]\nFillTime=1\n")
    assert [(inlet.number, inlet.FillTime) for inlet in qelpro.load_process(path).inlets] == [
        (1, 1.0),
        (2, 2.0),
    ]


def test_a_repr_tells_what_is_there(path):
    path.write_text("[Flow-1]\nFillTime=1.25\n")
    text = repr(qelpro.load_process(path))
    assert "FillTime=1.25" in text and "MeltTemp" not in text
