"""Parameter studies."""

from __future__ import annotations

from collections.abc import Mapping
from operator import index
from pathlib import Path
from typing import Any

from . import _engine
from ._paths import StrPath, name_of

_MOST = 10_000_000


def sweep(
    path: StrPath,
    ranges: Mapping[str, object],
    folder: StrPath,
    *,
    samples: int | None = None,
    seed: int | None = None,
    overwrite: bool = False,
) -> list[Path]:
    """Makes the files of a parameter study, and gives their paths.

    ``ranges`` maps an address, or a pattern such as ``"Flow-*.MeltTemp"``, to its values: a list, a
    tuple ``(low, high)`` together with ``samples``, or a text of the command line
    (``"220:260:10"``). The files are every combination of the values, the last address the fastest;
    with ``samples`` that many of a Latin hypercube, the same for a ``seed`` everywhere. The folder
    is made where it is not there, and has ``manifest.csv`` and ``manifest.json``, which tell the
    values, and the seed.

    >>> files = qelpro.sweep("a.pro", {"Flow-1.MeltTemp": [220, 240]}, "study")
    >>> [file.name for file in files]
    ['a-0001.pro', 'a-0002.pro']

    Raises FileExistsError where a file of the study exists, unless ``overwrite``; ValueError for
    what a key's encoding cannot hold; KeyError for a pattern that matches nothing. Nothing is
    written then.
    """
    if not isinstance(ranges, Mapping):
        raise TypeError(
            f"ranges is a mapping from addresses to values, not {type(ranges).__name__}"
        )
    if not ranges:
        raise ValueError("ranges are empty: nothing varies")
    if samples is not None and not 1 <= index(samples) <= _MOST:
        raise ValueError(f"samples is 1 or more, and at most {_MOST}, not {samples}")
    if seed is not None and not 0 <= index(seed) < 2**64:
        raise ValueError(f"seed is a whole number from 0 to 2**64 - 1, not {seed}")
    settings = {address: _values(address, values, samples) for address, values in ranges.items()}
    names = _engine.sweep(name_of(path), settings, name_of(folder), samples, seed, overwrite)
    return [Path(name_of(folder)) / name for name in names]


def _values(address: str, values: Any, samples: int | None) -> Any:
    if isinstance(values, tuple):
        if samples is None or len(values) != 2:
            raise ValueError(f"{address}: a tuple is (low, high), with samples; give a list")
        low, high = values
        for value in values:
            if isinstance(value, (str, bytes)):
                raise TypeError(f"{address}: (low, high) are numbers")
        return f"{_engine.number_text(low)}:{_engine.number_text(high)}"
    if hasattr(values, "tolist"):
        values = values.tolist()
    if isinstance(values, str):
        return values
    if isinstance(values, (bytes, Mapping)):
        raise TypeError(f"{address}: values are a list, a tuple (low, high) or a text")
    try:
        return list(values)
    except TypeError:
        return [values]
