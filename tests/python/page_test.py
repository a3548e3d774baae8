"""The Python blocks of a page run one after the other, and print the text block that follows each."""

import glob
import os
import subprocess
import sys

import pytest

import documented

MARK = "---- end of a block ----\n"


def scripts(page):
    """(script, what it prints) of each Python block."""
    blocks = documented.blocks(page)
    return [(block.text, following.text) for block, following in zip(blocks, blocks[1:]) if block.language == "python"]


def pages_with_python():
    for path in sorted(glob.glob(os.path.join(documented.ROOT, "*.md")) + glob.glob(os.path.join(documented.ROOT, "docs/*.md"))):
        if any(block.language == "python" for block in documented.blocks(documented.read(path))):
            yield path


@pytest.mark.parametrize("path", pages_with_python(), ids=os.path.basename)
def test_every_block_prints_what_the_page_says(path):
    page = documented.read(path)
    pairs = scripts(page)
    assert len(pairs) == sum(block.language == "python" for block in documented.blocks(page))
    # In an interpreter of its own, since ids go on counting within one.
    script = "".join(f"{text}\nprint({MARK!r}, end='')\n" for text, _ in pairs)

    with documented.scratch() as folder:
        printed = subprocess.run([sys.executable, "-"], input=script, check=True, text=True, stdout=subprocess.PIPE,
                                 cwd=folder).stdout

    assert printed.split(MARK) == [text for _, text in pairs] + [""]


def test_there_is_a_page():
    assert [os.path.basename(path) for path in pages_with_python()][:1] == ["python.md"]
