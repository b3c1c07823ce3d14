"""Packages that some calls need and the others do without."""

from __future__ import annotations

import importlib
from typing import Any

_DEBIAN = {
    "matplotlib": "python3-matplotlib",
    "pandas": "python3-pandas",
    "distributed": "python3-distributed",
}


def needed(module: str, what: str) -> Any:
    """The module; an ImportError that says what to install where it is missing."""
    package = module.partition(".")[0]
    try:
        return importlib.import_module(module)
    except ModuleNotFoundError as error:
        raise ImportError(
            f'{what} needs {package} ({error}): install it with "apt install {_DEBIAN[package]}" '
            f'or "pip install {package}"',
            name=package,
        ) from error
