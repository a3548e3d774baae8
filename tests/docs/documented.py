#!/usr/bin/env python3
"""Takes the code blocks out of a Markdown page, so that what a reader copies is what we compile and run.

usage: documented.py extract PAGE NUMBER OUTPUT     writes the NUMBERth C++ block of the page, counted from 1
       documented.py run PAGE NUMBER PROGRAM        runs the program made of it; what it prints must be the text
                                                    block that follows the C++ block in the page
"""

import difflib
import re
import subprocess
import sys

BLOCK = re.compile(r"^```(\w*)\n(.*?)^```$", re.MULTILINE | re.DOTALL)


class PageError(Exception):
    """The page does not hold what is asked for; the text says what."""


def blocks(page):
    """(language, text) of each fenced block."""
    return BLOCK.findall(page)


def program(page, number):
    """(source, expected output) of the NUMBERth C++ block."""
    all_blocks = blocks(page)
    places = [place for place, (language, _) in enumerate(all_blocks) if language == "cpp"]
    if not 1 <= number <= len(places):
        raise PageError(f"there is no C++ block {number}; the page has {len(places)}")
    following = all_blocks[places[number - 1] + 1:places[number - 1] + 2]
    if not following or following[0][0] != "text":
        raise PageError(f"C++ block {number} must be followed by a text block with its output")
    return all_blocks[places[number - 1]][1], following[0][1]


def difference(expected, printed):
    return "".join(difflib.unified_diff(expected.splitlines(True), printed.splitlines(True), "the page", "the program"))


def main(verb, path, number, target):
    with open(path, encoding="utf-8") as file:
        source, expected = program(file.read(), int(number))
    if verb == "extract":
        with open(target, "w", encoding="utf-8") as file:
            file.write(source)
        return
    finished = subprocess.run([target], text=True, stdout=subprocess.PIPE)
    if finished.returncode != 0:
        raise PageError(f"the program ended with {finished.returncode}")
    if finished.stdout != expected:
        raise PageError("the program prints something else:\n" + difference(expected, finished.stdout))


if __name__ == "__main__":
    if len(sys.argv) != 5 or sys.argv[1] not in ("extract", "run"):
        sys.exit(__doc__)
    try:
        main(*sys.argv[1:])
    except PageError as error:
        sys.exit(f"{sys.argv[2]}: {error}")
