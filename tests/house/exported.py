#!/usr/bin/env python3
"""Fails when a shared library exports other symbols than the list of it says: a symbol that is gone breaks the programs
of others, and one that comes is a promise to keep.

usage: exported.py LIBRARY LIST

Weak symbols do not count: they come from inline functions and templates, and programs that use them bring their own.
With PHYSICS_REWRITE_GOLDEN=1 in the environment it writes the list anew and fails, so that somebody reads it.
"""

import os
import subprocess
import sys

import symbols
import tree


def readable(mangled):
    """The names for people, sorted. Names that differ in their mangled form only, as those of the variants of one
    constructor, stand once for each."""
    listed = subprocess.run(["c++filt"], input="".join(f"{name}\n" for name in mangled), check=True, text=True,
                            stdout=subprocess.PIPE).stdout
    return sorted(listed.splitlines())


def differences(expected, found):
    gone, new = list(expected), []
    for name in found:
        if name in gone:
            gone.remove(name)
        else:
            new.append(name)
    return [f"gone: {name}" for name in gone] + [f"new: {name}" for name in new]


def main(library, path):
    found = readable(symbols.dynamic_symbols(library, "--defined-only", leave_out="wvWV"))
    if os.environ.get("PHYSICS_REWRITE_GOLDEN") == "1":
        with open(path, "w", encoding="utf-8") as file:
            file.writelines(f"{name}\n" for name in found)
        tree.finish(f"exports of {library}", [f"{path}: rewritten; read it, write an entry of the change log, then run "
                                              "again without the switch"], len(found))
    with open(path, encoding="utf-8") as file:
        expected = file.read().splitlines()
    tree.finish(f"exports of {library}", [f"{path}: {each}" for each in differences(expected, found)], len(found))


if __name__ == "__main__":
    if len(sys.argv) != 3:
        sys.exit(__doc__)
    main(*sys.argv[1:])
