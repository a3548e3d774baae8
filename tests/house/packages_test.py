"""The comparison of the package list with its explanations finds each kind of difference."""

import unittest

import packages


class PackagesTest(unittest.TestCase):
    def test_the_list_is_read_without_comments_and_blank_lines(self):
        self.assertEqual(packages.listed("# why\n\ncmake\ngit # history\n"), ["cmake", "git"])

    def test_reasons_are_read_from_table_rows(self):
        text = "| package | why |\n| --- | --- |\n| `cmake` | builds |\nAlso `git`.\n| `git` |  |\n"

        self.assertEqual(packages.explained(text), {"cmake": "builds", "git": ""})

    def test_equal_lists_are_fine(self):
        self.assertEqual(packages.findings({"a.txt": ["cmake", "git"], "b.txt": ["boost"]},
                                           {"git": "history", "cmake": "builds", "boost": "compared"}), [])

    def test_every_difference_is_named(self):
        self.assertEqual(packages.findings({"a.txt": ["git", "cmake"], "b.txt": []}, {"git": "", "ninja": "fast"}), [
            "a.txt: cmake is not explained in docs/dependencies.md",
            "docs/dependencies.md: git has no reason",
            "docs/dependencies.md: ninja is not in a.txt or b.txt",
            "a.txt: cmake must stand before git: the list is sorted and names each once",
        ])


if __name__ == "__main__":
    unittest.main()
