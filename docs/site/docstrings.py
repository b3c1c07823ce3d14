"""A Python docstring as reStructuredText: its words as they stand, whatever signs are in them."""

import inspect
import re
import textwrap

from markup import escaped, indented


def words(text):
    """Escaped, but for what stands between backticks, which is code."""
    parts = re.split(r"(``.+?``|`.+?`)", " ".join(text.split()))
    return "".join(rf"\ ``{part.strip('`')}``\ " if index % 2 else escaped(part) for index, part in enumerate(parts))


def code(text):
    return ".. code-block:: python\n\n" + indented(textwrap.dedent(text), 3)


def section(lines):
    """What stands below a title that is underlined: its items, each with what is told of it."""
    items, made = "\n".join(lines), []
    for item in re.split(r"\n(?=\S)", items):
        name, _, told = item.partition("\n")
        made.append(words(name) + ("\n" + indented(blocks(textwrap.dedent(told)), 3) if told.strip() else ""))
    return "\n\n".join(made)


def block(text):
    lines = text.split("\n")
    if text.startswith(">>>") or all(line.startswith("    ") for line in lines):
        return code(text)
    if len(lines) > 1 and re.fullmatch(r"-{3,}", lines[1]):
        return f".. rubric:: {escaped(lines[0])}\n\n{section(lines[2:])}"
    if len(lines) > 1 and re.fullmatch(r"[A-Z]\w*:", lines[0]) and all(line.startswith(" ") for line in lines[1:]):
        return f".. rubric:: {escaped(lines[0][:-1])}\n\n{section(textwrap.dedent(text.partition(chr(10))[2]).splitlines())}"
    if re.match(r"[-*] ", text):
        return "\n".join(f"- {words(item)}" for item in re.split(r"(?:^|\n)[-*] ", text) if item)
    return words(text)


def blocks(text):
    return "\n\n".join(block(each) for each in re.split(r"\n\s*\n", text.strip("\n")) if each.strip())


def as_markup(docstring):
    return blocks(inspect.cleandoc(docstring))
