#!/usr/bin/env python3
"""Compiles every public header alone, as a stranger would include it: C++17, twice, each warning an error.

usage: headers.py COMPILER
"""

import multiprocessing.pool
import os
import subprocess
import sys

import tree

PUBLIC_FOLDERS = ("gtm/", "physics/", "locationmodel/")

# Headers of those folders that are not installed: only our own sources, which are C++20, include them.
INTERNAL = set()

WARNINGS = ["-Wall", "-Wextra", "-Wpedantic", "-Wconversion", "-Wshadow", "-Werror"]


def complaint(compiler, header, root=tree.ROOT):
    """What the compiler says against a header; empty when it has nothing to say."""
    standard = "-std=c++20" if header in INTERNAL else "-std=c++17"
    source = f'#include "{header}"\n#include "{header}"\n'
    result = subprocess.run([compiler, standard, *WARNINGS, "-fsyntax-only", "-I", root, "-x", "c++", "-"],
                            input=source, text=True, stdout=subprocess.PIPE, stderr=subprocess.STDOUT)
    return result.stdout.strip() or (f"{header}: {compiler} failed" if result.returncode else "")


def main(compiler):
    files = tree.files()
    headers = [path for path in files if path.startswith(PUBLIC_FOLDERS) and path.endswith(".h")]
    findings = [f"tests/house/headers.py: {header} is listed as internal but does not exist"
                for header in sorted(INTERNAL - set(headers))]
    with multiprocessing.pool.ThreadPool(os.cpu_count()) as pool:
        findings += filter(None, pool.map(lambda header: complaint(compiler, header), headers))
    tree.finish(f"headers with {compiler}", findings, len(headers))


if __name__ == "__main__":
    if len(sys.argv) != 2:
        sys.exit(__doc__)
    main(sys.argv[1])
