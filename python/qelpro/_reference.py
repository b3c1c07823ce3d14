"""Machine banks and coolant tables."""

from __future__ import annotations

from operator import index
from pathlib import Path
from typing import Any

from . import _engine
from ._paths import StrPath, name_of, place_of
from ._records import CoolantProperties, Machine


class MachineBank:
    """The machines of a bank, as they were when it was read.

    >>> bank = qelpro.MachineBank("machines.bank")
    >>> bank.makers
    ['Norvik Presses', 'Tessaro']
    >>> bank.machines("Norvik Presses")[0]
    Machine(maker='Norvik Presses', grade='NP 50-110')

    Raises what ``open()`` raises, and ValueError for a file that is no bank, or one of another
    version. Pickles by its path.
    """

    def __init__(self, path: StrPath) -> None:
        self._name = name_of(path)
        self._place = place_of(path)
        self._bank = _engine.MachineBank(self._name)

    @property
    def path(self) -> Path:
        """Where the bank is."""
        return Path(self._place)

    @property
    def makers(self) -> list[str]:
        """The makers, in the order of their bytes."""
        return self._bank.makers()

    def machines(self, maker: str) -> list[Machine]:
        """The machines of a maker in the bank's order, repeats included; KeyError for another."""
        if not isinstance(maker, str):
            raise KeyError(maker)
        return [Machine(maker, grade) for grade in self._bank.grades(maker)]

    def __repr__(self) -> str:
        return f"MachineBank({self._name!r})"

    def __reduce__(self) -> tuple[Any, ...]:
        return (type(self), (self._place,))


class CoolantTable:
    """The coolants of a settings file, as they were when it was read.

    >>> water = qelpro.CoolantTable("coolants.pcs").properties(0, 25.0)
    >>> water.density, water.viscosity
    (0.9953125, 0.010211875)

    Raises what ``open()`` raises. Pickles by its path.
    """

    def __init__(self, path: StrPath) -> None:
        self._name = name_of(path)
        self._place = place_of(path)
        self._table = _engine.CoolantTable(self._name)

    @property
    def path(self) -> Path:
        """Where the table is."""
        return Path(self._place)

    def properties(self, coolant: int, temperature: float) -> CoolantProperties:
        """The four properties of a coolant at a temperature, linear between two rows of its table.

        ``coolant`` is its identifier: up to 2 the number of its section, from 6 on that number plus
        3. Outside of the table they are those of the first or the last row. KeyError for a coolant
        that is not there.
        """
        number = index(coolant)
        if abs(number) >= 2**31:
            raise KeyError(f"{self._name}: coolant {number}: not found")
        return CoolantProperties(*self._table.properties(number, float(temperature)))

    def __repr__(self) -> str:
        return f"CoolantTable({self._name!r})"

    def __reduce__(self) -> tuple[Any, ...]:
        return (type(self), (self._place,))
