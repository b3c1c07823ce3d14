"""What the functions of the package answer with."""

from __future__ import annotations

from typing import Any, NamedTuple


class Finding(NamedTuple):
    """Something that is wrong, or may be, with a file: what a line of ``qelpro check`` tells.

    - ``file``: the path as it was given
    - ``line``, ``column``: where, from 1; columns in bytes
    - ``severity``: ``"error"``, ``"warning"`` or ``"note"``
    - ``code``: which kind it is, ``"P201"``
    - ``message``: what is wrong, in words
    - ``section``: with brackets; ``""`` where there is none
    - ``key``: ``""`` where there is none
    - ``hint``: a name that is near, or what to do; may be ``""``
    """

    file: str
    line: int
    column: int
    severity: str
    code: str
    message: str
    section: str
    key: str
    hint: str


class Difference(NamedTuple):
    """A difference between two files: of an entry, of a profile, or of a section of one alone.

    - ``kind``: ``"changed"``, ``"added"`` or ``"removed"``
    - ``address``: ``"Flow-1.FillTime"``, ``"Flow-1.FR"`` of a profile, ``"[Flow-2]"`` of a section
    - ``old``, ``new``: the typed value, the points of a profile; None where there is none
    """

    kind: str
    address: str
    old: Any
    new: Any


class Machine(NamedTuple):
    """A machine of a bank.

    - ``maker``: who makes it
    - ``grade``: its model
    """

    maker: str
    grade: str


class CoolantProperties(NamedTuple):
    """The properties of a coolant at a temperature, four floats, in the units of its table.

    - ``density``
    - ``specific_heat``: the specific heat capacity
    - ``conductivity``: the thermal conductivity
    - ``viscosity``
    """

    density: float
    specific_heat: float
    conductivity: float
    viscosity: float
