#!/usr/bin/env python3
"""Fails unless docs/dependencies.md gives a reason for each package of our lists, and for no other."""

import re

import tree

LISTS = ("scripts/packages.txt", "scripts/packages-bench.txt")


def listed(text):
    """The packages of one list, in its order."""
    return [line.strip() for line in (line.partition("#")[0] for line in text.splitlines()) if line.strip()]


def explained(text):
    """Package -> reason, from those rows of a Markdown table that begin with a package in backticks."""
    return dict(re.findall(r"^\| `([^`]+)` \|[ ]*([^|]*?)[ ]*\|", text, re.MULTILINE))


def findings(lists, reasons):
    """`lists` maps the path of a list to its packages."""
    everything = [package for packages in lists.values() for package in packages]
    return ([f"{path}: {package} is not explained in docs/dependencies.md"
             for path, packages in lists.items() for package in packages if package not in reasons]
            + [f"docs/dependencies.md: {package} has no reason" for package in reasons if not reasons[package]]
            + [f"docs/dependencies.md: {package} is not in {' or '.join(lists)}" for package in reasons
               if package not in everything]
            + [f"{path}: {second} must stand before {first}: the list is sorted and names each once"
               for path, packages in lists.items()
               for first, second in zip(packages, packages[1:]) if first >= second])


if __name__ == "__main__":
    PACKAGES = {path: listed(tree.read(path)) for path in LISTS}
    tree.finish("packages", findings(PACKAGES, explained(tree.read("docs/dependencies.md"))),
                sum(map(len, PACKAGES.values())))
