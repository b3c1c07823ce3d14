"""A process file, and its sections, as mappings."""

from __future__ import annotations

from collections.abc import Iterator, Mapping, MutableMapping
from contextlib import contextmanager
from pathlib import Path
from typing import TYPE_CHECKING, Any, Union

from . import _engine
from ._paths import StrPath, name_of, place_of
from ._records import Finding

if TYPE_CHECKING:
    import numpy as np
    import numpy.typing as npt
    from matplotlib.axes import Axes

Value = Any
"""A float, an int, a str, a tuple of them for a key of several fields, or a list of lines."""


class Section(MutableMapping[str, Value]):
    """A section of a process file: its values by their keys, in the file's order.

    Every read sees the file as it is now, every change is stored before the statement ends. A
    section that is not there is made by its first key; to read it is a KeyError.

    A value has the type that the catalogue gives its key: float, int, str, or a tuple of the
    fields. Of a key that the catalogue does not know it is the text. The section whose lines have a
    position has the one key ``"lines"``, a list of texts.
    """

    __slots__ = ("_file", "_name")

    def __init__(self, file: ProcessFile, name: str) -> None:
        self._file = file
        self._name = name

    @property
    def name(self) -> str:
        """The section's name, without brackets."""
        return self._name

    def __repr__(self) -> str:
        return f"<Section [{self._name}] of {self._file._name!r}>"

    def __getitem__(self, key: str) -> Value:
        """The typed value.

        Raises KeyError where it is not there, and ValueError, with file, line, section, key and
        text, where the text is not read whole as the catalogue's encoding.
        """
        if not isinstance(key, str):
            raise KeyError(key)
        return self._file._now().value(self._file._name, self._name, key)

    def __setitem__(self, key: str, value: Value) -> None:
        """Stores a value.

        Floats have the fewest digits that read back as the same double; a str is the text as it
        stands. Raises TypeError for what is no number, text or list of them, and ValueError for
        what the key's encoding cannot hold or what is not finite; the file is as it was then.
        """
        _check_name(key)
        self._file._edit(_engine.set_entry(self._name, key, value))

    def __delitem__(self, key: str) -> None:
        """Removes every line of the key. KeyError where there is none."""
        if not isinstance(key, str):
            raise KeyError(key)
        self._file._edit(_engine.remove_entry(self._name, key))

    def _keys(self) -> list[str]:
        keys = self._file._now().keys(self._name)
        if keys is None:
            raise KeyError(f"{self._file._name}: [{self._name}]: not found")
        return keys

    def __iter__(self) -> Iterator[str]:
        return iter(self._keys())

    def __len__(self) -> int:
        return len(self._keys())

    def __contains__(self, key: object) -> bool:
        return isinstance(key, str) and key in (self._file._now().keys(self._name) or ())

    def text(self, key: str) -> str:
        """The value's text as it stands, without the blanks around it. KeyError as for reading."""
        return self._file._now().text(self._file._name, self._name, key)

    def update(self, *others: Any, **values: Value) -> None:
        """As that of a dict, with one write for all values, or none."""
        with self._file.batch():
            super().update(*others, **values)

    def popitem(self) -> tuple[str, Value]:
        """Removes the last key, and gives it and its value. KeyError where there is none."""
        keys = self._keys()
        if not keys:
            raise KeyError(f"{self._file._name}: [{self._name}]: holds no key")
        return keys[-1], self.pop(keys[-1])

    def clear(self) -> None:
        """Removes all keys; the section stays."""
        self._file[self._name] = {}


class ProcessFile(MutableMapping[str, Section]):
    """A process file, as a mapping from the names of its sections to the sections.

    ::

        f = qelpro.ProcessFile("a.pro")
        f["Flow-1"]["FillTime"] = 1.5

    Every read sees the file as it is now; every change is stored before the statement ends, whole
    or not at all, together with what other programs store at the same time. Raises what ``open()``
    raises where the file cannot be read: FileNotFoundError, IsADirectoryError, PermissionError;
    ValueError for a file of UTF-16.

    One object belongs to one thread at a time; separate objects are free, of one file, too. An
    object pickles by its path.
    """

    __slots__ = ("_name", "_place", "_snapshot", "_edits", "__weakref__")

    def __init__(self, path: StrPath) -> None:
        self._name = name_of(path)
        self._place = place_of(path)
        self._edits: list[_engine.Edit] | None = None  # of a batch that is open
        self._snapshot: _engine.Snapshot = _engine.load(self._place, self._name, None)

    @property
    def path(self) -> Path:
        """Where the file is."""
        return Path(self._place)

    def __repr__(self) -> str:
        return f"ProcessFile({self._name!r})"

    def __fspath__(self) -> str:
        return self._place

    def __reduce__(self) -> tuple[Any, ...]:
        if self._edits is not None:
            raise ValueError(f"{self._name}: a batch is open, whose changes would be lost")
        return (type(self), (self._place,))

    def _now(self) -> _engine.Snapshot:
        if self._edits is None:
            self._snapshot = _engine.load(self._place, self._name, self._snapshot)
        return self._snapshot

    def _edit(self, edit: _engine.Edit) -> None:
        if self._edits is None:
            _engine.store(self._place, self._name, [edit])
        else:
            self._snapshot = _engine.edited(self._snapshot, self._name, edit)
            self._edits.append(edit)

    @contextmanager
    def batch(self) -> Iterator[ProcessFile]:
        """Many changes, one write: ``with f.batch(): ...``

        All of them are stored at the end of the block, or none where it raises. Reads inside see
        the changes made in it. A batch inside a batch is part of it.
        """
        if self._edits is not None:
            snapshot, count = self._snapshot, len(self._edits)
            try:
                yield self
            except BaseException:
                self._snapshot = snapshot
                del self._edits[count:]
                raise
            return
        self._now()
        self._edits = []
        try:
            yield self
            edits = self._edits
        finally:
            self._edits = None
        if edits:
            _engine.store(self._place, self._name, edits)

    def __getitem__(self, name: Any) -> Any:
        """A section by its name, with or without brackets, or a value: ``f["Flow-1", "FillTime"]``.

        A section that is not there is told when it is read (KeyError), and made when it is written.
        """
        if isinstance(name, tuple):
            section, key = _pair(name)
            return Section(self, section)[key]
        if not isinstance(name, str):
            raise KeyError(name)
        return Section(self, _without_brackets(name))

    def __setitem__(self, name: Any, value: Any) -> None:
        """A section from a mapping of its values: it is made, or holds these and no others then; or
        a value: ``f["Flow-1", "FillTime"] = 1.5``.
        """
        if isinstance(name, tuple):
            section, key = _pair(name)
            Section(self, section)[key] = value
            return
        _check_name(name)
        if not isinstance(value, Mapping):
            raise TypeError(
                f"a section is a mapping from its keys to values, not {type(value).__name__}"
            )
        self._edit(_engine.set_section(_without_brackets(name), dict(value)))

    def __delitem__(self, name: Any) -> None:
        """Removes a section, with header and all its lines; or a value."""
        if isinstance(name, tuple):
            section, key = _pair(name)
            del Section(self, section)[key]
            return
        if not isinstance(name, str):
            raise KeyError(name)
        self._edit(_engine.remove_section(_without_brackets(name)))

    def __iter__(self) -> Iterator[str]:
        return iter(self._now().sections())

    def __len__(self) -> int:
        return len(self._now().sections())

    def __contains__(self, name: object) -> bool:
        if isinstance(name, tuple):
            return len(name) == 2 and isinstance(name[0], str) and name[1] in self[name[0]]
        return isinstance(name, str) and self._now().keys(_without_brackets(name)) is not None

    def get(self, name: Any, default: Any = None) -> Any:
        """The section, or the value; the default where it is not there."""
        return self[name] if name in self else default

    def setdefault(self, name: Any, default: Any = None) -> Any:
        """The section, which is made from the default, a mapping, where it is not there."""
        if name not in self:
            self[name] = {} if default is None else default
        return self[name]

    def pop(self, name: Any, *default: Any) -> Any:
        """Removes a section, and gives what it held as a dict."""
        if name not in self and default:
            return default[0]
        value = self[name]
        if isinstance(value, Section):
            value = dict(value)
        del self[name]
        return value

    def popitem(self) -> tuple[str, Any]:
        """Removes the last section, and gives its name and what it held."""
        names = list(self)
        if not names:
            raise KeyError(f"{self._name}: holds no section")
        return names[-1], self.pop(names[-1])

    def update(self, *others: Any, **sections: Any) -> None:
        """As that of a dict, with one write for all sections, or none."""
        with self.batch():
            super().update(*others, **sections)

    def clear(self) -> None:
        """Removes all sections, with one write."""
        with self.batch():
            for name in list(self):
                del self[name]

    @property
    def inlets(self) -> list[int]:
        """The numbers of the inlets that the file has sections of, ascending."""
        return self._now().inlets()

    def profile(self, section: str, name: str) -> npt.NDArray[np.float64]:
        """The points of a table, as float64 of shape (n, 2), or (n,) for lists of single numbers;
        (n, k) where a point has k numbers.

        ``name`` is what its count is called ("FR" of "FRSet"). There are as many rows as the count
        says; a point that is missing is a row of NaN, one beyond the count is none. The units are
        those of :func:`catalogue`. Raises KeyError where the catalogue has no such table or the file
        no count, ValueError for a count or a point that is not read.
        """
        return self._now().table(self._name, _without_brackets(section), name)

    def set_profile(self, section: str, name: str, points: npt.ArrayLike) -> None:
        """Stores a table: the count, the points, and none beyond them, in one write.

        ``points`` has the shape that :meth:`profile` gives. Raises ValueError for another shape,
        and for what is not finite; the file is as it was then.
        """
        import numpy as np

        table = np.asarray(points, dtype=np.float64)
        if table.size == 0 and table.ndim <= 2:
            table = table.reshape(0, 2)
        if table.ndim == 1:
            table = table.reshape(-1, 1)
        if table.ndim != 2:
            raise ValueError(f"points of shape (n, 2) or (n,), not {np.shape(points)}")
        if not np.isfinite(table).all():
            raise ValueError("a number of the points is not finite")
        self._edit(_engine.set_table(_without_brackets(section), name, table.tolist()))

    def to_dict(self) -> dict[str, dict[str, Any]]:
        """The file as plain JSON, section by section: what ``qelpro export`` prints.

        What its encoding does not read is the text, as is what is not finite. ``from_dict`` loses
        nothing of it.
        """
        form: dict[str, dict[str, Any]] = self._now().form()
        return form

    @classmethod
    def from_dict(
        cls, sections: Mapping[str, Mapping[str, Any]], path: StrPath, overwrite: bool = False
    ) -> ProcessFile:
        """Makes a file of what :meth:`to_dict` gave.

        Raises FileExistsError where the path exists, unless ``overwrite``; TypeError, ValueError
        for what no file can hold; nothing is written then.
        """
        if not isinstance(sections, Mapping):
            raise TypeError(f"a mapping from section to keys, not {type(sections).__name__}")
        _engine.write_form(name_of(path), dict(sections), overwrite)
        return cls(path)

    def check(self) -> list[Finding]:
        """What is wrong, or may be, with the file: what ``qelpro check`` finds, in its order."""
        return [Finding(*fields) for fields in self._now().findings(self._name)]

    def plot(self, address: str, ax: Axes | None = None, **style: Any) -> Axes:
        """Draws a profile, ``"Flow-1.FR"``, with its units at the axes, and gives the Axes.

        ``ax`` is drawn into; without it the current one is. What else is given is matplotlib's.
        Raises ImportError where matplotlib is missing, KeyError and ValueError as :meth:`profile`.
        """
        from ._plot import draw_profile

        return draw_profile(self, address, ax, style)


def _check_name(name: object) -> None:
    if not isinstance(name, str):
        raise TypeError(f"a name is a str, not {type(name).__name__}")


def _pair(name: tuple[Any, ...]) -> tuple[str, Any]:
    if len(name) != 2 or not isinstance(name[0], str):
        raise KeyError(name)
    return _without_brackets(name[0]), name[1]


def _without_brackets(name: str) -> str:
    return name[1:-1] if name.startswith("[") and name.endswith("]") else name


__all__ = ["ProcessFile", "Section", "Value"]
