"""A library is compared with the list of what it exports, name by name, and the list changes by a switch only."""

import os
import subprocess
import sys
import tempfile
import unittest

import exported

SOURCE = """\
namespace room {
struct Thing {
    Thing();
    int size() const;
    virtual bool isHollow() const { return false; }
};
template <class T>
bool isLarge(const T& thing) { return thing.size() > 7; }
template bool isLarge(const Thing&);
Thing::Thing() {}
int Thing::size() const { return 1; }
}
"""

# Without the inline member, the table of virtual members and the template: they are weak.
LIST = "room::Thing::Thing()\nroom::Thing::Thing()\nroom::Thing::size() const\n"


class ExportedTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.shared, self.list = os.path.join(folder.name, "libroom.so"), os.path.join(folder.name, "room.txt")
        subprocess.run(["c++", "-shared", "-fPIC", "-x", "c++", "-", "-o", self.shared], input=SOURCE, text=True, check=True)

    def compare(self, expected, **environment):
        with open(self.list, "w", encoding="utf-8") as file:
            file.write(expected)
        return subprocess.run([sys.executable, exported.__file__, self.shared, self.list], text=True,
                              stdout=subprocess.PIPE, stderr=subprocess.PIPE, env={**os.environ, **environment})

    def test_a_library_that_exports_what_the_list_says_passes(self):
        compared = self.compare(LIST)

        self.assertEqual((compared.returncode, compared.stderr), (0, ""))

    def test_what_is_gone_and_what_is_new_is_named(self):
        compared = self.compare(LIST.replace("size() const", "size()"))

        self.assertEqual((compared.returncode, compared.stderr), (1, f"{self.list}: gone: room::Thing::size()\n"
                                                                     f"{self.list}: new: room::Thing::size() const\n"))

    def test_one_of_two_variants_of_a_constructor_is_missed(self):
        self.assertEqual(exported.differences(["A::A()", "A::A()"], ["A::A()"]), ["gone: A::A()"])

    def test_the_switch_writes_the_list_and_fails_so_that_it_is_read(self):
        rewritten = self.compare("", PHYSICS_REWRITE_GOLDEN="1")

        self.assertEqual(rewritten.returncode, 1)
        self.assertIn("rewritten; read it", rewritten.stderr)
        with open(self.list, encoding="utf-8") as file:
            self.assertEqual(file.read(), LIST)


if __name__ == "__main__":
    unittest.main()
