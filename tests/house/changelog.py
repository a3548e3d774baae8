#!/usr/bin/env python3
"""Fails on an entry of docs/changelog/ that scripts/changelog could not sort into the change log."""

import re

import tree

FOLDER = "docs/changelog/"
ENTRY = re.compile(r"- (Added|Changed|Deprecated|Fixed|Removed) .+\.")


def findings_in(path, text):
    lines = text.splitlines()
    return ([f"{path}:{number}: write '- Added ...' (or Changed, Deprecated, Fixed, Removed) on one line, as a sentence"
             for number, line in enumerate(lines, 1) if not ENTRY.fullmatch(line)]
            + ([] if text.endswith("\n") else [f"{path}: must have a line and end with a line end"]))


if __name__ == "__main__":
    ENTRIES = [path for path in tree.files() if path.startswith(FOLDER) and path != FOLDER + "README.md"]
    tree.finish("changelog", [finding for path in ENTRIES for finding in findings_in(path, tree.read(path))],
                1 + len(ENTRIES))
