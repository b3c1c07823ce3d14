"""Paths as the engine takes them."""

from __future__ import annotations

import os
from typing import Union

StrPath = Union[str, "os.PathLike[str]"]


def name_of(path: StrPath) -> str:
    """The path as its user names it. TypeError for what is none, ValueError for a NUL in it."""
    name = os.fsdecode(os.fspath(path))
    if "\0" in name:
        raise ValueError("embedded null byte")
    # By itself it would be standard input.
    return "./-" if name == "-" else name


def place_of(path: StrPath) -> str:
    """Where that is, whatever folder is the current one later."""
    name = name_of(path)
    # As it stands: "folder/.." is another folder where "folder" is a link.
    return os.path.join(os.getcwd(), name) if name else name
