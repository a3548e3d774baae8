#!/usr/bin/env python3
"""Fails on an entry of docs/changelog/ that scripts/changelog could not sort into the change log, and on a change of what
a library exports that leaves no entry in the same commit."""

import re

import tree

FOLDER = "docs/changelog/"
EXPORTS = "tests/golden/exported/"
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


def is_silent(changed):
    """Whether a change of these paths alters the list of exported symbols, but no entry of the change log."""
    return (any(path.startswith(EXPORTS) for path in changed)
            and not any(path.startswith(FOLDER) or path == "CHANGELOG.md" for path in changed))


def silent_changes(root=tree.ROOT):
    """A sentence for the newest commit that changed an exported symbol, and for what is not committed yet, when they say
    nothing in the change log. The oldest commit of a shallow clone seems to add everything, entries too."""
    changes = {"the working tree": tree.git(root, "diff", "--name-only", "HEAD").splitlines()
                                   + tree.git(root, "ls-files", "--others", "--exclude-standard").splitlines()}
    for commit in tree.git(root, "log", "-1", "--no-merges", "--format=%h", "--", EXPORTS).split():
        changes[f"commit {commit}"] = tree.git(root, "show", "--name-only", "--format=", commit).splitlines()
    return [f"{EXPORTS}: {which} changes what a library exports and says nothing in {FOLDER}"
            for which, changed in changes.items() if is_silent(changed)]


if __name__ == "__main__":
    ENTRIES = [path for path in tree.files() if path.startswith(FOLDER) and path != FOLDER + "README.md"]
    tree.finish("changelog", [finding for path in ENTRIES for finding in findings_in(path, tree.read(path))]
                + silent_changes(), 1 + len(ENTRIES))
