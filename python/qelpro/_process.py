"""The simulator's process of a file."""

from __future__ import annotations

from typing import Any, cast

from . import _engine
from ._items import HeatTransferItems, InletItems, MachineItems, ProcessItems
from ._paths import StrPath, name_of


class _Values:
    """Values by name, of which None is one that the file does not say."""

    def __init__(self, json: dict[str, Any]) -> None:
        for base in type(self).__mro__:
            for name in vars(base).get("__annotations__", {}):
                setattr(self, name, None)
        for name, value in json.items():
            if isinstance(value, list):
                value = _array(name, value)
            setattr(self, name.replace(" ", "_"), value)

    def to_dict(self) -> dict[str, Any]:
        """What the file says, by name."""
        return {name: value for name, value in vars(self).items() if value is not None}

    def __repr__(self) -> str:
        values = ", ".join(f"{name}={value!r}" for name, value in self.to_dict().items())
        return f"{type(self).__name__}({values})"


class ProcessMachine(_Values, MachineItems):
    """The machine that a process runs on."""


class HeatTransfer(_Values, HeatTransferItems):
    """The heat transfer between melt and mold."""


class Inlet(_Values, InletItems):
    """An inlet of a process: its values, and its lists as arrays."""

    number: int
    """From 1."""


class Process(_Values, ProcessItems):
    """The simulator's process: its values, None where the file does not say one, and its lists as
    arrays."""

    machine: ProcessMachine
    heat_transfer: HeatTransfer
    inlets: list[Inlet]
    notes: list[dict[str, Any]]
    """What the file says and the process does not: dicts of "line", "section", "key" and
    "message"."""


def load_process(path: StrPath) -> Process:
    """The simulator's process of a file, as ``qelpro process --json`` tells it.

    Attributes have the names of that JSON, with underscores for blanks:
    ``process.inlets[0].FillTime``, ``process.machine.Maker``, ``process.inlets[0].flow_rate`` (an
    array of shape (n, 2)). Units are those of :func:`catalogue`. Raises what ``open()`` raises, and
    ValueError for a file without sections.
    """
    json = _engine.process(name_of(path))
    process = Process({**json.pop("values"), **_lists_of(json)})
    process.machine = ProcessMachine(json["machine"])
    process.heat_transfer = HeatTransfer(json["heat transfer"])
    process.notes = json["notes"]
    process.inlets = [Inlet({**inlet.pop("values"), **inlet}) for inlet in json["inlets"]]
    return process


def _lists_of(json: dict[str, Any]) -> dict[str, Any]:
    return {
        name: value for name, value in json.items() if isinstance(value, list) and name not in ("inlets", "notes")
    }


def _array(name: str, values: list[Any]) -> Any:
    import numpy as np

    array = np.array(values, dtype=np.float64)
    is_single = name.endswith(("positions", "constants"))
    return array if values or is_single else cast(Any, array.reshape(0, 2))
