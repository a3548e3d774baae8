#!/usr/bin/env python3
"""Fails on a link or picture in a Markdown page that leads to no file of the repository."""

import posixpath
import re

import tree

LINK = re.compile(r"\[[^\]\n]*\]\(([^)\s]+)\)")
CODE = re.compile(r"^```.*?^```$|`[^`\n]*`", re.MULTILINE | re.DOTALL)


def without_code(text):
    """The text with the same lines, but blanks where code stood, since a subscript and a call look like a link."""
    return CODE.sub(lambda code: re.sub(r"[^\n]", " ", code[0]), text)


def dead_links(path, text, files):
    """One sentence for each relative link of a page that names neither one of `files` nor a folder of them."""
    folders = {folder for file in files for folder in parents(file)}
    findings = []
    for number, line in enumerate(without_code(text).split("\n"), 1):
        for target in LINK.findall(line):
            if re.match(r"[a-z]+:|#", target):
                continue
            wanted = posixpath.normpath(posixpath.join(posixpath.dirname(path), target.partition("#")[0]))
            if wanted not in files and wanted not in folders:
                findings.append(f"{path}:{number}: the link to {target} leads to no file")
    return findings


def parents(path):
    while path:
        path = posixpath.dirname(path)
        yield path or "."


if __name__ == "__main__":
    FILES = set(tree.files())
    PAGES = sorted(path for path in FILES if path.endswith(".md"))
    tree.finish("links", [finding for page in PAGES for finding in dead_links(page, tree.read(page), FILES)], len(PAGES))
