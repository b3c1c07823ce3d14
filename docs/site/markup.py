"""What Doxygen's XML says in words, as reStructuredText."""

import re
import textwrap


def escaped(text):
    # Doxygen keeps the sign before a "%" that stands between quotes.
    return re.sub(r"([\\`*_|<>\[\]:])", r"\\\1", text.replace(r"\%", "%"))


EDGE = "\0"  # where marked words begin and end


def inline(node):
    """The words of a paragraph, without its blocks."""
    parts = [escaped(node.text or "")]
    for child in node:
        words = "".join(child.itertext())
        if child.tag == "computeroutput":
            parts.append(f"{EDGE}``{words}``{EDGE}")
        elif child.tag in ("bold", "emphasis"):
            sign = "**" if child.tag == "bold" else "*"
            parts.append(f"{EDGE}{sign}{escaped(words)}{sign}{EDGE}")
        elif child.tag not in BLOCKS:
            parts.append(escaped(words))
        parts.append(escaped(child.tail or ""))
    return " ".join("".join(parts).split()).replace(EDGE, r"\ ")


def listing(node):
    return "\n".join("- " + indented(blocks(item), 2).lstrip() for item in node)


def table(node):
    rows = []
    for row in node.iter("row"):
        cells = [" ".join(inline(para) for para in entry) for entry in row]
        rows.append("* - " + "\n  - ".join(cells))
    return ".. list-table::\n   :header-rows: 1\n\n" + indented("\n".join(rows), 3)


BLOCKS = {"itemizedlist": listing, "orderedlist": listing, "table": table}


def blocks(node):
    """The paragraphs, lists and tables of a description."""
    made = []
    for para in node:
        made.append(inline(para))
        made += [BLOCKS[child.tag](child) for child in para if child.tag in BLOCKS]
    return "\n\n".join(block for block in made if block)


def indented(text, columns):
    return textwrap.indent(text, " " * columns)


def description(node):
    """All that a compound or a member says of itself."""
    told = (node.find("briefdescription"), node.find("detaileddescription"))
    return "\n\n".join(text for text in (blocks(part) for part in told if part is not None) if text)


def heading(text, sign):
    return f"{text}\n{sign * len(text)}\n"
