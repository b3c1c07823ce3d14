"""What catalogue() answers with, for those who check types."""

from __future__ import annotations

from typing import TypedDict


class CatalogueField(TypedDict):
    """A field of a value."""

    name: str
    kind: str
    """``"integer"``, ``"real"`` or ``"text"``."""
    meaning: str


class CatalogueNumber(TypedDict):
    """What the ``%d`` of a key counts."""

    name: str
    meaning: str


class CatalogueCode(TypedDict):
    """What one value of a key stands for."""

    code: int
    meaning: str


class _CatalogueKey(TypedDict):
    meaning: str
    unit: str
    """``""`` where there is none, or the file's [Unit] says it."""
    encoding: str
    """How the value is written, ``"real"``, ``"integer"``, ``"real pair"``, ..."""
    fields: list[CatalogueField]
    """What reading yields: one value, or a tuple of as many."""
    members: list[str]
    """What reads and writes the key in C++."""


class CatalogueKey(_CatalogueKey, total=False):
    """What the catalogue knows of a key; these besides, where they apply."""

    number: CatalogueNumber
    written: list[CatalogueField]
    """The fields that are stored, where they are not those that are read."""
    codes: list[CatalogueCode]
    """What the values of a code stand for."""
    counted_by: str
    """The key that says how many points there are."""
    counts: list[str]
    """The keys whose number this one says."""
    notes: list[str]


class CatalogueSection(TypedDict):
    """What the catalogue knows of a section."""

    subject: str
    """What it is about."""
    keys: dict[str, CatalogueKey]
