"""The check of the headers lets a good header pass and finds each way in which one can be bad."""

import os
import tempfile
import unittest

import headers

BAD = {
    "what it uses is not included": "#pragma once\ninline std::string f() { return {}; }\n",
    "it has no guard against a second inclusion": "struct Body {};\n",
    "it needs C++20": "#pragma once\n#include <span>\ninline std::span<int> f() { return {}; }\n",
    "it gives a warning": "#pragma once\ninline char narrowed(int value) { return value; }\n",
}


class HeadersTest(unittest.TestCase):
    def complaint(self, compiler, text):
        with tempfile.TemporaryDirectory() as root:
            with open(os.path.join(root, "Sample.h"), "w", encoding="utf-8") as file:
                file.write(text)
            return headers.complaint(compiler, "Sample.h", root)

    def test_a_complete_header_passes(self):
        for compiler in ["g++", "clang++"]:
            with self.subTest(compiler=compiler):
                text = "#pragma once\n#include <string>\ninline std::string f() { return {}; }\n"
                self.assertEqual(self.complaint(compiler, text), "")

    def test_a_bad_header_is_found(self):
        for compiler in ["g++", "clang++"]:
            for fault, text in BAD.items():
                with self.subTest(compiler=compiler, fault=fault):
                    self.assertIn("Sample.h", self.complaint(compiler, text))


if __name__ == "__main__":
    unittest.main()
