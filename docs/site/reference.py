"""Makes the pages of the C++ reference, one a header, from Doxygen's XML.

usage: reference.py XML FOLDER
"""

import pathlib
import sys
import xml.etree.ElementTree as ElementTree

from markup import description, escaped, heading, indented

LIBRARIES = {
    "QELPROEngine": "QELPROEngine: process files, machine banks, coolant tables.",
    "QELG": "QELG: the simulator's process object.",
}


class Reference:
    def __init__(self, folder):
        self.folder = pathlib.Path(folder)

    def compound(self, name):
        return ElementTree.parse(self.folder / f"{name}.xml").getroot().find("compounddef")

    def headers(self):
        """The compounds of the headers, in the order of their paths."""
        index = ElementTree.parse(self.folder / "index.xml").getroot()
        files = [self.compound(each.get("refid")) for each in index if each.get("kind") == "file"]
        return sorted(files, key=lambda file: file.find("location").get("file").lower())


def text_of(node):
    return " ".join("".join(node.itertext()).split()) if node is not None else ""


def signature(member):
    """A declaration as it stands in the header, without the name of its class."""
    kind = member.get("kind")
    name = member.find("name").text
    if kind == "define":
        return name
    if kind == "enum":
        return name
    template = member.find("templateparamlist")
    parameters = (
        ", ".join(text_of(each.find("type")) for each in template) if template is not None else ""
    )
    before = f"template<{parameters}> " if parameters else ""
    if kind == "typedef":
        value = text_of(member.find("initializer")) or text_of(member.find("type"))
        return f"{before}{name} = {value}"
    before += "static " if member.get("static") == "yes" else ""
    before += text_of(member.find("type")) + " "
    return f"{before.lstrip()}{name}{text_of(member.find('argsstring'))} {text_of(member.find('initializer'))}".strip()


DIRECTIVES = {
    "function": "function",
    "variable": "member",
    "typedef": "type",
    "enum": "enum",
    "define": "macro",
}


def of_member(member):
    domain = "c" if member.get("kind") == "define" else "cpp"
    made = f".. {domain}:{DIRECTIVES[member.get('kind')]}:: {signature(member)}\n\n"
    made += indented(description(member), 3) + "\n"
    for value in member.findall(
        "enumvalue"
    ):  # Doxygen ends what is no sentence with a full stop, too
        shown = f"{value.find('name').text} {text_of(value.find('initializer'))}".strip()
        made += (
            f"\n   .. cpp:enumerator:: {shown}\n\n"
            + indented(description(value).rstrip("."), 6)
            + "\n"
        )
    return made


def groups(node, title, path):
    """The members that a header declares, by the titles of their groups; those of no group first.

    The parts of a group are one.
    """

    def documented(section):
        members = [member for member in section.findall("memberdef") if description(member)]
        return [member for member in members if member.find("location").get("file") == path]

    made = {title: []}
    subjects = {}
    for section in node.findall("sectiondef"):
        if section.get("kind") == "user-defined":
            name, _, subject = section.find("header").text.partition("]: ")
            name = f"{name}]" if subject else name.rstrip(".")
            subjects.setdefault(name, subject)
            made.setdefault(name, []).extend(documented(section))
        elif not section.get("kind").startswith("private"):
            made[title] += documented(section)
    return [(name, subjects.get(name, ""), members) for name, members in made.items() if members]


def of_groups(node, title, sign, path):
    made = ""
    for name, subject, members in groups(node, title, path):
        made += "\n" + heading(escaped(name), sign)
        made += f"\n{escaped(subject[0].upper() + subject[1:])}\n" if subject else ""
        made += "\n" + "\n".join(of_member(member) for member in members)
    return made


def of_class(node, alone, path):
    name = node.find("compoundname").text
    template = node.find("templateparamlist")
    parameters = (
        ", ".join(text_of(each.find("type")) for each in template) if template is not None else ""
    )
    made = "" if alone else "\n" + heading(escaped(name), "-")
    made += (
        f"\n.. cpp:{node.get('kind')}:: "
        + (f"template<{parameters}> " if parameters else "")
        + name
        + "\n\n"
    )
    made += indented(description(node), 3) + "\n"
    made += f"\n.. cpp:namespace:: {name}\n"
    made += of_groups(node, "Members", "-" if alone else "~", path)
    return made + "\n.. cpp:namespace:: NULL\n"


def page(reference, file):
    """The title of a header's page, what it holds in a line, and the page."""
    path = file.find("location").get("file")
    classes = [reference.compound(each.get("refid")) for each in file.findall("innerclass")]
    classes = [each for each in classes if description(each)]
    spaces = [reference.compound(each.get("refid")) for each in file.findall("innernamespace")]
    alone = len(classes) == 1
    title = classes[0].find("compoundname").text if alone else path
    made = heading(escaped(title), "=") + f"\n.. code-block:: cpp\n\n   #include <{path}>\n"
    told = description(file)
    made += f"\n{told}\n" if told else ""
    made += "".join(of_class(each, alone, path) for each in classes)
    made += of_groups(
        file,
        "Functions" if file.find("sectiondef[@kind='func']") is not None else "Macros",
        "-",
        path,
    )
    for space in spaces:
        inside = of_groups(space, f"Namespace {space.find('compoundname').text}", "-", path)
        made += (
            f"\n.. cpp:namespace:: {space.find('compoundname').text}\n{inside}\n.. cpp:namespace:: NULL\n"
            if inside
            else ""
        )
    about = told or (description(classes[0]) if classes else "")
    return title, about.split("\n\n")[0], made


def main(xml, folder):
    folder = pathlib.Path(folder)
    reference = Reference(xml)
    listed = {library: [] for library in LIBRARIES}
    for file in reference.headers():
        path = pathlib.PurePosixPath(file.find("location").get("file"))
        title, about, made = page(reference, file)
        target = folder / path.with_suffix(".rst")
        target.parent.mkdir(parents=True, exist_ok=True)
        target.write_text(made)
        listed[path.parts[0]].append((title.endswith(".h"), path.with_suffix(""), title, about))
    made = heading("The C++ reference", "=")
    for library, pages in listed.items():
        pages.sort()  # classes before headers that hold other things
        made += "\n" + heading(LIBRARIES[library].rstrip("."), "-") + "\n"
        made += ".. list-table::\n   :widths: 35 65\n\n"
        made += "".join(
            f"   * - :doc:`{title} <{path}>`\n     - {about}\n" for _, path, title, about in pages
        )
        made += "\n.. toctree::\n   :hidden:\n   :titlesonly:\n\n"
        made += "".join(f"   {path}\n" for _, path, _, _ in pages)
    (folder / "index.rst").write_text(made)


if __name__ == "__main__":
    main(*sys.argv[1:])
