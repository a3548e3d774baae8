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


class ExportsTest(unittest.TestCase):
    """A history with a list of exported symbols, to which each test adds."""

    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.root = os.path.join(folder.name, "clone")
        subprocess.run(["git", "init", "--quiet", self.root], check=True)
        self.commit(**{"README.md": "first\n"})
        self.commit(**{"tests/golden/exported/physics.txt": "a()\n", "docs/changelog/a.md": "- Added a.\n"})

    def write(self, **files):
        for path, text in files.items():
            os.makedirs(os.path.dirname(os.path.join(self.root, path)), exist_ok=True)
            with open(os.path.join(self.root, path), "w", encoding="utf-8") as file:
                file.write(text)

    def commit(self, **files):
        self.write(**files)
        tree.git(self.root, "add", "--all")
        tree.git(self.root, "-c", "user.name=A", "-c", "user.email=a@example.org", "commit", "--quiet", "--message", "m")

    def findings(self, root=None):
        return [re.sub(r"commit \w+", "commit", finding) for finding in changelog.silent_changes(root or self.root)]

    def silent(self, which):
        return f"tests/golden/exported/: {which} changes what a library exports and says nothing in docs/changelog/"

    def test_a_commit_that_changes_the_list_with_an_entry_passes(self):
        self.commit(**{"tests/golden/exported/physics.txt": "b()\n", "docs/changelog/b.md": "- Changed a to b.\n"})
        self.commit(**{"README.md": "second\n"})

        self.assertEqual(self.findings(), [])

    def test_a_commit_that_changes_the_list_alone_is_found(self):
        self.commit(**{"tests/golden/exported/physics.txt": "b()\n"})
        self.commit(**{"docs/changelog/c.md": "- Fixed something else.\n"})

        self.assertEqual(self.findings(), [self.silent("commit")])

    def test_a_new_list_needs_an_entry_too(self):
        self.commit(**{"tests/golden/exported/importer.txt": "c()\n"})

        self.assertEqual(self.findings(), [self.silent("commit")])

    def test_what_is_not_committed_yet_is_looked_at(self):
        self.write(**{"tests/golden/exported/physics.txt": "b()\n"})
        self.assertEqual(self.findings(), [self.silent("the working tree")])

        self.write(**{"docs/changelog/b.md": "- Changed a to b.\n"})
        self.assertEqual(self.findings(), [])

    def test_a_shallow_clone_passes_though_its_first_commit_seems_to_add_everything(self):
        self.commit(**{"tests/golden/exported/physics.txt": "b()\n"})
        shallow = self.root + "-shallow"
        subprocess.run(["git", "clone", "--quiet", "--depth=1", "file://" + self.root, shallow], check=True)

        self.assertEqual(len(self.findings()), 1)
        self.assertEqual(self.findings(shallow), [])


if __name__ == "__main__":
    unittest.main()
