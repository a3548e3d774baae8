"""Entries of the change log begin with a known word, and a release moves them to the top of the file."""

import os
import re
import shutil
import subprocess
import tempfile
import unittest

import changelog
import tree


class ChangelogTest(unittest.TestCase):
    def test_sentences_with_a_known_first_word_pass(self):
        self.assertEqual(changelog.findings_in("e.md", "- Added a verb.\n- Fixed a fault\n  and another.\n"), [])

    def test_anything_else_is_found_with_its_line(self):
        wrong = "write '- Added ...' (or Changed, Deprecated, Fixed, Removed) and end with a full stop"

        self.assertEqual(changelog.findings_in("e.md", "- Added a verb.\n- Improves speed.\n\n- Fixed it\n"),
                         [f"e.md:2: {wrong}", f"e.md:3: {wrong}", f"e.md:4: {wrong}"])

    def test_an_empty_entry_is_found(self):
        self.assertEqual(changelog.findings_in("e.md", ""), ["e.md: must have a line and end with a line end"])

    def test_a_release_moves_the_entries_above_the_earlier_releases(self):
        with tempfile.TemporaryDirectory() as root:
            os.makedirs(os.path.join(root, "scripts"))
            os.makedirs(os.path.join(root, "docs/changelog"))
            shutil.copy(os.path.join(tree.ROOT, "scripts/changelog"), os.path.join(root, "scripts"))
            for path, text in [("CHANGELOG.md", "# Change log\n\n## 0.1 – 2020-01-01\n\n- Added all.\n"),
                               ("docs/changelog/README.md", "how\n"),
                               ("docs/changelog/a.md", "- Fixed b\n  and d.\n- Added a.\n"),
                               ("docs/changelog/b.md", "- Added c.\n")]:
                with open(os.path.join(root, path), "w", encoding="utf-8") as file:
                    file.write(text)

            subprocess.run([os.path.join(root, "scripts/changelog"), "0.2"], check=True, stdout=subprocess.DEVNULL)

            gathered = re.sub(r"0\.2 – \d{4}-\d\d-\d\d", "0.2 – today", tree.read("CHANGELOG.md", root))
            self.assertEqual(gathered, "# Change log\n\n## 0.2 – today\n\n- Added a.\n- Added c.\n- Fixed b and d.\n\n"
                                       "## 0.1 – 2020-01-01\n\n- Added all.\n")
            self.assertEqual(os.listdir(os.path.join(root, "docs/changelog")), ["README.md"])


if __name__ == "__main__":
    unittest.main()
