#!/usr/bin/env python3
"""Writes the stubs of the C++ part of the module, from the signatures that its docstrings begin with.

usage: PYTHONPATH=build/dev/python python/tools/stubs.py       writes python/physics/_native/*.pyi anew
"""

import os
import re

FOLDER = os.path.join(os.path.dirname(os.path.dirname(os.path.abspath(__file__))), "physics", "_native")

SIGNATURE = re.compile(r"^(?:\d+\. )?(\w+)\((.*)\) -> (.*)$", re.MULTILINE)

# What an object gives when it is iterated; the signature does not tell.
ITERATED = {"Physics": "Volume", "Model": "Volume", "Volume": "Boundary", "Boundary": "BoundaryPatch",
            "Settings": "ThreadBundle", "LocationModel": "Body", "Part": "Body"}

HEADS = {
    "physics": """\
# Made by python/tools/stubs.py.
from typing import Any, Iterator, Optional, Sequence, overload

from physics import locationmodel as locationmodel
from physics.enumerations import *
from physics.values import Complaint
""",
    "physics.locationmodel": """\
# Made by python/tools/stubs.py.
import os
from typing import Iterator, Optional, Sequence, Union, overload

from physics.enumerations import *
from physics.values import BodyFacts, FaceFacts
""",
}


def annotation(text, module, is_argument):
    """A type as the signature has it, in the words of a stub."""
    text = re.sub(r"List\[(int|float)\[\d+\]\]", r"List[\1]", text)  # of a fixed length
    text = re.sub(rf"\b{re.escape(module)}\.(?=[A-Z])", "", text)
    text = text.replace("physics.locationmodel.", "locationmodel.").replace("os.PathLike", "Union[str, os.PathLike[str]]")
    text = text.replace("List[", "Sequence[" if is_argument else "list[").replace("Tuple[", "tuple[")
    return text


def argument(text, module):
    name, _, rest = text.partition(": ")
    if name == "self":
        return name
    if not rest:
        return f"{name}: Any" if name.startswith("*") else name
    kind, _, default = rest.partition(" = ")
    default = re.sub(r"<([\w.]+): -?\d+>", r"\1", default)
    return f"{name}: {annotation(kind, module, True)}" + (f" = {default}" if default else "")


def arguments(text):
    """Splits at those commas that are not inside brackets."""
    parts, depth = [""], 0
    for letter in text:
        depth += letter in "[<(" and 1 or letter in "]>)" and -1 or 0
        if letter == "," and not depth:
            parts.append("")
        else:
            parts[-1] += letter
    return [part.strip() for part in parts if part.strip()]


def function(name, documented, module, indent, owner=None, is_static=False):
    found = [match for match in SIGNATURE.finditer(documented.__doc__) if match[1] == name]
    lines = []
    for _, taken, answer in (match.groups() for match in found):
        if name == "__iter__":
            answer = f"Iterator[{ITERATED[owner]}]"
        taken = ", ".join(argument(each, module) for each in arguments(taken))
        if len(found) > 1:
            lines.append(f"{indent}@overload")
        if is_static:
            lines.append(f"{indent}@staticmethod")
        lines.append(f"{indent}def {name}({taken}) -> {annotation(answer, module, False)}: ...")
    return lines


def class_stub(cls, module):
    base = cls.__mro__[1]
    bases = "" if base.__module__ == "pybind11_builtins" else f"({base.__name__})"
    lines = [f"class {cls.__name__}{bases}:"]
    for name, member in sorted(cls.__dict__.items()):
        is_static = isinstance(member, staticmethod)
        if name == "__repr__" or not SIGNATURE.search(getattr(member, "__doc__", None) or ""):
            continue
        lines += function(name, member.__func__ if is_static else member, module, "    ", cls.__name__, is_static)
    return lines if len(lines) > 1 else [lines[0] + " ..."]


def module_stub(module, shown_as):
    classes = {name: each for name, each in vars(module).items() if isinstance(each, type)}
    blocks = []
    while classes:  # a base stands before what is derived from it
        name = min(name for name, cls in classes.items() if cls.__mro__[1].__name__ not in classes)
        cls = classes.pop(name)
        if issubclass(cls, Exception):
            blocks.append([f"class {name}({cls.__mro__[1].__name__}): ..."])
        else:
            blocks.append(class_stub(cls, shown_as))
    for name, each in sorted(vars(module).items()):
        if callable(each) and not isinstance(each, type):
            blocks.append(function(name, each, shown_as, ""))
    return HEADS[shown_as] + "".join("\n\n" + "\n".join(block) + "\n" for block in blocks)


def stubs():
    """File name -> text."""
    from physics import _native

    return {"__init__.pyi": module_stub(_native, "physics"),
            "locationmodel.pyi": module_stub(_native.locationmodel, "physics.locationmodel")}


if __name__ == "__main__":
    for file_name, text in stubs().items():
        with open(os.path.join(FOLDER, file_name), "w", encoding="utf-8") as file:
            file.write(text)
