"""A member or class of the public headers that a guide names links to the reference."""

from docutils import nodes
from sphinx.domains.cpp import CPPDomain
from sphinx.util.nodes import make_refnode


class Domain(CPPDomain):
    """Without the parameters of functions, which nobody looks for."""

    def get_objects(self):
        return (each for each in super().get_objects() if not each[2].endswith("Param"))


def places(env):
    """Where each name is described; a member of several classes has no one place."""
    described = list(env.get_domain("cpp").get_objects())
    found = {
        name: (page, anchor)
        for name, _, kind, page, anchor, _ in described
        if kind in ("class", "struct")
    }
    owners = {}
    for full, _, kind, page, anchor, _ in described:
        owner, _, name = full.rpartition("::")
        if kind == "function" and name not in found:
            owners.setdefault(name, {})[owner] = (page, anchor)
    found.update((name, next(iter(of.values()))) for name, of in owners.items() if len(of) == 1)
    return found


def link(app, doctree, page):
    if page.startswith("reference/"):
        return
    known = places(app.env)
    for literal in list(doctree.findall(nodes.literal)):
        place = known.get(literal.astext())
        if place and not isinstance(literal.parent, nodes.reference):
            literal.replace_self(make_refnode(app.builder, page, *place, literal.deepcopy()))


def setup(app):
    app.add_domain(Domain, override=True)
    app.connect("doctree-resolved", link)
    return {"parallel_read_safe": True, "parallel_write_safe": True}
