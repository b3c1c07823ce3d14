"""A member or class of the public headers that a guide names links to its place in the reference."""

from docutils import nodes
from sphinx.util.nodes import make_refnode


def places(env):
    """Where each name is described; names of several classes have no one place."""
    found = {}
    for full, _, kind, page, anchor, _ in env.get_domain("cpp").get_objects():
        if kind in ("function", "class", "struct"):
            name = full.rsplit("::", 1)[-1].split("(")[0]
            owner = full.rpartition("::")[0].split("(")[0]
            place = found.setdefault(name, (owner, page, anchor))
            if place[0] != owner and kind == "function":
                found[name] = (None, None, None)
            elif kind != "function":
                found[name] = (owner, page, anchor)
    return {name: (page, anchor) for name, (_, page, anchor) in found.items() if page}


def link(app, doctree, page):
    if page.startswith("reference/"):
        return
    known = places(app.env)
    for literal in list(doctree.findall(nodes.literal)):
        place = known.get(literal.astext())
        if place and not isinstance(literal.parent, nodes.reference):
            reference = make_refnode(app.builder, page, *place, literal.deepcopy())
            literal.replace_self(reference)


def setup(app):
    app.connect("doctree-resolved", link)
    return {"parallel_read_safe": True, "parallel_write_safe": True}
