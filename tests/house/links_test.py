"""The check of the links tells those that lead somewhere from those that do not."""

import unittest

import links

FILES = {"README.md", "docs/a.md", "docs/pictures/b.svg"}


class LinksTest(unittest.TestCase):
    def test_links_to_files_folders_places_and_elsewhere_pass(self):
        text = ("[a](a.md#title) ![b](pictures/b.svg) [up](../README.md) [folder](pictures/) [root](..)\n"
                "[here](#title) [far](https://example.org/x) `list[i](x)`\n```cpp\nlist[i](x);\n```\n")

        self.assertEqual(links.dead_links("docs/a.md", text, FILES), [])

    def test_a_link_to_nothing_is_named_with_its_line(self):
        text = "fine\n```\n[code](code.md)\n```\n[gone](gone.md) and [a](docs/a.md)\n"

        self.assertEqual(links.dead_links("docs/a.md", text, FILES), [
            "docs/a.md:5: the link to gone.md leads to no file",
            "docs/a.md:5: the link to docs/a.md leads to no file",
        ])


if __name__ == "__main__":
    unittest.main()
