"""Reads our own public headers: classes, public members, enumerations, free functions, and the comment of each.

Strict rather than clever: it knows the layout that clang-format gives our headers, and stops at what it does not know.
"""

import os
import re

ROOT = os.path.dirname(os.path.dirname(os.path.dirname(os.path.abspath(__file__))))


class HeaderError(Exception):
    """A header has something that this reader does not know; the text says what and where."""


class Member:
    """A public member of a class, one for each overload, or a free function."""

    def __init__(self, name, statement, comment, line):
        self.name = name
        self.statement = statement
        self.comment = comment
        self.line = line

    def is_setter(self):
        return re.match(r"void set[A-Z]", self.statement) is not None


class Class:
    def __init__(self, name, comment):
        self.name = name
        self.comment = comment
        self.members = []


class Enumeration:
    """`values` maps the enumerators to their numbers, in the order of the header."""

    def __init__(self, name, comment, values):
        self.name = name
        self.comment = comment
        self.values = values


class Header:
    """`classes`, `enumerations` and `functions`, each in the order of the header."""

    def __init__(self):
        self.classes = []
        self.enumerations = []
        self.functions = []


COMMENT = re.compile(r"///?<? ?(.*)")
CLASS = re.compile(r"(?:class|struct)(?: [A-Z]+_EXPORT)? (\w+)(?: final)?(?: : [\w:, <>]+)? \{")
FUNCTION = re.compile(r"(~?\w+|operator\S+?)\(")
SKIPPED = re.compile(r"(friend |using |typedef |template <>|#|(class|struct) \w+;|static_assert)")


def read(path):
    with open(os.path.join(ROOT, path), encoding="utf-8") as file:
        return parse(file.read(), path)


def parse(text, path):
    header = Header()
    scopes = []  # of each open brace: None for a namespace, else [class, whether public]
    for number, comment, statement in statements(text, path):
        where = f"{path}:{number}"
        scope = scopes[-1] if scopes else None
        if statement.startswith("}"):
            if not scopes:
                raise HeaderError(f"{where}: nothing is open that this could close")
            scopes.pop()
        elif re.fullmatch(r"namespace [\w:]+ \{", statement):
            scopes.append(None)
        elif re.fullmatch(r"(public|protected|private):", statement):
            scope[1] = statement == "public:"
        elif found := re.fullmatch(r"enum class (\w+)(?: : [\w:]+)? \{(.*)\};", statement):
            if scope is None:
                header.enumerations.append(Enumeration(found[1], comment, enumerators(found[2], where)))
        elif found := CLASS.fullmatch(statement):
            is_public = scope is None or scope[1]
            name = found[1] if scope is None else f"{scope[0].name}::{found[1]}"
            scopes.append([Class(name, comment), statement.startswith("struct")])
            if is_public:
                header.classes.append(scopes[-1][0])
        elif not SKIPPED.match(statement) and (scope is None or scope[1]):
            add(header, scope, statement, comment, number, where)
    if scopes:
        raise HeaderError(f"{path}: ends within a class or a namespace")
    return header


def add(header, scope, statement, comment, number, where):
    statement = re.sub(r"^template <[^>]*> |\b[A-Z]+_EXPORT |\b(virtual|explicit|inline|static|constexpr) ", "", statement)
    found = FUNCTION.search(statement)
    if found:
        owner = header.functions if scope is None else scope[0].members
        owner.append(Member(found[1], statement, comment, number))
    elif scope is None or not re.fullmatch(r"[\w:<>*, ]+ \w+( = [^;]+)?;", statement):
        raise HeaderError(f"{where}: cannot read '{statement}'")
    else:  # a value of a struct
        name = re.search(r"(\w+)(?: = [^;]+)?;$", statement)[1]
        scope[0].members.append(Member(name, statement, comment, number))


def enumerators(body, where):
    values = {}
    for item in filter(None, map(str.strip, body.split(","))):
        found = re.fullmatch(r"(\w+) = (-?\d+)", item)
        if not found:
            raise HeaderError(f"{where}: the enumerator '{item}' has no number")
        values[found[1]] = int(found[2])
    return values


def statements(text, path):
    """(line number, comment, statement) of each declaration; of classes and namespaces, of each brace.

    A comment belongs to what follows it, and one that ends with `@{` to everything up to `@}` that has none itself."""
    comment, of_group, pending = [], [], ""
    for number, line in enumerate(text.split("\n"), 1):
        line = line.strip()
        if not pending:
            if line == "/// @{":
                of_group = comment
                continue
            if line == "/// @}":
                comment, of_group = [], []
                continue
            if not line or line.startswith("#") or line.startswith("// ----"):
                comment = []
                continue
            if line.startswith("//"):
                comment.append(COMMENT.match(line)[1])
                continue
            start = number
        line = re.sub(r"\s*//.*$", "", line)
        pending = f"{pending} {line}".strip()
        if is_complete(pending):
            yield start, " ".join(comment or of_group), re.sub(r"\s+", " ", pending)
            comment, pending = [], ""
    if pending:
        raise HeaderError(f"{path}: ends within '{pending}'")


def is_complete(text):
    if re.fullmatch(r"namespace .*\{|\};?|(public|protected|private):|#.*", text):
        return True
    if re.match(r"(class|struct) [^;(]*\{$", text):
        return True
    if text.count("(") != text.count(")") or text.count("{") != text.count("}"):
        return False
    if text.startswith("template") and text.endswith(">"):
        return False
    return text.endswith((";", "}"))
