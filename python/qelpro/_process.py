"""The simulator's process of a file."""

from __future__ import annotations

from typing import Any, cast

from . import _engine
from ._items import HeatTransferItems, InletItems, MachineItems, ProcessItems
from ._paths import StrPath, name_of


class _Values:
    """Values by name, of which None is one that the file does not say."""

    def __init_subclass__(cls) -> None:
        for base in cls.__bases__:
            if base is not _Values and cls.__doc__ and base.__doc__:
                cls.__doc__ += base.__doc__[base.__doc__.index("\n") :]

    def __init__(self, json: dict[str, Any]) -> None:
        for base in type(self).__mro__:
            for name in vars(base).get("__annotations__", {}):
                setattr(self, name, None)
        for name, value in json.items():
            if isinstance(value, list):
                value = _array(name, value)
            setattr(self, name.replace(" ", "_"), value)

    def _said(self) -> dict[str, Any]:
        return {name: value for name, value in vars(self).items() if value is not None}

    def to_dict(self) -> dict[str, Any]:
        """What the file says, by name: values, arrays, and dicts of what has values itself."""
        return {name: _plain(value) for name, value in self._said().items()}

    def __repr__(self) -> str:
        values = ", ".join(f"{name}={value!r}" for name, value in self._said().items())
        return f"{type(self).__name__}({values})"


class ProcessMachine(_Values, MachineItems):
    """The machine that a process runs on: what the file says of it, else None."""


class HeatTransfer(_Values, HeatTransferItems):
    """The heat transfer between melt and mold: what the file says of it, else None."""


class Inlet(_Values, InletItems):
    """An inlet of a process, by its ``number`` from 1: its values, None where the file does not say
    one, and its lists as float64 arrays."""

    number: int
    """From 1."""


class Process(_Values, ProcessItems):
    """The simulator's process: its values, None where the file does not say one, and its lists as
    float64 arrays; with ``machine``, ``heat_transfer`` and the lists ``inlets`` and ``notes``."""

    machine: ProcessMachine
    """The machine; its values are None where the file names none."""
    heat_transfer: HeatTransfer
    """The heat transfer between melt and mold."""
    inlets: list[Inlet]
    """The inlets in the order of their numbers, the first with number 1."""
    notes: list[dict[str, Any]]
    """What the file says and the process does not: dicts of "line", "section", "key" and
    "message"."""


def load_process(path: StrPath) -> Process:
    """The simulator's process of a file, as ``qelpro process --json`` tells it.

    Attributes have the names of that JSON, with underscores for blanks:
    ``process.inlets[0].FillTime``, ``process.machine.Maker``, ``process.inlets[0].flow_rate`` (an
    array of shape (n, 2)). What the file does not say is None, a profile that it does not have an
    array without rows. Units are those of ``catalogue()``. Raises what ``open()`` raises, and
    ValueError for a file without sections.

    >>> process = qelpro.load_process("a.pro")
    >>> process.inlets[0].FillTime, process.inlets[0].flow_rate.shape
    (1.0, (2, 2))
    """
    json = _engine.process(name_of(path))
    process = Process({**json.pop("values"), **_lists_of(json)})
    process.machine = ProcessMachine(json["machine"])
    process.heat_transfer = HeatTransfer(json["heat transfer"])
    process.notes = json["notes"]
    process.inlets = [Inlet({**inlet.pop("values"), **inlet}) for inlet in json["inlets"]]
    return process


def _plain(value: Any) -> Any:
    if isinstance(value, _Values):
        return value.to_dict()
    if isinstance(value, list):
        return [_plain(item) for item in value]
    return value


def _lists_of(json: dict[str, Any]) -> dict[str, Any]:
    return {
        name: value for name, value in json.items() if isinstance(value, list) and name not in ("inlets", "notes")
    }


def _array(name: str, values: list[Any]) -> Any:
    import numpy as np

    array = np.array(values, dtype=np.float64)
    is_single = name.endswith(("positions", "constants"))
    return array if values or is_single else cast(Any, array.reshape(0, 2))
