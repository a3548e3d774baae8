#!/usr/bin/env python3
"""Compiles headers alone, twice in a row, each warning an error: public ones as a stranger would, in C++17; internal
ones in C++20, as our sources are.

A header is public when it is in gtm/, when it declares something exported, or when a public header includes it.

usage: headers.py COMPILER
"""

import multiprocessing.pool
import os
import re
import subprocess
import sys

import arrows
import tree

LIBRARIES = ("gtm/", "physics/", "locationmodel/", "importers/")

# Internal headers are compiled in these folders only: those of the importers want the headers of others.
INTERNAL = ("physics/", "locationmodel/", "support/")

EXPORT = re.compile(r"\b[A-Z]+_EXPORT\b")

WARNINGS = ["-Wall", "-Wextra", "-Wpedantic", "-Wconversion", "-Wshadow", "-Werror"]


def public(headers):
    """The public ones of `headers`, which maps path to text."""
    reached = set()
    waiting = [path for path, text in headers.items()
               if path.startswith(LIBRARIES) and (path.startswith("gtm/") or EXPORT.search(text))]
    while waiting:
        path = waiting.pop()
        if path in headers and path not in reached:
            reached.add(path)
            waiting += [included for _, _, included in arrows.includes_of(headers[path])]
    return reached


def complaint(compiler, standard, header, root=tree.ROOT):
    """What the compiler says against a header; empty when it has nothing to say."""
    source = f'#include "{header}"\n#include "{header}"\n'
    result = subprocess.run([compiler, f"-std={standard}", *WARNINGS, "-fsyntax-only", "-I", root, "-x", "c++", "-"],
                            input=source, text=True, stdout=subprocess.PIPE, stderr=subprocess.STDOUT)
    return result.stdout.strip() or (f"{header}: {compiler} failed" if result.returncode else "")


def main(compiler):
    headers = {path: tree.read(path) for path in tree.files() if path.endswith(".h")}
    standards = {path: "c++20" for path in headers if path.startswith(INTERNAL)}
    standards.update((path, "c++17") for path in public(headers))
    findings = [f"{path}: is not installed, yet a public header includes it"
                for path in sorted(public(headers)) if not path.startswith(LIBRARIES)]
    with multiprocessing.pool.ThreadPool(os.cpu_count()) as pool:
        findings += filter(None, pool.map(lambda path: complaint(compiler, standards[path], path), sorted(standards)))
    tree.finish(f"headers with {compiler}", findings, len(standards))


if __name__ == "__main__":
    if len(sys.argv) != 2:
        sys.exit(__doc__)
    main(sys.argv[1])
