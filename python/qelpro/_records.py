"""What the functions of the package answer with."""

from __future__ import annotations

from typing import Any, NamedTuple


class Finding(NamedTuple):
    """Something that is wrong, or may be, with a file."""

    file: str
    line: int
    """From 1."""
    column: int
    """From 1, in bytes."""
    severity: str
    """``"error"``, ``"warning"`` or ``"note"``."""
    code: str
    """``"P201"``: what kind it is."""
    message: str
    section: str
    """With brackets; empty where there is none."""
    key: str
    hint: str
    """A name that is near, or what to do; may be empty."""


class Difference(NamedTuple):
    """A difference between two files: of an entry, of a profile, or of a section of one alone."""

    kind: str
    """``"changed"``, ``"added"`` or ``"removed"``."""
    address: str
    """``"Flow-1.FillTime"``, ``"Flow-1.FR"`` of a profile, ``"[Flow-2]"`` of a section."""
    old: Any
    """The typed value, the points of a profile, None where there is none."""
    new: Any


class Machine(NamedTuple):
    """A machine of a bank."""

    maker: str
    grade: str


class CoolantProperties(NamedTuple):
    """The four properties of a coolant, in the order and in the units of the table."""

    density: float
    specific_heat: float
    conductivity: float
    viscosity: float
