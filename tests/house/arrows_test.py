"""The check of the arrows finds what it is there for, on small trees made up here."""

import re
import unittest

import arrows
import tree


class ArrowsTest(unittest.TestCase):
    def test_the_table_itself_has_no_ring(self):
        self.assertEqual(arrows.rings(arrows.ALLOWED), [])

    def test_the_picture_shows_the_table(self):
        picture = re.findall(r'^ *"([^"]+)" -> "([^"]+)"', tree.read("docs/architecture.dot"), re.MULTILINE)
        direct = {room: {end for start, end in picture if start == room} for room in arrows.ALLOWED}

        def reachable(room):
            return direct[room].union(*map(reachable, direct[room]))

        for room, allowed in arrows.ALLOWED.items():
            with self.subTest(room=room):
                self.assertLessEqual(direct[room], allowed)
                self.assertLessEqual(allowed, reachable(room))

    def test_a_tree_with_arrows_down_only_is_fine(self):
        sources = {
            "gtm/Body.h": "#pragma once\n#include <string>\n",
            "physics/Types.h": "#include <cstdint>\n",
            "physics/Volume.h": '#include "gtm/Body.h"\n#include "physics/Types.h"\n',
            "physics/report/VolumeReport.cpp": '#include "physics/Volume.h"\n',
            "apps/main.cpp": "#include <CLI/CLI.hpp>\n#include <physics/Volume.h>\n",
        }

        self.assertEqual(arrows.violations(sources), [])

    def test_an_object_must_not_include_a_reader_in_header_or_source(self):
        sources = {
            "physics/PhysicsSerialiser.h": "",
            "physics/Volume.h": '\n#include "physics/PhysicsSerialiser.h"\n',
            "physics/Volume.cpp": '#  include "physics/PhysicsSerialiser.h"\n',
        }

        self.assertEqual(arrows.violations(sources), [
            "physics/Volume.h:2: physics objects must not include physics/PhysicsSerialiser.h, "
            "which is in physics readers",
            "physics/Volume.cpp:1: physics objects must not include physics/PhysicsSerialiser.h, "
            "which is in physics readers",
        ])

    def test_the_list_writer_is_below_the_objects(self):
        sources = {
            "physics/report/ListWriter.h": "",
            "physics/Settings.cpp": '#include "physics/report/ListWriter.h"\n',
        }

        self.assertEqual(arrows.violations(sources), [])

    def test_the_library_must_not_know_the_bundled_location_model_and_neither_the_other_way(self):
        sources = {
            "locationmodel/LocationModel.h": "",
            "physics/Types.h": "",
            "physics/Physics.cpp": "#include <locationmodel/LocationModel.h>\n",
            "locationmodel/LocationModel.cpp": '#include "physics/Types.h"\n',
        }

        self.assertEqual(arrows.violations(sources), [
            "physics/Physics.cpp:1: physics objects must not include locationmodel/LocationModel.h, "
            "which is in locationmodel",
            "locationmodel/LocationModel.cpp:1: locationmodel must not include physics/Types.h, "
            "which is in physics vocabulary",
        ])

    def test_only_the_standard_library_serves_the_library(self):
        sources = {"physics/Volume.cpp": "#include <vector>\n#include <boost/any.hpp>\n#include <unistd.h>\n"}

        self.assertEqual(arrows.violations(sources), [
            "physics/Volume.cpp:2: <boost/any.hpp> is not of the standard library, the only one allowed here",
            "physics/Volume.cpp:3: <unistd.h> is not of the standard library, the only one allowed here",
        ])

    def test_includes_are_written_from_the_root(self):
        sources = {"physics/Types.h": "", "physics/Volume.h": '#include "Types.h"\n'}

        self.assertEqual(arrows.violations(sources),
                         ['physics/Volume.h:1: no file "Types.h"; write includes of ours from the root'])

    def test_a_folder_without_a_room_is_reported(self):
        self.assertEqual(arrows.violations({"attic/Old.h": ""}),
                         ["attic/Old.h:1: is in no room; add its folder to the table of tests/house/arrows.py"])

    def test_a_ring_is_found_however_long(self):
        sources = {
            "physics/Boundary.h": '#include "physics/Volume.h"\n',
            "physics/Model.h": '#include "physics/Boundary.h"\n',
            "physics/Volume.h": '#include "physics/Model.h"\n',
        }

        self.assertEqual(arrows.violations(sources), [
            "ring: physics/Boundary.h -> physics/Volume.h -> physics/Model.h -> physics/Boundary.h"])

    def test_an_include_in_a_comment_line_or_text_does_not_count(self):
        sources = {"physics/Volume.h": '// #include "physics/Gone.h"\nconst char* text = "#include <x/y>";\n'}

        self.assertEqual(arrows.violations(sources), [])


if __name__ == "__main__":
    unittest.main()
