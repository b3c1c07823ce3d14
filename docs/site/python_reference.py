"""Makes the page of the Python package from its sources and stubs, without importing it.

usage: python_reference.py PACKAGE FILE
"""

import ast
import pathlib
import sys

from docstrings import as_markup
from markup import heading, indented

FUNCTIONS = (ast.FunctionDef, ast.AsyncFunctionDef)


class Package:
    def __init__(self, folder):
        self.folder = pathlib.Path(folder)
        self.name = self.folder.name
        self.modules = {}
        self.untold = []

    def module(self, name):
        """A module's tree, or its stub's where its source is none of Python."""
        if name not in self.modules:
            paths = [
                self.folder / f"{name.replace('.', '/')}{ending}"
                for ending in (".py", "/__init__.py", ".pyi")
            ]
            path = next((path for path in paths if path.exists()), None)
            self.modules[name] = ast.parse(path.read_text(encoding="utf-8")) if path else None
        return self.modules[name]

    def found(self, name, module="__init__"):
        """The nodes that define a name, and the module that the package takes it from."""
        tree = self.module(module)
        for node in tree.body if tree else []:
            if isinstance(node, ast.ImportFrom) and (
                node.level == 1 or (node.module or "").startswith(f"{self.name}.")
            ):
                source = (node.module or "").removeprefix(f"{self.name}.")
                for alias in node.names:
                    if source and (alias.asname or alias.name) == name:
                        return self.found(alias.name, source)
        defined = [
            node
            for node in (tree.body if tree else [])
            if isinstance(node, (*FUNCTIONS, ast.ClassDef)) and node.name == name
        ]
        return defined, module

    def public(self):
        tree = self.module("__init__")
        for node in tree.body:
            if (
                isinstance(node, (ast.Assign, ast.AnnAssign))
                and "__all__" in ast.unparse(node).split("=")[0]
            ):
                return [name for name in ast.literal_eval(node.value) if not name.startswith("_")]
        imported = [
            alias.asname or alias.name
            for node in tree.body
            if isinstance(node, ast.ImportFrom) and node.level == 1
            for alias in node.names
        ]
        defined = [node.name for node in tree.body if isinstance(node, (*FUNCTIONS, ast.ClassDef))]
        return [name for name in imported + defined if not name.startswith("_")]


def decorators(node):
    return {ast.unparse(each).rpartition(".")[2] for each in node.decorator_list}


def signature(node, of_class, name=""):
    arguments = node.args
    if of_class and "staticmethod" not in decorators(node):  # without self or cls
        arguments = ast.arguments(
            **{field: getattr(arguments, field) for field in arguments._fields}
        )
        first = arguments.posonlyargs or arguments.args
        if arguments.posonlyargs:
            arguments.posonlyargs = first[1:]
        else:
            arguments.args = first[1:]
    returned = f" -> {ast.unparse(node.returns)}" if node.returns else ""
    return f"{name or node.name}({ast.unparse(arguments)})" + ("" if name else returned)


def of_functions(nodes, of_class):
    """A function, by its overloads where it has some."""
    overloads = [node for node in nodes if "overload" in decorators(node)]
    last = nodes[-1]
    marks = decorators(last)
    if {"property", "cached_property"} & marks:
        returned = f"\n   :type: {ast.unparse(last.returns)}" if last.returns else ""
        return f".. py:property:: {last.name}{returned}\n\n"
    kind = "method" if of_class else "function"
    lines = "\n   ".join(signature(node, of_class) for node in overloads or [last])
    made = f".. py:{kind}:: {lines}\n"
    return (
        made
        + "".join(f"   :{mark}:\n" for mark in ("classmethod", "staticmethod") if mark in marks)
        + "\n"
    )


def docstring(nodes):
    return next((told for told in map(ast.get_docstring, reversed(nodes)) if told), "")


def of_class(package, node, module):
    made_by = [
        each for each in node.body if isinstance(each, FUNCTIONS) and each.name == "__init__"
    ]
    made = f".. py:class:: {signature(made_by[-1], True, node.name) if made_by else node.name}\n\n"
    made += indented(as_markup(docstring([node])), 3) + "\n"
    members = {}
    for each, after in zip(node.body, [*node.body[1:], None]):
        if isinstance(each, FUNCTIONS) and "setter" not in decorators(each):
            members.setdefault(each.name, []).append(each)
        elif (
            isinstance(each, ast.AnnAssign)
            and isinstance(each.target, ast.Name)
            and not each.target.id.startswith("_")
        ):
            made += f"\n   .. py:attribute:: {each.target.id}\n      :type: {ast.unparse(each.annotation)}\n"
            if (
                isinstance(after, ast.Expr)
                and isinstance(after.value, ast.Constant)
                and isinstance(after.value.value, str)
            ):
                made += "\n" + indented(as_markup(after.value.value), 6) + "\n"
    for name, nodes in members.items():
        if not name.startswith("_") or (name.startswith("__") and docstring(nodes)):
            made += (
                "\n"
                + indented(
                    of_functions(nodes, True)
                    + indented(as_markup(told(package, nodes, module, node.name)), 3),
                    3,
                )
                + "\n"
            )
    return made


def told(package, nodes, module, owner=""):
    text = docstring(nodes)
    if not text and package.module(module) and not (package.folder / f"{module}.pyi").exists():
        package.untold.append(
            f"{package.name}/{module}.py: {owner}{'.' if owner else ''}{nodes[-1].name} is not documented"
        )
    return text


def page(package):
    made = (
        heading(f"The Python module {package.name}", "=") + f"\n.. py:module:: {package.name}\n\n"
    )
    made += as_markup(ast.get_docstring(package.module("__init__")) or "") + "\n"
    classes, functions = "", ""
    for name in package.public():
        nodes, module = package.found(name)
        if nodes and isinstance(nodes[-1], ast.ClassDef):
            classes += "\n" + of_class(package, nodes[-1], module)
            told(package, nodes, module)
        elif nodes:
            functions += (
                "\n"
                + of_functions(nodes, False)
                + indented(as_markup(told(package, nodes, module)), 3)
                + "\n"
            )
    parts = (("Functions", functions), ("Classes", classes))
    return made + "".join(f"\n{heading(title, '-')}{part}" for title, part in parts if part)


def main(folder, target):
    package = Package(folder)
    made = page(package)
    pathlib.Path(target).write_text(made, encoding="utf-8")
    if package.untold:
        sys.exit("\n".join(package.untold))


if __name__ == "__main__":
    main(*sys.argv[1:])
