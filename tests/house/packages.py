#!/usr/bin/env python3
"""Fails unless docs/dependencies.md gives a reason for each package of scripts/packages.txt, and for no other."""

import re

import tree


def listed(text):
    """The packages of scripts/packages.txt, in its order."""
    return [line.strip() for line in (line.partition("#")[0] for line in text.splitlines()) if line.strip()]


def explained(text):
    """Package -> reason, from those rows of a Markdown table that begin with a package in backticks."""
    return dict(re.findall(r"^\| `([^`]+)` \|[ ]*([^|]*?)[ ]*\|", text, re.MULTILINE))


def findings(packages, reasons):
    return ([f"scripts/packages.txt: {package} is not explained in docs/dependencies.md"
             for package in packages if package not in reasons]
            + [f"docs/dependencies.md: {package} has no reason" for package in reasons if not reasons[package]]
            + [f"docs/dependencies.md: {package} is not in scripts/packages.txt" for package in reasons
               if package not in packages]
            + [f"scripts/packages.txt: {second} must stand before {first}: the list is sorted and names each once"
               for first, second in zip(packages, packages[1:]) if first >= second])


if __name__ == "__main__":
    PACKAGES = listed(tree.read("scripts/packages.txt"))
    tree.finish("packages", findings(PACKAGES, explained(tree.read("docs/dependencies.md"))), len(PACKAGES))
