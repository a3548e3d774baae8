#!/usr/bin/env python3
"""Fails on an entry of docs/changelog/ that scripts/changelog could not sort into the change log."""

import re

import tree

FOLDER = "docs/changelog/"
ENTRY = re.compile(r"- (Added|Changed|Deprecated|Fixed|Removed) .+\.")


def items(text):
    """(line number, item) of each list item, its wrapped lines joined."""
    found = []
    for number, line in enumerate(text.splitlines(), 1):
        if found and line.startswith("  "):
            found[-1] = (found[-1][0], found[-1][1] + " " + line.strip())
        else:
            found.append((number, line))
    return found


def findings_in(path, text):
    return ([f"{path}:{number}: write '- Added ...' (or Changed, Deprecated, Fixed, Removed) and end with a full stop"
             for number, item in items(text) if not ENTRY.fullmatch(item)]
            + ([] if text.endswith("\n") else [f"{path}: must have a line and end with a line end"]))


if __name__ == "__main__":
    ENTRIES = [path for path in tree.files() if path.startswith(FOLDER) and path != FOLDER + "README.md"]
    tree.finish("changelog", [finding for path in ENTRIES for finding in findings_in(path, tree.read(path))],
                1 + len(ENTRIES))
