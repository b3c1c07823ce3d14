"""What one writes without the module: the same table from the same files."""

import configparser
import fnmatch

import numpy
import pandas


def _number(text):
    try:
        return float(text)
    except ValueError:
        return text


class _Table:
    """Rows as dicts, put together by pandas."""

    def __init__(self, addresses):
        self.names = [address for address in addresses if not set("*?[") & set(address)]
        self.patterns = [address for address in addresses if set("*?[") & set(address)]
        self.sections = {address.split(".")[0] for address in self.names}
        self.section_patterns = [address.split(".")[0] for address in self.patterns]
        self.rows = []

    def wants(self, section):
        return section in self.sections or any(fnmatch.fnmatchcase(section, pattern) for pattern in self.section_patterns)

    def add(self, path, values):
        row = {"file": path}
        for name in self.names:
            if name in values:
                row[name] = _number(values[name])
        for pattern in self.patterns:
            for name in values:
                if fnmatch.fnmatchcase(name, pattern):
                    row[name] = _number(values[name])
        self.rows.append(row)

    def frame(self):
        return pandas.DataFrame(self.rows)


def by_lines(paths, addresses):
    """A line parser that looks at the lines of the sections that are wanted alone."""
    table = _Table(addresses)
    for path in paths:
        values = {}
        section = None
        with open(path, encoding="utf-8") as lines:
            for line in lines:
                if line.startswith("["):
                    section = line.strip()[1:-1]
                    if not table.wants(section):
                        section = None
                elif section is not None and "=" in line:
                    key, _, value = line.partition("=")
                    values.setdefault(f"{section}.{key.rstrip()}", value.strip())
        table.add(path, values)
    return table.frame()


def by_configparser(paths, addresses):
    table = _Table(addresses)
    for path in paths:
        parser = configparser.RawConfigParser(delimiters="=", comment_prefixes=("#", ";"), strict=False)
        parser.optionxform = str
        parser.read(path, encoding="utf-8")
        values = {f"{section}.{key}": value for section in parser.sections() if table.wants(section) for key, value in parser.items(section)}
        table.add(path, values)
    return table.frame()


def is_same(frame, scanned):
    """Whether a peer found what the scan found: no row of the benchmark compares different work."""
    if set(frame.columns) != set(scanned.columns) or list(frame["file"]) != list(scanned["file"]):
        return False
    return all(
        numpy.array_equal(frame[name].to_numpy(dtype=float), scanned[name].to_numpy(dtype=float), equal_nan=True)
        for name in scanned.columns
        if name != "file"
    )
