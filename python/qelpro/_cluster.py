"""Files that the workers of a cluster read."""

from __future__ import annotations

import os
from collections.abc import Iterator
from typing import Any

from . import _engine
from ._missing import needed
from ._table import Chunk

_LARGEST = 1000
"""The most files that a worker reads at once: so many that to send them costs little, so few that a
worker that dies loses little."""

_CHUNKS_OF_A_THREAD = 4
"""Into so many chunks at least, where there are files enough, so that no worker has nothing to do."""

_AHEAD = 3
"""The chunks for each thread that the cluster has at once: its memory does not grow with the list."""


def read_chunk(first: int, places: list[str], names: list[str], words: list[str]) -> Chunk:
    """What a worker does. A cluster has a thread for each of its cores."""
    return Chunk(first, *_engine.scan(places, names, words, 1))


def scanned_by(
    client: Any, places: list[str], names: list[str], words: list[str], up_to_error: bool
) -> list[Chunk]:
    """The chunks in the order of the files, or those up to the first one that has an error at
    least. TypeError for a client that is none."""
    distributed = needed("distributed", "scan() on a cluster")
    if not isinstance(client, distributed.Client):
        raise TypeError(f"client is a dask.distributed Client, not {type(client).__name__}")
    if client.asynchronous:
        raise TypeError("client is asynchronous; scan() waits: give one that is not")
    if client.status != "running":
        raise RuntimeError(f"the client has no cluster: it is {client.status}")
    threads = max(1, sum(client.nthreads().values()))
    size = min(_LARGEST, max(1, -(-len(places) // (threads * _CHUNKS_OF_A_THREAD))))
    rest = (
        client.submit(
            read_chunk,
            first,
            places[first : first + size],
            names[first : first + size],
            words,
            pure=False,  # a file may have changed since
        )
        for first in range(0, len(places), size)
    )
    chunks = _gathered(distributed, client, rest, threads * _AHEAD, up_to_error)
    _tell_of_missing_files(chunks, places)
    return chunks or [Chunk(0, *_engine.scan([], [], words, 1))]


def _gathered(
    distributed: Any, client: Any, rest: Iterator[Any], most: int, up_to_error: bool
) -> list[Chunk]:
    """So many at once. What is under way when it fails, or is interrupted, is cancelled."""
    under_way = distributed.as_completed()
    futures: dict[str, Any] = {}
    chunks: list[Chunk] = []

    def submit_another() -> bool:
        for future in rest:
            futures[future.key] = future
            under_way.add(future)
            return True
        return False

    try:
        while True:
            while len(futures) < most and submit_another():
                pass
            if not futures:
                break
            # Nobody else holds the future: the cluster forgets what has come.
            chunks.append(_result(distributed, futures.pop(next(under_way).key)))
            if up_to_error and chunks[-1].errors:
                most = 0  # those in front of it are under way
    finally:
        if futures and client.status == "running":
            client.cancel(list(futures.values()))
    return sorted(chunks, key=lambda chunk: chunk.first)


def _result(distributed: Any, future: Any) -> Chunk:
    if future.cancelled():
        raise RuntimeError("the cluster was closed, or the work cancelled, while scan() ran")
    try:
        chunk: Chunk = future.result()
    except distributed.CancelledError:
        raise RuntimeError("the cluster was closed, or the work cancelled, while scan() ran") from None
    except ImportError as error:
        raise ImportError(
            f"a worker of the cluster cannot import qelpro ({error}): "
            "install it where the workers run, in the version of the caller"
        ) from error
    return chunk


def _tell_of_missing_files(chunks: list[Chunk], places: list[str]) -> None:
    """A file that is here, and not where the worker is, is the user's riddle otherwise."""
    for chunk in chunks:
        for index, (row, error, text) in enumerate(chunk.errors):
            if isinstance(error, FileNotFoundError) and os.path.exists(places[chunk.first + row]):
                reason = "not there for the worker: a cluster's workers see the files under the same paths"
                told = FileNotFoundError(error.errno, reason, error.filename)
                chunk.errors[index] = (row, told, f"{error.filename}: {reason}")
