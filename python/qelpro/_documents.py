"""New files, differences, the catalogue."""

from __future__ import annotations

from typing import Any

from . import _engine
from ._catalogue import CatalogueKey, CatalogueSection
from ._paths import StrPath, name_of
from ._records import Difference


def new(path: StrPath) -> None:
    """Makes a process file with default values.

    Raises FileExistsError where something is there, and what else ``open()`` raises.
    """
    _engine.new(name_of(path))


def diff(a: StrPath, b: StrPath, tolerance: float = 0.0) -> list[Difference]:
    """The differences between two files, in the order of the first, then what the second alone has.

    >>> qelpro.diff("a.pro", "b.pro")
    [Difference(kind='changed', address='Flow-1.MeltTemp', old=230.0, new=240.0)]

    ``tolerance`` is how far two floats may lie from each other that count as the same, relative to
    the larger magnitude of the two. Raises what ``open()`` raises, and
    ValueError for a tolerance below 0.
    """
    if not tolerance >= 0:
        raise ValueError(f"a tolerance is 0 or above, not {tolerance!r}")
    return [
        Difference(*fields)
        for fields in _engine.differences(name_of(a), name_of(b), float(tolerance))
    ]


def catalogue() -> dict[str, CatalogueSection]:
    """The sections and keys that the library knows.

    ``{section: {"subject": ..., "keys": {key: {"meaning", "unit", "encoding", "fields",
    "members"}}}}``. Names are those of the catalogue, with ``%d`` or ``%ld`` where a number stands;
    "unit" is "" where there is none; "fields" are dicts of "name", "kind" ("integer", "real",
    "text") and "meaning"; "members" are those of the C++ classes. A key of a profile's points has
    "number" and "counted_by" besides, its count "counts", a key of codes "codes" (dicts of "code"
    and "meaning"), a key that is written otherwise than it is read "written", and some "notes". Of
    two encodings of one key the first counts.

    >>> qelpro.catalogue()["Flow-%ld"]["keys"]["FillTime"]["unit"]
    'sec'
    """
    sections: dict[str, CatalogueSection] = {}
    for section in _engine.catalogue():
        keys: dict[str, CatalogueKey] = {}
        for key in section["keys"]:
            known: Any = {"meaning": "", "unit": "", **key}
            keys.setdefault(known.pop("key"), known)
        sections[section["section"]] = {"subject": section["subject"], "keys": keys}
    return sections
