#!/usr/bin/python3 -B
"""usage: site_links.py SITE [TREE]

Every link, image, style and script of every page of the site leads to a file of the site, and to an
anchor that its page has; a page loads nothing from elsewhere; each page can be reached from the
first one. With the tree: each of its guides is a page.
"""

import html.parser
import pathlib
import re
import sys
import urllib.parse

import outside

# What a page loads by itself, by element; an `a` is followed by its reader.
LOADED = {
    "img": "src",
    "script": "src",
    "link": "href",
    "object": "data",
    "iframe": "src",
    "source": "src",
    "image": "xlink:href",
}


class Page(html.parser.HTMLParser):
    def __init__(self, text):
        super().__init__()
        self.links, self.loaded, self.anchors = [], [], {"", "top"}
        self.feed(text)

    def handle_starttag(self, tag, attributes):
        values = dict(attributes)
        self.anchors.update(
            value for name, value in attributes if name == "id" or (tag == "a" and name == "name")
        )
        if tag in ("a", "use", "area"):
            self.links += [values[name] for name in ("href", "xlink:href") if name in values]
        if values.get(LOADED.get(tag)) is not None:
            self.loaded.append(values[LOADED[tag]])


def loaded_by_style(text):
    text = re.sub(r"/\*.*?\*/", "", text, flags=re.DOTALL)
    found = re.findall(
        r"""url\(\s*(?:"([^"]*)"|'([^']*)'|([^)'"]*))\s*\)|@import\s+["']([^"']+)""", text
    )
    targets = ("".join(parts).strip() for parts in found)
    return [target for target in targets if not target.startswith("data:")]


class Site:
    def __init__(self, folder):
        self.folder = pathlib.Path(folder).resolve()
        pages = sorted([*self.folder.rglob("*.html"), *self.folder.rglob("*.svg")])
        self.pages = {path: Page(path.read_text(encoding="utf-8")) for path in pages}
        self.styles = {
            path: loaded_by_style(path.read_text(encoding="utf-8"))
            for path in sorted(self.folder.rglob("*.css"))
        }
        self.outside = {}
        self.followed = 0
        self.reached = {path: set() for path in self.pages}

    def named(self, path):
        return path.relative_to(self.folder)

    def fault_of(self, path, target, loads):
        """What is wrong with a target that stands in a file of the site; nothing where it is good."""
        self.followed += 1
        if outside.is_outside(target):
            if loads:
                return f"{self.named(path)}: loads {target}"
            self.outside.setdefault(target, self.named(path))
            return None
        parts = urllib.parse.urlsplit(target)
        end = (path.parent / urllib.parse.unquote(parts.path)).resolve() if parts.path else path
        if not end.is_file() or self.folder not in end.parents or parts.path.startswith("/"):
            return f"{self.named(path)}: {target}: there is no such file"
        if end in self.pages:
            self.reached.get(path, set()).add(end)
            if urllib.parse.unquote(parts.fragment) not in self.pages[end].anchors:
                return f"{self.named(path)}: {target}: there is no such anchor"
        return None

    def faults(self):
        targets = [
            (path, target, False) for path, page in self.pages.items() for target in page.links
        ]
        targets += [
            (path, target, True) for path, page in self.pages.items() for target in page.loaded
        ]
        targets += [(path, target, True) for path, style in self.styles.items() for target in style]
        found = [self.fault_of(*target) for target in targets]
        return (
            [fault for fault in found if fault]
            + outside.faults(self.outside)
            + self.never_reached()
        )

    def never_reached(self):
        seen, waiting = set(), [self.folder / "index.html"]
        while waiting:
            path = waiting.pop()
            if path not in seen:
                seen.add(path)
                waiting += self.reached.get(path, ())
        return [
            f"{self.named(path)}: no page leads here" for path in self.pages if path not in seen
        ]

    def missing_guides(self, tree):
        guides = [
            "index.md",
            "CHANGELOG.md",
            *(f"docs/{path.name}" for path in sorted(pathlib.Path(tree, "docs").glob("*.md"))),
        ]
        paths = [pathlib.Path(guide).with_suffix(".html") for guide in guides]
        return [
            f"{path}: the site has no such page"
            for path in paths
            if self.folder / path not in self.pages
        ]


def main(folder, tree=None):
    site = Site(folder)
    faults = site.faults() + (site.missing_guides(tree) if tree else [])
    if len(site.pages) < 20:
        faults.append(f"only {len(site.pages)} pages were found")
    return outside.ended(faults, f"{site.followed} links of {len(site.pages)} pages followed")


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
