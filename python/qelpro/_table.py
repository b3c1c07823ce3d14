"""The parts of a table that were read apart, put together."""

from __future__ import annotations

from typing import TYPE_CHECKING, Any, NamedTuple

if TYPE_CHECKING:
    import pandas as pd


class Chunk(NamedTuple):
    """What was read of the files from the index ``first`` on."""

    first: int
    columns: list[tuple[int, str, Any, str, Any]]
    """Of each the index of the word that asked for it, its name, the indices of its rows, its kind,
    and the values: arrays of "int" and "float", lists of "number", which are both, and "object"."""
    errors: list[tuple[int, BaseException, str]]


class Table:
    """The columns of all chunks, in the order of the words and of first appearance."""

    def __init__(self, names: list[str], words: list[str], chunks: list[Chunk], skip: bool) -> None:
        if skip:
            names, chunks = _without_errors(names, words, chunks)
        self._names = names
        self._parts: dict[str, list[tuple[Any, str, Any]]] = {}
        self._errors: list[tuple[int, BaseException, str]] = []
        found: list[str] = []
        places: dict[str, tuple[int, int]] = {}
        for chunk in chunks:
            for word, name, rows, kind, values in chunk.columns:
                if name not in places or word < places[name][0]:
                    # Where it was asked for first, behind what was found so before it.
                    places[name] = (word, len(found))
                    found.append(name)
                self._parts.setdefault(name, []).append((rows + chunk.first, kind, values))
            self._errors += [(row + chunk.first, why, text) for row, why, text in chunk.errors]
        self._order = sorted(self._parts, key=lambda name: places[name])

    def frame(self, pandas: Any, errors: str) -> pd.DataFrame:
        if errors == "raise" and self._errors:
            raise self._errors[0][1]
        columns: dict[str, Any] = {"file": pandas.Series(self._names, dtype=object)}
        for name in self._order:
            columns[name] = self._column(self._parts[name])
        if errors == "record":
            messages: list[str | None] = [None] * len(self._names)
            for row, _, message in self._errors:
                messages[row] = message
            columns["error"] = pandas.Series(messages, dtype=object)
        frame: pd.DataFrame = pandas.DataFrame(columns, copy=False)
        return frame

    def _column(self, parts: list[tuple[Any, str, Any]]) -> Any:
        import numpy as np

        count = sum(len(rows) for rows, _, _ in parts)
        kinds = {kind for rows, kind, _ in parts if len(rows) != 0}
        if len(parts) == 1 and count == len(self._names) and kinds <= {"int", "float"} and kinds:
            return parts[0][2]
        if kinds == {"int"} and count == len(self._names):
            column = np.empty(count, dtype=np.int64)
        elif kinds <= {"int", "float", "number"}:
            column = np.full(len(self._names), np.nan)
        else:
            column = np.full(len(self._names), np.nan, dtype=object)
        for rows, kind, values in parts:
            if column.dtype != object:
                column[rows] = values
            else:
                # Item by item: a tuple is one value.
                for row, value in zip(rows, values if isinstance(values, list) else values.tolist()):
                    column[row] = value
        return column


def _without_errors(
    names: list[str], words: list[str], chunks: list[Chunk]
) -> tuple[list[str], list[Chunk]]:
    """What would have been read of the other files alone."""
    import numpy as np

    kept = np.ones(len(names), dtype=bool)
    for chunk in chunks:
        kept[[chunk.first + row for row, _, _ in chunk.errors]] = False
    if kept.all():
        return names, chunks
    row_of = np.cumsum(kept) - 1
    rest = []
    for chunk in chunks:
        columns = []
        for word, name, rows, kind, values in chunk.columns:
            stays = kept[rows + chunk.first]
            if not stays.any() and name not in words:
                continue
            if isinstance(values, list):
                values = [value for value, stay in zip(values, stays) if stay]
                types = {type(value) for value in values}
                if types and types <= {int, float}:
                    kind = "int" if types == {int} else "float" if types == {float} else "number"
                    values = values if kind == "number" else np.array(values)
            else:
                values = values[stays]
            columns.append((word, name, row_of[rows[stays] + chunk.first], kind, values))
        rest.append(Chunk(0, columns, []))
    return [name for name, keep in zip(names, kept) if keep], rest
