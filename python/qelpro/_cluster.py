"""Files that the workers of a cluster read."""

from __future__ import annotations

from typing import Any

from . import _engine
from ._missing import needed
from ._table import Chunk

_CHUNK = 500
"""How many files a worker reads at once: so many that to send them costs little, so few that a
worker that dies loses little."""


def read_chunk(first: int, places: list[str], names: list[str], words: list[str]) -> Chunk:
    """What a worker does. A cluster has a thread for each of its cores."""
    return Chunk(first, *_engine.scan(places, names, words, 1))


def scanned_by(client: Any, places: list[str], names: list[str], words: list[str]) -> list[Chunk]:
    """The chunks in the order of the files. TypeError for a client that is none."""
    distributed = needed("distributed", "scan() on a cluster")
    if not isinstance(client, distributed.Client):
        raise TypeError(f"client is a dask.distributed Client, not {type(client).__name__}")
    if client.asynchronous:
        raise TypeError("client is asynchronous; scan() waits: give one that is not")
    futures = [
        client.submit(
            read_chunk,
            first,
            places[first : first + _CHUNK],
            names[first : first + _CHUNK],
            words,
            pure=False,  # a file may have changed since
            retries=3,
        )
        for first in range(0, len(places), _CHUNK)
    ]
    try:
        return list(client.gather(futures)) or [Chunk(0, *_engine.scan([], [], words, 1))]
    finally:
        client.cancel(futures)
