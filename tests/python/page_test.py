"""The blocks of docs/python.md run one after the other, and print the text block that follows each."""

import os
import subprocess
import sys

import documented

PAGE = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "..", "docs", "python.md")
MARK = "---- end of a block ----\n"


def test_every_block_prints_what_the_page_says():
    with open(PAGE, encoding="utf-8") as file:
        blocks = documented.blocks(file.read())
    assert [language for language, _ in blocks] == ["python", "text"] * 4
    # In an interpreter of its own, since ids go on counting within one.
    script = "".join(f"{text}\nprint({MARK!r}, end='')\n" for language, text in blocks if language == "python")

    printed = subprocess.run([sys.executable, "-"], input=script, check=True, text=True, stdout=subprocess.PIPE).stdout

    assert printed.split(MARK) == [text for language, text in blocks if language == "text"] + [""]
