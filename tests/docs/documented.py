#!/usr/bin/env python3
"""Takes the code blocks out of a Markdown page, so that what a reader copies is what we compile and run.

usage: documented.py programs PAGE...               lists the C++ blocks that are whole programs, one a line: the page,
                                                    the number of the block among all C++ blocks of the page, and the
                                                    readers of geometry files that it includes, separated by commas
       documented.py extract PAGE NUMBER OUTPUT     writes the NUMBERth C++ block of the page, counted from 1
       documented.py run PAGE NUMBER PROGRAM        runs the program made of it, in a folder with a copy of examples/;
                                                    what it prints must be the text block that follows in the page
"""

import collections
import contextlib
import difflib
import os
import re
import shutil
import subprocess
import sys
import tempfile

ROOT = os.path.dirname(os.path.dirname(os.path.dirname(os.path.abspath(__file__))))

# What a block of a page is: the line of its first line of text, its language ("indented" without a fence), its text, and
# what the HTML comment on the line above it says.
Block = collections.namedtuple("Block", "line language text mark")

FENCE = re.compile(r"```(\S*)")
MARK = re.compile(r"<!-- (.*) -->")

READERS = {"importers/cad/": "CadImporter", "importers/cgns/": "CgnsImporter"}


class PageError(Exception):
    """The page does not hold what is asked for; the text says what."""


def blocks(page):
    """The blocks of a page in their order: fenced ones, and paragraphs that are indented by four blanks."""
    found, lines, number = [], page.split("\n"), 0
    while number < len(lines):
        begin = number
        above = MARK.fullmatch(lines[begin - 1]) if begin else None
        fence = FENCE.fullmatch(lines[begin])
        number += 1
        if fence:
            while lines[number] != "```":
                number += 1
            text = lines[begin + 1:number]
            number += 1
        elif lines[begin].startswith("    ") and (above or not begin or not lines[begin - 1]):
            while number < len(lines) and (lines[number].startswith("    ") or is_gap(lines, number)):
                number += 1
            text = [line[4:] for line in lines[begin:number]]
        else:
            continue
        found.append(Block(begin + 2 if fence else begin + 1, fence[1] if fence else "indented",
                           "".join(f"{line}\n" for line in text), above[1] if above else ""))
    return found


def is_gap(lines, number):
    """Whether an empty line lies within an indented block."""
    return not lines[number] and number + 1 < len(lines) and lines[number + 1].startswith("    ")


def programs(page):
    """The numbers, among the C++ blocks, of those that are not excerpts of files."""
    of_cpp = [block for block in blocks(page) if block.language == "cpp"]
    return [number for number, block in enumerate(of_cpp, 1) if not block.mark.startswith("excerpt of ")]


def program(page, number):
    """(source, expected output) of the NUMBERth C++ block."""
    all_blocks = blocks(page)
    places = [place for place, block in enumerate(all_blocks) if block.language == "cpp"]
    if not 1 <= number <= len(places):
        raise PageError(f"there is no C++ block {number}; the page has {len(places)}")
    following = all_blocks[places[number - 1] + 1:places[number - 1] + 2]
    if not following or following[0].language != "text":
        raise PageError(f"C++ block {number} must be followed by a text block with its output")
    return all_blocks[places[number - 1]].text, following[0].text


def difference(expected, printed):
    return "".join(difflib.unified_diff(expected.splitlines(True), printed.splitlines(True), "the page", "the program"))


def read(path):
    with open(path, encoding="utf-8") as file:
        return file.read()


@contextlib.contextmanager
def scratch():
    """A folder as a reader has it who unpacked the examples and nothing else."""
    with tempfile.TemporaryDirectory() as folder:
        shutil.copytree(os.path.join(ROOT, "examples"), os.path.join(folder, "examples"))
        yield folder


def run(path, number, target):
    expected = program(read(path), number)[1]
    with scratch() as folder:
        finished = subprocess.run([os.path.abspath(target)], text=True, stdout=subprocess.PIPE, cwd=folder)
    if finished.returncode != 0:
        raise PageError(f"the program ended with {finished.returncode}")
    if finished.stdout != expected:
        raise PageError("the program prints something else:\n" + difference(expected, finished.stdout))


def main(verb, *arguments):
    if verb == "programs":
        for path in arguments:
            page = read(path)
            for number in programs(page):
                source = program(page, number)[0]
                needed = [reader for folder, reader in READERS.items() if folder in source]
                print(f"{path}|{number}|{','.join(needed)}")
        return
    path, number, target = arguments
    if verb == "extract":
        with open(target, "w", encoding="utf-8") as file:
            file.write(program(read(path), int(number))[0])
    else:
        run(path, int(number), target)


if __name__ == "__main__":
    if len(sys.argv) < 3 or sys.argv[1] != "programs" and (len(sys.argv) != 5 or sys.argv[1] not in ("extract", "run")):
        sys.exit(__doc__)
    try:
        main(*sys.argv[1:])
    except PageError as error:
        sys.exit(f"{sys.argv[2]}: {error}")
