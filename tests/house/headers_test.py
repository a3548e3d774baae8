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
    def complaint(self, compiler, text, standard="c++17"):
        with tempfile.TemporaryDirectory() as root:
            with open(os.path.join(root, "Sample.h"), "w", encoding="utf-8") as file:
                file.write(text)
            return headers.complaint(compiler, standard, "Sample.h", root)

    def test_what_is_exported_is_public_with_all_that_it_includes(self):
        sources = {
            "gtm/LocationModel.h": "",
            "physics/Volume.h": '#include "physics/Region.h"\nclass PHYSICS_EXPORT Volume;\n',
            "physics/Region.h": '#include "physics/Lifetime.h"\n',
            "physics/Lifetime.h": "#include <vector>\n",
            "physics/Registry.h": '#include "physics/Volume.h"\n',
            "tests/Sample.h": "class GTM_EXPORT Sample;\n",
        }

        self.assertEqual(headers.public(sources),
                         {"gtm/LocationModel.h", "physics/Volume.h", "physics/Region.h", "physics/Lifetime.h"})

    def test_an_internal_header_may_use_c_plus_plus_20(self):
        self.assertEqual(self.complaint("g++", BAD["it needs C++20"], "c++20"), "")

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
