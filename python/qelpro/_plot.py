"""Profiles as matplotlib draws them."""

from __future__ import annotations

from typing import TYPE_CHECKING, Any

from ._missing import needed

if TYPE_CHECKING:
    from matplotlib.axes import Axes

    from ._file import ProcessFile


def draw_profile(file: ProcessFile, address: str, ax: Axes | None, style: dict[str, Any]) -> Axes:
    section, dot, name = address.rpartition(".")
    if not dot:
        raise ValueError(f'{address!r} is no address of a profile: "Flow-1.FR"')
    points = file.profile(section, name)
    title, x, x_unit, y, y_unit = file._now().table_words(file._name, section, name)
    pyplot = needed("matplotlib.pyplot", "plot()")
    axes: Axes = pyplot.gca() if ax is None else ax
    if points.ndim == 1:
        axes.plot(range(1, len(points) + 1), points, **{"marker": "o", **style})
        x = x or "point"
    elif points.shape[1] == 2:
        axes.plot(points[:, 0], points[:, 1], **{"marker": "o", **style})
    else:
        raise ValueError(f"{address}: points of {points.shape[1]} numbers make no curve")
    axes.set_title(f"{address}: {title}")
    axes.set_xlabel(_label(x, x_unit))
    axes.set_ylabel(_label(y, y_unit))
    return axes


def _label(words: str, unit: str) -> str:
    return f"{words} ({unit})" if unit else words
