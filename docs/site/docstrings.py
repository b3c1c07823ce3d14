"""A Python docstring as reStructuredText: its words as they stand, whatever signs are in them."""

import inspect
import re
import textwrap

from markup import escaped, indented


LISTS = {
    "Args",
    "Arguments",
    "Attributes",
    "Other Parameters",
    "Parameters",
    "Raises",
    "Returns",
    "Warns",
    "Yields",
}
TITLE = re.compile(r"(?:^|\n)([A-Z][\w ]*)\n-{3,} *(?:\n|$)")  # underlined
GOOGLE = re.compile(
    r"(?:^|\n)(Args|Arguments|Attributes|Raises|Returns|Yields|Examples?|Notes?):\n(?=[ ])"
)


def words(text):
    """Escaped, but for what stands between backticks: code, or a name with its role.

    Two colons announce code, and are one.
    """
    text = re.sub(r"::$", ":", " ".join(text.split()))
    made = []
    for index, part in enumerate(re.split(r"((?::\w+:)?`[^`]+`|``.+?``)", text)):
        if index % 2 == 0:
            made.append(escaped(part))
        elif part.startswith(":"):
            made.append(rf"\ :py{part}\ ")
        else:
            made.append(rf"\ ``{part.strip('`')}``\ ")
    return "".join(made)


def code(text):
    return ".. code-block:: python\n\n" + indented(textwrap.dedent(text), 3)


def items(text):
    """Names, each with what is told of it."""
    made = []
    for item in re.split(r"\n(?=\S)", text.strip("\n")):
        name, _, told = item.partition("\n")
        made.append(
            words(name)
            + ("\n" + indented(blocks(textwrap.dedent(told)), 3) if told.strip() else "")
        )
    return "\n\n".join(made)


def block(text):
    if text.startswith(">>>") or all(line.startswith("    ") for line in text.split("\n") if line):
        return code(text)
    if re.match(r"[-*] ", text):
        return "\n".join(f"- {words(item)}" for item in re.split(r"(?:^|\n)[-*] ", text) if item)
    return words(text)


def blocks(text):
    chunks = []
    for chunk in re.split(r"\n\s*\n(?=[^\n])", text.strip("\n")):
        if chunks and chunk.startswith("    ") and chunks[-1].startswith("    "):
            chunks[-1] += f"\n\n{chunk}"  # code with a blank line in it
        else:
            chunks.append(chunk)
    return "\n\n".join(block(chunk) for chunk in chunks if chunk.strip())


def section(title, text):
    text = textwrap.dedent(text)
    return f".. rubric:: {escaped(title)}\n\n{items(text) if title in LISTS else blocks(text)}"


def as_markup(docstring):
    """The paragraphs of a docstring, then its sections: in numpy's manner, or titles with a colon."""
    text = inspect.cleandoc(docstring)
    first, *titled = (TITLE if TITLE.search(text) else GOOGLE).split(text)
    sections = [section(title, told) for title, told in zip(titled[::2], titled[1::2])]
    return "\n\n".join(part for part in [blocks(first), *sections] if part)
