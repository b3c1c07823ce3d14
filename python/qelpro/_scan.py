"""Many files as one table."""

from __future__ import annotations

import os
from collections.abc import Iterable
from typing import TYPE_CHECKING

from . import _engine
from ._missing import needed
from ._paths import StrPath, name_of
from ._table import Chunk, Table

if TYPE_CHECKING:
    from typing import Literal

    import pandas as pd
    from distributed import Client

_ERRORS = ("raise", "skip", "record")


def scan(
    paths: Iterable[StrPath],
    addresses: Iterable[str],
    errors: Literal["raise", "skip", "record"] = "raise",
    client: Client | None = None,
) -> pd.DataFrame:
    """Values of many files as a pandas DataFrame: a row a file, in the order of the paths.

    The columns are "file", then the addresses in the order asked; a pattern (``"Flow-*.MeltTemp"``)
    has a column for each address that it matches, in order of first appearance. NaN is what a file
    does not have. Columns of whole numbers that every file has are int64, of numbers float64, all
    others objects; several fields are a tuple. Each file is read once, on all cores.

    >>> qelpro.scan(["a.pro", "b.pro"], ["Flow-1.FillTime", "Flow-*.MeltTemp"])
        file  Flow-1.FillTime  Flow-1.MeltTemp
    0  a.pro              1.0            230.0
    1  b.pro              1.0            240.0

    ``errors`` says what becomes of a file that cannot be read, and of a value that its encoding
    does not read: "raise" raises OSError or ValueError, of the first such file; "skip" leaves the
    file out; "record" adds a column "error" with None or the message.

    With a ``dask.distributed`` Client the files are read by the workers of its cluster, which have
    to see them under the same paths; the others make up for a worker that dies. The frame is the
    same. TypeError for a client that is none or is asynchronous, RuntimeError for a cluster that is
    closed, ImportError where pandas is missing, or qelpro where the workers run. A worker that dies
    again and again is distributed's KilledWorker.
    """
    if errors not in _ERRORS:
        raise ValueError(f"errors is one of {', '.join(map(repr, _ERRORS))}, not {errors!r}")
    if isinstance(paths, (str, bytes, os.PathLike)):
        raise TypeError("paths is a list of paths, not one path")
    if isinstance(addresses, (str, bytes)):
        raise TypeError("addresses is a list of addresses, not one text")
    pandas = needed("pandas", "scan()")
    names = [name_of(path) for path in paths]
    words = list(addresses)
    for word in words:
        if not isinstance(word, str):
            raise TypeError(f"an address is a str, not {type(word).__name__}")
    _engine.scan([], [], words, 1)  # what is no address is told before a file is read
    if client is None:
        chunks = [Chunk(0, *_engine.scan(names, names, words, 0))]
    else:
        from ._cluster import scanned_by

        # The workers are in other folders.
        here = os.getcwd()
        places = [os.path.join(here, name) if name else name for name in names]
        chunks = scanned_by(client, places, names, words, errors == "raise")
    return Table(names, words, chunks, errors == "skip").frame(pandas, errors)
