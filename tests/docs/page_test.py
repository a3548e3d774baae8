"""Whatever does not hold on a page is found, with its line; nothing is passed over."""

import os
import stat
import tempfile
import unittest

import page

# Stands for the command line: it has one verb, "say", with one option.
PROGRAM = """#!/bin/sh
case "$*" in
    "say --help") echo "  --loud  Shout" ;;
    "--help") echo "  -h,--help  Tell this" ;;
    "say") echo one; echo two >&2; exit 1 ;;
    "say --loud") echo ONE ;;
    "fail") exit 3 ;;
    *) exit 2 ;;
esac
"""


class PageTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.page = os.path.join(folder.name, "page.md")
        program = os.path.join(folder.name, "physics-case")
        with open(program, "w", encoding="utf-8") as file:
            file.write(PROGRAM)
        os.chmod(program, stat.S_IRWXU)
        os.environ["PHYSICS_CASE"] = program
        os.environ.pop("PHYSICS_GMSH", None)
        page.help_of.cache_clear()

    def try_page(self, text):
        with open(self.page, "w", encoding="utf-8") as file:
            file.write(text)
        return page.try_blocks(self.page)

    def holds(self, text):
        self.try_page(text)

    def fails(self, text, complaint):
        with self.assertRaisesRegex(page.PageError, complaint):
            self.try_page(text)

    def test_the_blocks_are_counted(self):
        self.assertEqual(self.try_page("Text.\n\n```ebnf\na = b\n```\n\n    ./scripts/check\n"), 2)

    def test_an_unknown_kind_of_block_is_found_with_its_line(self):
        self.fails("Text.\n\n```\na\n```\n", 'page.md:4: nobody knows what to do with a block in ""')
        self.fails("```fortran\na\n```\n", 'a block in "fortran"')

    def test_commands_must_end_well(self):
        self.holds("    physics-case say --loud   # with a remark\n")
        self.fails("    physics-case say\n", "`physics-case say` ends with 1 and says:\n    one")
        self.fails("    physics-case say --loud && physics-case shout\n", "`physics-case shout` ends with 2")

    def test_a_transcript_shows_what_is_said(self):
        self.holds("    $ physics-case say\n    one\n    two\n    $ physics-case say --loud\n    ONE\n")
        self.fails("    $ physics-case say\n    one\n", "`physics-case say` says something else:\n    one\n    two")
        self.fails("    $ physics-case say\n    one\n    two\n    $ physics-case say --loud\n    TWO\n", "say --loud` says")
        self.fails("    $ physics-case fail\n", "ends with 3")

    def test_three_points_stand_for_any_lines(self):
        for expected, is_told in [(["..."], True), (["a", "..."], True), (["...", "c"], True), (["a", "...", "c"], True),
                                  (["a", "...", "b", "c"], True), (["a", "..."] * 2, False), (["...", "b"], False),
                                  (["b", "..."], False), (["a", "b", "..", "c"], False)]:
            with self.subTest(expected=expected):
                self.assertEqual(page.is_told(expected, ["a", "b", "c"]), is_told)

    def test_the_commands_of_a_page_find_the_examples_and_what_earlier_ones_left(self):
        self.holds("    cat examples/fan_passage.json > copy\n\nThen\n\n    cat copy\n")
        self.fails("    cat copy\n", "`cat copy` ends with 1")

    def test_files_can_be_put_beside_the_commands(self):
        self.holds("<!-- with tests/docs/page.py -->\n    $ head -1 page.py\n    #!/usr/bin/env python3\n")

    def test_a_block_can_be_saved_for_the_commands_below_it(self):
        block = '```json\n{"volumes": [{"name": "a", "location": "b", "type": "Fluid"}]}\n```\n\n'
        self.holds(f"<!-- saved as a.json -->\n{block}    cat a.json\n")
        self.fails(f"{block}    cat a.json\n", "`cat a.json` ends with 1")

    def test_commands_that_are_not_run_must_be_there(self):
        self.holds("    ./scripts/test -R Volume\n    cmake --preset dev && ctest --preset dev\n"
                   "    cmake --install build/release --prefix /opt/physics\n")
        for command in ("./scripts/nothing", "cmake --preset base", "ctest --preset nothing", "cmake --install build/none"):
            with self.subTest(command=command):
                self.fails(f"    {command}\n", "there is no such script, preset or target")

    def test_a_command_that_nobody_thought_of_is_found(self):
        self.fails("    rm -r examples\n", "nobody knows whether to run `rm -r examples`")

    def test_json_must_have_the_shape_of_its_schema(self):
        self.holds('```json\n{"volumes": [{"name": "a", "location": "b", "type": "Fluid"}]}\n```\n')
        self.holds('```json\n{"format": "physics-topology", "version": 1, "bodies": [{"id": "a"}]}\n```\n')
        self.fails('```json\n{"volumes": [{"name": "a", "location": "b", "type": "Gas"}]}\n```\n', r"volumes\[0\].type: ")
        self.fails('```json\n{"format": "other"}\n```\n', 'there is no format "other"')
        self.fails('```json\n{"volumes"\n```\n', "not JSON: ")

    def test_an_output_needs_a_program(self):
        self.holds("```cpp\nint main() {}\n```\n\n```text\na\n```\n")
        self.fails("```text\na\n```\n", "no program stands above this output")

    def test_an_excerpt_must_stand_in_its_file(self):
        self.holds("<!-- excerpt of tests/docs/page.py -->\n```python\nwords = command.split()\n"
                   'if words[0].startswith("physics-"):\n```\n')
        self.fails("<!-- excerpt of tests/docs/page.py -->\n```python\nwords = command.split()\nif False:\n```\n",
                   "these lines do not stand in tests/docs/page.py")

    def test_a_test_that_is_named_must_name_the_page(self):
        self.fails("<!-- checked by tests/docs/page.py -->\n```text\na\n```\n", "tests/docs/page.py does not name ")

    def test_commands_in_the_text_have_verbs_and_options_that_exist(self):
        self.holds("`physics-case VERB --help`, `physics-case say --loud`, `physics-gmsh MESH -o FILE`, `./scripts/test`\n")
        for command, complaint in [("physics-case shout", "no such verb"), ("physics-case say --quiet", "no option --quiet"),
                                   ("physics-case say --lou", "no option --lou"),
                                   ("./scripts/nothing", "no such script"), ("cmake --preset none", "no such preset")]:
            with self.subTest(command=command):
                self.fails(f"Write `{command}`.\n", complaint)


if __name__ == "__main__":
    unittest.main()
