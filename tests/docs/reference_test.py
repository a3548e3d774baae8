"""Doxygen, set as for our reference, accepts a documented header and stops at whatever public thing has no comment."""

import os
import re
import subprocess
import sys
import tempfile
import unittest

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "house"))

import headers
import tree

SETTINGS = os.path.join(tree.ROOT, "docs", "Doxyfile")

HEADER = """\
#pragma once

/// What it is for.
namespace room {

/// A thing.
class Thing {
public:
    /// Makes one.
    explicit Thing(int size);

    /// In the order of creation.
    /// @{
    int first() const;
    int second() const;
    /// @}

    /// A detail.
    struct Detail {
        int value; ///< in metres
    };

private:
    int m_hidden;
};

/// Kinds of things.
enum class Kind { Some };

/// The same under another name.
using Other = Thing;

/// Counts them.
int count(const Thing& thing);

} // namespace room
"""


def complaints(header):
    """What Doxygen says against a header; empty when it ends well."""
    with tempfile.TemporaryDirectory() as folder:
        path = os.path.join(folder, "Thing.h")
        with open(path, "w", encoding="utf-8") as file:
            file.write(header)
        settings = f'@INCLUDE = "{SETTINGS}"\nINPUT = "{path}"\nOUTPUT_DIRECTORY = "{folder}"\n'
        run = subprocess.run(["doxygen", "-"], input=settings, text=True, stdout=subprocess.PIPE, stderr=subprocess.PIPE)
    return run.stderr.replace(folder + "/", "") + ("" if run.returncode else "accepted")


class ReferenceTest(unittest.TestCase):
    def test_a_documented_header_is_accepted(self):
        self.assertEqual(complaints(HEADER), "accepted")

    def test_what_has_no_comment_is_found(self):
        for comment, complaint in [("    /// Makes one.\n", "Member Thing(int size) (function) of class room::Thing"),
                                   ("    /// In the order of creation.\n", "Member first() const (function)"),
                                   ("    /// @{\n", "Member second() const (function)"),
                                   (" ///< in metres", "Member value (variable) of struct room::Thing::Detail"),
                                   ("/// A thing.\n", "Compound room::Thing"),
                                   ("/// Kinds of things.\n", "Member Kind (enumeration) of namespace room"),
                                   ("/// The same under another name.\n", "Member Other (typedef) of namespace room"),
                                   ("/// Counts them.\n", "Member count(const Thing &thing) (function) of namespace room")]:
            with self.subTest(comment=comment):
                self.assertEqual(HEADER.count(comment), 1)
                found = complaints(HEADER.replace(comment, ""))

                self.assertRegex(found, r"Thing\.h:\d+: error: ")
                self.assertIn(complaint, found)
                self.assertNotIn("accepted", found)

    def test_the_namespaces_of_public_headers_are_documented(self):
        """Doxygen does not ask for it, but passes over the free functions of a namespace without a comment."""
        texts = {path: tree.read(path) for path in tree.files() if path.endswith(".h")}
        public = [texts[path] for path in headers.public(texts)]
        namespaces = {name for text in public for name in re.findall(r"^namespace ([\w:]+) \{", text, re.MULTILINE)}
        documented = {name for text in public
                      for names in re.findall(r"^///.*\nnamespace ([\w:]+) \{|^/// @namespace (\S+)$", text, re.MULTILINE)
                      for name in names}

        self.assertEqual(namespaces, {"gtm", "gtm::bundled", "physics"})
        self.assertEqual(namespaces - documented, set())


if __name__ == "__main__":
    unittest.main()
