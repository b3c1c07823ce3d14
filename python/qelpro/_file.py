"""A process file, and its sections, as mappings."""

from __future__ import annotations

from collections.abc import ItemsView, Iterator, Mapping, MutableMapping, ValuesView
from contextlib import contextmanager
from pathlib import Path
from typing import TYPE_CHECKING, Any, TypeVar, overload

from . import _engine
from ._paths import StrPath, name_of, place_of
from ._records import Finding

if TYPE_CHECKING:
    import numpy as np
    import numpy.typing as npt
    from matplotlib.axes import Axes

Value = Any
"""A float, an int, a str, a tuple of them for a key of several fields, or a list of lines."""

_Other = TypeVar("_Other")


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
        try:
            edit = _engine.set_entry(self._name, key, value)
        except ValueError as error:
            raise ValueError(f"{self._file._name}: [{self._name}] {key}: {error}") from None
        self._file._edit(edit)

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
        """The keys in the file's order. KeyError where the section is not there."""
        return iter(self._keys())

    def __len__(self) -> int:
        """How many keys there are. KeyError where the section is not there."""
        return len(self._keys())

    def __contains__(self, key: object) -> bool:
        """Whether the key is there; False where the section is not."""
        return isinstance(key, str) and key in (self._file._now().keys(self._name) or ())

    def _ipython_key_completions_(self) -> list[str]:
        return list(self) if self._name in self._file else []

    def text(self, key: str) -> str:
        """The value's text as it stands, without the blanks around it. KeyError as for reading."""
        if not isinstance(key, str):
            raise KeyError(key)
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
        if self._name in self._file:
            self._file[self._name] = {}

    def items(self) -> ItemsView[str, Value]:
        """The keys with their values, of which an iteration takes all as they are at one moment."""
        return _Items(self)

    def values(self) -> ValuesView[Value]:
        """The values, of which an iteration takes all as they are at one moment."""
        return _Values(self)

    def _values(self) -> Iterator[tuple[str, Value]]:
        """All of them as they are at one moment."""
        keys = self._keys()
        now, name = self._file._snapshot, self._file._name
        return ((key, now.value(name, self._name, key)) for key in keys)


class _Items(ItemsView[str, Value]):
    _mapping: Section

    def __iter__(self) -> Iterator[tuple[str, Value]]:
        return self._mapping._values()


class _Values(ValuesView[Value]):
    _mapping: Section

    def __iter__(self) -> Iterator[Value]:
        return (value for _, value in self._mapping._values())


class ProcessFile(MutableMapping[str, Section]):
    """A process file, as a mapping from the names of its sections to the sections.

    >>> f = qelpro.ProcessFile("a.pro")
    >>> f["Flow-1"]["FillTime"] = 1.5
    >>> f["Flow-1"]["FillTime"], f["Flow-1", "FRSet"]
    (1.5, 2)
    >>> list(f)
    ['FileHeader', 'CaeHeader', 'Summary', 'Unit', 'Flow-1']

    Every read sees the file as it is now; every change is stored before the statement ends, whole
    or not at all, together with what other programs store at the same time. Raises what ``open()``
    raises where the file cannot be read: FileNotFoundError, IsADirectoryError, PermissionError;
    ValueError for a file of UTF-16.

    One object belongs to one thread at a time; separate objects are free, of one file, too. An
    object pickles by its path.
    """

    __slots__ = ("_name", "_place", "_snapshot", "_edits", "_unseen", "__weakref__")

    def __init__(self, path: StrPath) -> None:
        self._name = name_of(path)
        self._place = place_of(path)
        self._edits: list[_engine.Edit] | None = None  # of a batch that is open
        self._unseen: list[_engine.Edit] = []  # those of them that the snapshot has not
        self._snapshot: _engine.Snapshot = _engine.load(self._place, self._name, None)

    @property
    def path(self) -> Path:
        """Where the file is."""
        return Path(self._place)

    def __repr__(self) -> str:
        return f"ProcessFile({self._name!r})"

    def __fspath__(self) -> str:
        """Where the file is: ``open(f)`` and all that takes a path."""
        return self._place

    def __reduce__(self) -> tuple[Any, ...]:
        if self._edits is not None:
            raise ValueError(f"{self._name}: a batch is open, whose changes would be lost")
        return (type(self), (self._place,))

    def _now(self) -> _engine.Snapshot:
        if self._edits is None:
            self._snapshot = _engine.load(self._place, self._name, self._snapshot)
        elif self._unseen:
            self._snapshot = _engine.edited(self._snapshot, self._name, self._unseen)
            self._unseen = []
        return self._snapshot

    def _edit(self, edit: _engine.Edit) -> None:
        if self._edits is None:
            _engine.store(self._place, self._name, [edit])
            return
        if _engine.check_edit(edit, self._name):
            self._snapshot = _engine.edited(self._now(), self._name, [edit])
        else:
            self._unseen.append(edit)
        self._edits.append(edit)

    @contextmanager
    def batch(self) -> Iterator[ProcessFile]:
        """Many changes, one write.

        >>> with f.batch():
        ...     f["Flow-1"]["MeltTemp"] = 235
        ...     f["FlowCTL"]["VPSwitchCtrl"] = 0

        All of them are stored at the end of the block, or none where it raises. Reads inside see
        the changes made in it. A batch inside a batch is part of it.
        """
        if self._edits is not None:
            before, count = self._now(), len(self._edits)
            try:
                yield self
            except BaseException:
                self._snapshot, self._unseen = before, []
                del self._edits[count:]
                raise
            return
        self._now()
        self._edits = []
        try:
            yield self
            edits = self._edits
        finally:
            self._edits, self._unseen = None, []
        if edits:
            _engine.store(self._place, self._name, edits)

    @overload
    def __getitem__(self, name: str) -> Section: ...
    @overload
    def __getitem__(self, name: tuple[str, str]) -> Value: ...
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

    @overload
    def __setitem__(self, name: str, value: Mapping[str, Value]) -> None: ...
    @overload
    def __setitem__(self, name: tuple[str, str], value: Value) -> None: ...
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

    def __delitem__(self, name: str | tuple[str, str]) -> None:
        """Removes a section, with header and all its lines; or a value.

        Raises KeyError where it is not there.
        """
        if isinstance(name, tuple):
            section, key = _pair(name)
            del Section(self, section)[key]
            return
        if not isinstance(name, str):
            raise KeyError(name)
        self._edit(_engine.remove_section(_without_brackets(name)))

    def __iter__(self) -> Iterator[str]:
        """The names of the sections, without brackets, in the file's order."""
        return iter(self._now().sections())

    def __len__(self) -> int:
        """How many sections there are."""
        return len(self._now().sections())

    def __contains__(self, name: object) -> bool:
        """Whether there is such a section, or such a value: ``("Flow-1", "FillTime") in f``."""
        if isinstance(name, tuple):
            return len(name) == 2 and isinstance(name[0], str) and name[1] in self[name[0]]
        return isinstance(name, str) and self._now().keys(_without_brackets(name)) is not None

    @overload
    def get(self, name: str) -> Section | None: ...
    @overload
    def get(self, name: str, default: Section | _Other) -> Section | _Other: ...
    @overload
    def get(self, name: tuple[str, str], default: Value = None) -> Value: ...
    def get(self, name: Any, default: Any = None) -> Any:
        """The section, or the value; the default where it is not there."""
        return self[name] if name in self else default

    @overload
    def setdefault(self, name: str, default: Mapping[str, Value] | None = None) -> Section: ...
    @overload
    def setdefault(self, name: tuple[str, str], default: Value) -> Value: ...
    def setdefault(self, name: Any, default: Any = None) -> Any:
        """The section, which is made from the default, a mapping, where it is not there; or the
        value, which is stored where it is not there.
        """
        if name not in self:
            self[name] = {} if default is None else default
        return self[name]

    @overload  # type: ignore[override]  # what is gone is no section any more
    def pop(self, name: str) -> dict[str, Value]: ...
    @overload
    def pop(self, name: str, default: _Other) -> dict[str, Value] | _Other: ...
    @overload
    def pop(self, name: tuple[str, str], default: Value = ...) -> Value: ...
    def pop(self, name: Any, default: Any = ...) -> Any:
        """Removes a section, and gives what it held as a dict; or a value, and gives it.

        Where it is not there, the default, or a KeyError where none is given.
        """
        if default is not ... and name not in self:
            return default
        value = self[name]
        if isinstance(value, Section):
            value = dict(value)
        del self[name]
        return value

    def popitem(self) -> tuple[str, dict[str, Value]]:  # type: ignore[override]
        """Removes the last section, and gives its name and what it held. KeyError where none is."""
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

    def _ipython_key_completions_(self) -> list[str]:
        return list(self)

    @property
    def inlets(self) -> list[int]:
        """The numbers of the inlets that the file has sections of, ascending: ``[1, 2]``."""
        return self._now().inlets()

    def profile(self, section: str, name: str) -> npt.NDArray[np.float64]:
        """The points of a table, as float64 of shape (n, 2), or (n,) for lists of single numbers;
        (n, k) where a point has k numbers.

        >>> f.profile("Flow-1", "FR")
        array([[  0.,  50.],
               [100.,  50.]])

        ``name`` is what its count is called ("FR" of "FRSet"). There are as many rows as the count
        says; a point that is missing is a row of NaN, one beyond the count is none. The units are
        those of ``catalogue()``. Raises KeyError where the catalogue has no such table or the
        file no count, ValueError for a count or a point that is not read.
        """
        _check_name(section)
        _check_name(name)
        return self._now().table(self._name, _without_brackets(section), name)

    def set_profile(self, section: str, name: str, points: npt.ArrayLike) -> None:
        """Stores a table: the count, the points, and none beyond them, in one write.

        >>> f.set_profile("Flow-1", "FR", [[0, 50], [60, 55], [100, 40]])
        >>> f["Flow-1"]["FRSet"], f["Flow-1"]["FR-3"]
        (3, (100.0, 40.0))

        ``points`` is an array, or lists, of the shape that ``profile()`` gives. Raises KeyError
        where the catalogue has no such table, ValueError for another shape and for what is not
        finite, TypeError for what is no number; the file is as it was then.
        """
        import numpy as np

        _check_name(section)
        _check_name(name)
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
        """Makes a file of what ``to_dict()`` gave.

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
        Raises ImportError where matplotlib is missing, KeyError and ValueError as ``profile()``.
        """
        from ._plot import draw_profile

        _check_name(address)
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
