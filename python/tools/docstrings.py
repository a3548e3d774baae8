#!/usr/bin/env python3
"""Makes the table of docstrings of the comments in our public headers, in the words of Python.

usage: docstrings.py TEMPLATE OUTPUT HEADER...
"""

import re
import sys
import textwrap

import headers

# A member without a comment of its own, or with one that says no more than where to look, takes that of the same name
# in another class.
ELSEWHERE = {"Physics": "TypeManager", "Volume": "Region", "Boundary": "Region", "Interface": "Region"}
ONLY_LEADS_THERE = "What the member of the same name of `TypeManager` answers."

# What holds in C++ only.
ONLY_THERE = {
    " A braced empty list is ambiguous: spell its type.": "",
    " The pointer is dead afterwards.": " The object has ended then.",
    " the pointer is dead afterwards.": " the object has ended then.",
    " All pointers to objects are dead afterwards, but those to interfaces.": " Interfaces can still be read then.",
    " All pointers to objects are dead after a success, but those to interfaces.":
        " All objects have ended after a success; interfaces can still be read.",
    "The location model is not owned and must outlive it. ": "",
    "Lists are new vectors of pointers to objects that stay owned here. ": "",
    " null arguments and objects of another `Physics` are refused before anything changes.":
        " arguments that are missing or of another Physics raise an error before anything changes.",
}

WORDS = [(r"\bnull\b", "None"), (r"\bNull\b", "None"), (r"\bfalse\b", "False"), (r"\btrue\b", "True")]


def snake_case(name):
    return re.sub(r"(?<=[a-z0-9])(?=[A-Z])|(?<=[A-Z])(?=[A-Z][a-z])", "_", name).lower()


def python_name(name, enumerators):
    """`Physics::createModel` as `Physics.create_model`, `BoundaryType::Unset` as `BoundaryType.UNSET`."""
    parts = name.split("::")
    if parts[-1][:1].islower():
        parts[-1] = "report" if parts[-1] == "dump" else snake_case(parts[-1])
    elif parts[-1] in enumerators:
        parts[-1] = snake_case(parts[-1]).upper()
    return ".".join(parts)


def in_python(comment, enumerators):
    for there, here in ONLY_THERE.items():
        comment = comment.replace(there, here)
    code = re.compile(r"`([\w:]+)`")
    parts = code.split(comment)
    for place, part in enumerate(parts):
        if place % 2:
            parts[place] = f"`{python_name(part, enumerators)}`"
        else:
            for pattern, word in WORDS:
                parts[place] = re.sub(pattern, word, parts[place])
    return textwrap.fill("".join(parts), 100)


def table(paths):
    """Name in C++ -> docstring."""
    read = [(path, headers.read(path)) for path in paths]
    classes = {each.name for _, header in read for each in header.classes}
    enumerators = {name for _, header in read for each in header.enumerations for name in each.values} - classes
    rows = {}
    for path, header in read:
        room = "" if path.startswith("physics/") else "gtm::"
        for each in header.classes:
            rows[room + each.name] = each.comment
            for member in each.members:
                add(rows, f"{room}{each.name}::{member.name}", member.comment)
        for function in header.functions:
            add(rows, room + function.name, function.comment)
    for name, comment in rows.items():
        owner, _, member = name.partition("::")
        if comment in ("", ONLY_LEADS_THERE) and owner in ELSEWHERE:
            rows[name] = rows.get(f"{ELSEWHERE[owner]}::{member}", "")
    return {name: in_python(comment, enumerators) for name, comment in rows.items()}


def add(rows, name, comment):
    """Overloads add what they say beyond the first."""
    if comment not in rows.setdefault(name, comment):
        rows[name] = f"{rows[name]} {comment}".strip()


def main(template, output, *paths):
    rows = table(paths)
    with open(template, encoding="utf-8") as file:
        text = file.read()
    lines = [f'    {{"{name}", R"({rows[name]})"}},\n' for name in sorted(rows)]
    with open(output, "w", encoding="utf-8") as file:
        file.write(text.replace("@ROWS@", "".join(lines)))


if __name__ == "__main__":
    if len(sys.argv) < 4:
        sys.exit(__doc__)
    main(*sys.argv[1:])
