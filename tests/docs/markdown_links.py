#!/usr/bin/python3 -B
"""usage: markdown_links.py TREE

Every link and image of README.md, CHANGELOG.md and docs/*.md leads somewhere as a repository
shows it: to a file of the tree, by a relative path, and to a heading of that file.
"""

import pathlib
import re
import sys
import urllib.parse

import outside

FENCE = re.compile(r"^(```+|~~~+).*?^\1[ \t]*$", re.MULTILINE | re.DOTALL)
COMMENT = re.compile(r"<!--.*?-->", re.DOTALL)
CODE = re.compile(r"(`+)(?!`).+?(?<!`)\1(?!`)", re.DOTALL)
LINK = re.compile(
    r"!?\[(?:[^\[\]]|\[[^\[\]]*\]|!\[[^\]]*\]\([^)]*\))*\]\(\s*<?([^\s)>]+)>?(?:\s+[\"'(][^)]*)?\s*\)"
)
REFERENCE = re.compile(r"^ {0,3}\[[^\]^]+\]:\s*<?(\S+?)>?(?:\s.*)?$", re.MULTILINE)
ELEMENT = re.compile(r"<(?:a|img)\b[^>]*?\b(?:href|src)=[\"']([^\"']+)")
BARE = re.compile(r"<((?:https?|ftp|file):[^>\s]+)>")
HEADING = re.compile(r"^ {0,3}#{1,6}\s+(.*?)\s*#*\s*$", re.MULTILINE)


def without(pattern, text):
    """The text with blanks for what matches, so that lines stay where they are."""
    return pattern.sub(lambda match: re.sub(r"[^\n]", " ", match[0]), text)


def slug(heading):
    """The anchor that a repository's page gives a heading."""
    words = re.sub(r"!?\[([^\]]*)\]\([^)]*\)", r"\1", heading.replace("`", ""))
    return re.sub(r"[^\w\- ]", "", words.lower()).replace(" ", "-")


def anchors(text):
    found = {""}
    for heading in HEADING.findall(without(COMMENT, without(FENCE, text))):
        anchor = name = slug(heading)
        number = 0
        while anchor in found:
            number += 1
            anchor = f"{name}-{number}"
        found.add(anchor)
    return found | set(re.findall(r"<a\s+(?:id|name)=[\"']([^\"']+)", text))


def targets(text):
    """The links with the lines on which they stand."""
    read = without(COMMENT, without(FENCE, text))
    for pattern in (LINK, REFERENCE, ELEMENT, BARE):
        # A link's words may be code; a link in code is none.
        searched = (
            without(CODE, read)
            if pattern is not LINK
            else CODE.sub(
                lambda match: "c" * len(match[0]) if "\n" not in match[0] else match[0], read
            )
        )
        for match in pattern.finditer(searched):
            yield match[1], text.count("\n", 0, match.start()) + 1


def fault_of(tree, path, target):
    parts = urllib.parse.urlsplit(target)
    end = (path.parent / urllib.parse.unquote(parts.path)).resolve() if parts.path else path
    if (
        parts.path.startswith("/")
        or not end.exists()
        or (end != tree and tree not in end.parents)
        or tree / "build" in end.parents
    ):
        return "the tree has no such file"
    if parts.fragment and (
        end.suffix != ".md"
        or urllib.parse.unquote(parts.fragment) not in anchors(end.read_text(encoding="utf-8"))
    ):
        return "there is no such heading"
    return None


def main(folder):
    tree = pathlib.Path(folder).resolve()
    paths = [tree / "README.md", tree / "CHANGELOG.md", *sorted((tree / "docs").glob("*.md"))]
    faults, leaving, count = [], {}, 0
    for path in paths:
        for target, line in targets(path.read_text(encoding="utf-8")):
            count += 1
            where = f"{path.relative_to(tree)}:{line}"
            if outside.is_outside(target):
                leaving.setdefault(target, where)
            elif fault := fault_of(tree, path, target):
                faults.append(f"{where}: {target}: {fault}")
    if count < 5:
        faults.append(f"only {count} links were found")
    return outside.ended(
        faults + outside.faults(leaving), f"{count} links of {len(paths)} documents followed"
    )


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
