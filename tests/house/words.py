#!/usr/bin/env python3
"""Fails where a file points to something that a reader of this repository does not have: the folders of
somebody's machine, or papers and discussions that are kept elsewhere. A reason belongs into the text itself."""

import re

import tree

# Each word is written with a bracket inside, so that this file does not match itself.
WORDS = re.compile("|".join([
    r"specificatio[n]",
    r"\bthe spe[c]\b",
    r"\bspec[.]md",
    r"shared/spe[c]",
    r"\bPart [1-7][.][0-9]",
    r"\bissue [#]?[0-9]",
    r"\b[0-9][.][0-9]-[0-9][0-9]\b",
    r"[.]librar[y]\b",
    r"/wor[k]/",
    r"/tmp/w[t]",
    r"/tmp/brie[f]",
]), re.IGNORECASE)


def findings_in(path, text):
    return [f"{path}:{number}: \"{found[0]}\" refers to what a reader does not have; give the reason itself"
            for number, line in enumerate(text.split("\n"), 1) for found in WORDS.finditer(line)]


if __name__ == "__main__":
    FILES = tree.files()
    tree.finish("words", [finding for path in FILES
                          for finding in findings_in(path, path) + findings_in(path, tree.read(path))], len(FILES))
