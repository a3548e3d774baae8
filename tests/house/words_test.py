"""The check of the words finds what it is there for. The samples are put together here, so that this file
is clean itself."""

import unittest

import words


class WordsTest(unittest.TestCase):
    def test_each_word_is_found_in_any_case(self):
        for head, tail in [("specifi", "cation"), ("as the sp", "ec says"), ("spec", ".md"), ("shared/", "spec"),
                           ("see pa", "rt 3.1"), ("issue ", "#4"), ("ISSUE", " 12"), ("decision 3", ".1-02"),
                           (".lib", "rary"), ("/wo", "rk/main"), ("/tmp", "/wt/x"), ("/tmp", "/brief")]:
            with self.subTest(word=head + tail):
                self.assertEqual(len(words.findings_in("file", "first line\n" + (head + tail).upper())), 1)

    def test_the_place_is_named(self):
        self.assertEqual(words.findings_in("docs/a.md", "one\nin /wo" + "rk/b\n"),
                         ['docs/a.md:2: "/wo' + 'rk/" refers to what a reader does not have; give the reason itself'])

    def test_plain_language_is_left_alone(self):
        for text in ["specific", "a special case", "the species", "part 12", "an issue of taste", "library",
                     "a library_name", "network/x", "workflow/", "1.2E-05", "version 1.2-3"]:
            with self.subTest(text=text):
                self.assertEqual(words.findings_in("file", text), [])


if __name__ == "__main__":
    unittest.main()
