"""New files, differences, the catalogue."""

from __future__ import annotations

from typing import Any

from . import _engine
from ._paths import StrPath, name_of
from ._records import Difference


def new(path: StrPath) -> None:
    """Makes a process file with default values. FileExistsError where something is there."""
    _engine.new(name_of(path))


def diff(a: StrPath, b: StrPath, tolerance: float = 0.0) -> list[Difference]:
    """The differences between two files, in the order of the first, then what the second alone has.

    ``tolerance`` is how far two floats may lie from each other that count as the same, relative to
    the larger magnitude of the two. ValueError for one below 0.
    """
    if not tolerance >= 0:
        raise ValueError(f"a tolerance is 0 or above, not {tolerance!r}")
    return [
        Difference(*fields)
        for fields in _engine.differences(name_of(a), name_of(b), float(tolerance))
    ]


def catalogue() -> dict[str, dict[str, Any]]:
    """The sections and keys that the library knows.

    ``{section: {"subject": ..., "keys": {key: {"meaning", "unit", "encoding", "fields",
    "members"}}}}``. Names are those of the catalogue, with ``%d`` or ``%ld`` where a number stands;
    "unit" is "" where there is none; "fields" are dicts of "name", "kind" ("integer", "real",
    "text") and "meaning"; "members" are those of the C++ classes. Some keys have more: "codes",
    dicts of "code" and "meaning", "counts" or "notes". Of two encodings of one key the first
    counts.
    """
    sections: dict[str, dict[str, Any]] = {}
    for section in _engine.catalogue():
        keys: dict[str, dict[str, Any]] = {}
        for key in section["keys"]:
            keys.setdefault(key["key"], {"unit": "", **key}).pop("key", None)
        sections[section["section"]] = {"subject": section["subject"], "keys": keys}
    return sections


