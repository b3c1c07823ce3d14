"""Lays out the guides for the site as they lie in the tree, so that their links hold.

usage: guides.py TREE FOLDER
README.md is the first page, docs/*.md the guides, docs/schema one page; a graph of mermaid's
becomes one of Graphviz.
"""

import json
import pathlib
import re
import shutil
import sys

# These first, in this order; then all others.
ORDER = ["tool", "python", "format", "reliability", "benchmarks", "hosts", "windows", "design"]


def as_graphviz(match):
    arrows = re.findall(r"(\w+) --> (\w+)", match[1])
    lines = "\n".join(f'  "{tail}" -> "{head}"' for tail, head in arrows)
    style = (
        'bgcolor="transparent"; node [shape=box, style="rounded,filled", '
        'fillcolor="#3b6ea5", color="#3b6ea5", '
        'fontcolor=white, fontname="sans-serif"]; edge [color="#8899aa", arrowsize=0.7];'
    )
    told = ", ".join(f"{tail} includes {head}" for tail, head in arrows)
    return f"```{{graphviz}}\n:alt: {told}\ndigraph {{\n{style}\n{lines}\n}}\n```\n"


def adapted(text):
    text = re.sub(
        r"^```mermaid\ngraph TD\n(.*?)^```\n", as_graphviz, text, flags=re.MULTILINE | re.DOTALL
    )
    text = re.sub(r"\]\(((?:\.\./)*)README\.md", r"](\1index.md", text)
    return re.sub(r"\]\(((?:docs/)?schema)/?\)", r"](\1/index.md)", text)


def schemas(folder):
    made = "# JSON schemas\n\nWhat the commands of `qelpro` print with `--json`, "
    made += "by [JSON Schema](https://json-schema.org).\n"
    for path in sorted(folder.glob("*.json")):
        text = path.read_text()
        made += f"\n## {path.name}\n\n{json.loads(text)['title']}.\n\n```json\n{text}```\n"
    return made


def toctree(caption, pages):
    return (
        f"\n```{{toctree}}\n:hidden:\n:titlesonly:\n:caption: {caption}\n\n"
        + "\n".join(pages)
        + "\n```\n"
    )


def main(tree, folder):
    tree, folder = pathlib.Path(tree), pathlib.Path(folder)
    (folder / "docs/schema").mkdir(parents=True)
    names = sorted(path.stem for path in (tree / "docs").glob("*.md"))
    guides = [name for name in ORDER if name in names] + [
        name for name in names if name not in ORDER
    ]
    for name in guides:
        (folder / f"docs/{name}.md").write_text(adapted((tree / f"docs/{name}.md").read_text()))
    (folder / "docs/schema/index.md").write_text(schemas(tree / "docs/schema"))
    (folder / "CHANGELOG.md").write_text(adapted((tree / "CHANGELOG.md").read_text()))
    shutil.copytree(tree / "docs/images", folder / "docs/images")
    for entry in ("LICENSE", "examples"):  # what the guides may link to beside pages
        (folder / entry).symlink_to(tree.resolve() / entry)
    first = adapted((tree / "README.md").read_text())
    first += toctree(
        "Guides", [f"docs/{name}" for name in guides] + ["docs/schema/index", "CHANGELOG"]
    )
    references = {"C++": "reference/index", "Python": "reference/python"}
    first += toctree(
        "Reference",
        [
            f"{name} <{page}>"
            for name, page in references.items()
            if (folder / f"{page}.rst").exists()
        ],
    )
    (folder / "index.md").write_text(first)


if __name__ == "__main__":
    main(*sys.argv[1:])
