"""A stand-in for a filling solver: reads a process file, writes the filling pressure beside it.

usage: solver.py FILE

The part is a strip that is filled from one end: the pressure that drives a melt of constant
viscosity through a slit, whose frozen layers grow with the square root of the time.
"""

from __future__ import annotations

import math
import sys
from pathlib import Path

import qelpro

LENGTH = 0.25  # of the strip, in m
THICKNESS = 2e-3  # in m
DIFFUSIVITY = 1e-7  # of heat in the melt, in m^2/sec
VISCOSITY = 200.0  # of the melt at 230 oC, in Pa sec
THINNING = 0.02  # how the viscosity falls with temperature, in 1/oC


def filling_pressure(fill_time: float, melt_temperature: float) -> float:
    """In MPa, of a time in sec and a temperature in oC."""
    viscosity = VISCOSITY * math.exp(-THINNING * (melt_temperature - 230))
    opening = THICKNESS - 2 * math.sqrt(DIFFUSIVITY * fill_time)
    speed = LENGTH / fill_time
    return 12 * viscosity * speed * LENGTH / opening**2 / 1e6


def main(path: Path) -> None:
    inlet = qelpro.load_process(path).inlets[0]
    if inlet.FillTime is None or inlet.MeltTemp is None:
        sys.exit(f"{path}: the first inlet has no filling time or no melt temperature")
    pressure = filling_pressure(inlet.FillTime, inlet.MeltTemp)
    path.with_suffix(".txt").write_text(f"filling pressure = {pressure!r}\n")


if __name__ == "__main__":
    main(Path(sys.argv[1]))
