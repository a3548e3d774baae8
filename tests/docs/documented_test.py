"""Blocks are taken from a page as they stand, and a page that lacks one, or whose output is stale, is refused."""

import os
import stat
import tempfile
import unittest

import documented

PAGE = """# Title

```sh
make
```

```cpp
int main() {}
```

It prints:

```text
yes
```

```cpp
second
```
"""


class BlocksTest(unittest.TestCase):
    def test_fenced_and_indented_blocks_are_found_with_their_lines_and_marks(self):
        page = ("Text.\n\n    $ make\n\n    $ make install\n\nMore:\n\n<!-- with a.txt -->\n    cat a.txt\n\n"
                "<!-- excerpt of a.h -->\n```cpp\nint a;\n\n    int b;\n```\n")

        self.assertEqual(documented.blocks(page), [(3, "indented", "$ make\n\n$ make install\n", ""),
                                                   (10, "indented", "cat a.txt\n", "with a.txt"),
                                                   (14, "cpp", "int a;\n\n    int b;\n", "excerpt of a.h")])

    def test_a_line_that_goes_on_is_no_block(self):
        self.assertEqual(documented.blocks("- an item\n    of a list\n"), [])

    def test_excerpts_are_no_programs(self):
        excerpt = "<!-- excerpt of a.h -->\n```cpp\nint a;\n```\n\n"

        self.assertEqual(documented.programs(excerpt + PAGE), [2, 3])


class DocumentedTest(unittest.TestCase):
    def test_a_program_is_found_with_its_output(self):
        self.assertEqual(documented.program(PAGE, 1), ("int main() {}\n", "yes\n"))

    def test_a_program_without_output_is_refused(self):
        with self.assertRaisesRegex(documented.PageError, "C\\+\\+ block 2 must be followed by a text block"):
            documented.program(PAGE, 2)

    def test_a_missing_program_is_refused(self):
        with self.assertRaisesRegex(documented.PageError, "there is no C\\+\\+ block 3; the page has 2"):
            documented.program(PAGE, 3)

    def test_a_run_compares_the_output_and_the_exit_code(self):
        with tempfile.TemporaryDirectory() as root:
            page, program = os.path.join(root, "page.md"), os.path.join(root, "program")
            with open(page, "w", encoding="utf-8") as file:
                file.write(PAGE)
            for script, complaint in [("echo yes", None), ("echo no", "-yes\n\\+no"), ("echo yes; exit 3", "ended with 3"),
                                      ("cat examples/fan_passage.json > copy && echo yes", None)]:
                with self.subTest(script=script):
                    with open(program, "w", encoding="utf-8") as file:
                        file.write(f"#!/bin/sh\n{script}\n")
                    os.chmod(program, stat.S_IRWXU)
                    if complaint is None:
                        documented.main("run", page, "1", program)
                    else:
                        with self.assertRaisesRegex(documented.PageError, complaint):
                            documented.main("run", page, "1", program)


if __name__ == "__main__":
    unittest.main()
