#!/usr/bin/env python3
"""Fails on an include against an arrow, on a ring of includes, and on an include not written from the root."""

import posixpath
import re

import tree

# Room -> the rooms that it may include, besides itself. This table is the architecture; the picture of
# it is docs/architecture.svg. `physics` has three storeys, so that an object never knows its readers.
ALLOWED = {
    "gtm": set(),
    "physics vocabulary": {"gtm"},
    "physics objects": {"physics vocabulary", "gtm"},
    "physics readers": {"physics objects", "physics vocabulary", "gtm"},
    "support": set(),
    "locationmodel": {"gtm", "support"},
    "importers": {"locationmodel", "gtm", "support"},
    "python": {"physics objects", "physics readers", "physics vocabulary", "importers", "locationmodel", "gtm"},
    "apps": {"physics objects", "physics readers", "physics vocabulary", "importers", "locationmodel", "gtm", "support"},
    "examples": {"physics objects", "physics readers", "physics vocabulary", "importers", "locationmodel", "gtm"},
    "tests": {"physics objects", "physics readers", "physics vocabulary", "importers", "locationmodel", "gtm", "support",
              "apps", "examples"},
    "benchmarks": {"physics objects", "physics readers", "physics vocabulary", "importers", "locationmodel", "gtm",
                   "apps", "tests"},
}

# Which storey of `physics` a file lives in, by its path without extension; whatever is not named is a reader.
VOCABULARY = {"Export", "Types", "TypeNames", "NameManager", "TypeManager", "NonCopyable", "Lifetime", "NodePool", "SortByKey",
              "Zones", "CreationFailure", "report/ListWriter"}
OBJECTS = {"Physics", "Registry", "Region", "Volume", "Boundary", "Interface", "BoundaryPatch", "Model", "Settings",
           "ThreadBundle", "ActivationGroups"}

# These two are built from nothing but the C++ standard library.
STANDARD_LIBRARY_ONLY = ("gtm/", "physics/")

INCLUDE = re.compile(r'^\s*#\s*include\s*([<"])([^>"]+)[>"]', re.MULTILINE)


def room_of(path):
    """The room of a file, or None for a file outside every room."""
    folder, _, rest = path.partition("/")
    if folder == "physics":
        name = posixpath.splitext(rest)[0]
        storey = "vocabulary" if name in VOCABULARY else "objects" if name in OBJECTS else "readers"
        return f"physics {storey}"
    return folder if rest and folder in ALLOWED else None


def includes_of(text):
    """(line number, opening bracket, path) of each include."""
    return [(text.count("\n", 0, found.start(1)) + 1, found[1], found[2]) for found in INCLUDE.finditer(text)]


def wrong_arrows(sources):
    """One sentence for each include that the table does not allow; `sources` maps path to text."""
    findings = []
    for path, text in sources.items():
        room = room_of(path)
        if room is None:
            findings.append(f"{path}:1: is in no room; add its folder to the table of tests/house/arrows.py")
            continue
        for line, bracket, included in includes_of(text):
            other = room_of(included) if included in sources else None
            if other is None and bracket == '"':
                findings.append(f'{path}:{line}: no file "{included}"; write includes of ours from the root')
            elif other is None and path.startswith(STANDARD_LIBRARY_ONLY) and not re.fullmatch("[a-z_0-9]+", included):
                findings.append(f"{path}:{line}: <{included}> is not of the standard library, the only one allowed here")
            elif other is not None and other != room and other not in ALLOWED[room]:
                findings.append(f"{path}:{line}: {room} must not include {included}, which is in {other}")
    return findings


def rings(graph):
    """One sentence for each ring found in `graph`, which maps a name to the names that it points to."""
    findings, finished, trail = [], set(), []

    def visit(name):
        if name in trail:
            findings.append("ring: " + " -> ".join(trail[trail.index(name):] + [name]))
        elif name not in finished:
            trail.append(name)
            for other in sorted(graph.get(name, ())):
                visit(other)
            finished.add(trail.pop())

    for name in sorted(graph):
        visit(name)
    return findings


def violations(sources):
    graph = {path: {included for _, _, included in includes_of(text) if included in sources}
             for path, text in sources.items()}
    return wrong_arrows(sources) + rings(graph)


if __name__ == "__main__":
    SOURCES = {path: tree.read(path) for path in tree.files() if path.endswith((".h", ".cpp"))}
    tree.finish("arrows", violations(SOURCES), len(SOURCES))
