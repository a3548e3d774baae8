#!/usr/bin/env python3
"""Checks the coverage that `physics-case check --format=json` states a second time, from the listing of the topology and
from what each volume and boundary says that it has. Argument: the program."""

import collections
import functools
import json
import pathlib
import subprocess
import sys
import tempfile
import unittest

ROOT = pathlib.Path(__file__).resolve().parents[3]
CASES = [path
         for folder in ("examples", "tests/data/good-cases", "tests/data/broken-cases")
         for path in sorted((ROOT / folder).glob("*.json"))
         if json.loads(path.read_text(encoding="utf-8"))["format"] == "physics-case"]


def output_of(*arguments):
    return json.loads(subprocess.run([PROGRAM, *map(str, arguments)], capture_output=True, check=False).stdout)


@functools.cache
def topology_of(geometry):
    return output_of("topology", geometry, "--format=json")


def geometry_of(case):
    geometry = json.loads(case.read_text(encoding="utf-8"))["geometry"]
    return case.parent / (geometry if isinstance(geometry, str) else geometry["file"])


def sides_of(face):
    """(face use id, body) of a face in a topology file, where ids may be left out."""
    seen = collections.Counter()
    for side in face["sides"]:
        side = {"body": side} if isinstance(side, str) else side
        seen[side["body"]] += 1
        number = f"#{seen[side['body']]}" if seen[side["body"]] > 1 else ""
        yield side.get("id", f"{face['id']}@{side['body']}{number}"), side["body"]


def derived(topology, coverage):
    """What the coverage must say: face side -> (body, face, is internal, boundaries)."""
    masked = set(coverage["maskedBodies"])
    owners = collections.defaultdict(list)
    for boundary in coverage["boundaries"]:
        for side in boundary["faceSides"]:
            owners[side].append(boundary["name"])
    volumes_of = collections.defaultdict(set)
    for number, volume in enumerate(coverage["volumes"]):  # two of one name are two volumes
        for body in volume["bodies"]:
            volumes_of[body].add(number)
    sides = {}
    for face in topology["faces"]:
        both = [body for _, body in sides_of(face)]
        is_internal = len(both) == 2 and bool(volumes_of[both[0]] & volumes_of[both[1]])
        for side, body in sides_of(face):
            if body not in masked:
                sides[side] = (body, face["id"], is_internal, owners[side])
    return sides


class CoverageTest(unittest.TestCase):
    def check(self, case):
        self.compare(output_of("check", case, "--format=json")["coverage"], topology_of(geometry_of(case)))

    def compare(self, coverage, topology):
        expected = derived(topology, coverage)
        stated = {side["id"]: (body["id"], side["face"], side["isInternal"], side["boundaries"])
                  for body in coverage["bodies"] for side in body["faceSides"]}
        self.assertEqual(stated, expected)
        self.assertEqual([body["id"] for body in coverage["bodies"]] + coverage["maskedBodies"],
                         sorted((body["id"] for body in topology["bodies"]),
                                key=lambda body: body in coverage["maskedBodies"]))
        counts = collections.Counter("inOneBoundary" if len(owners) == 1 else "inSeveralBoundaries" if owners
                                     else "inNoneInsideVolumes" if is_internal else "inNone"
                                     for _, _, is_internal, owners in expected.values())
        self.assertEqual(coverage["faceSides"], len(expected))
        for what in ("inOneBoundary", "inSeveralBoundaries", "inNone", "inNoneInsideVolumes"):
            self.assertEqual(coverage[what], counts[what], what)

    def test_stated_coverage_is_what_the_topology_and_the_owners_give(self):
        self.assertGreaterEqual(len(CASES), 45)
        for case in CASES:
            with self.subTest(case.name):
                self.check(case)

    def test_stated_coverage_has_both_of_two_volumes_of_one_name(self):
        topology = {"format": "physics-topology", "version": 1, "bodies": [{"id": "left"}, {"id": "right"}],
                    "faces": [{"id": "in", "sides": ["left"]}, {"id": "grid", "sides": ["left", "right"]},
                              {"id": "out", "sides": ["right"]}]}
        case = {"format": "physics-case", "version": 1, "geometry": "topology.json",
                "volumes": [{"name": name, "location": name, "type": "Fluid",
                             "boundaries": [{"name": "all", "default": True}]} for name in ("left", "right")]}
        with tempfile.TemporaryDirectory() as folder:
            folder = pathlib.Path(folder)
            (folder / "topology.json").write_text(json.dumps(topology))
            (folder / "case.json").write_text(json.dumps(case))
            subprocess.run([PROGRAM, "save", folder / "case.json", "-o", folder / "saved"], check=True)
            text = (folder / "saved").read_text()
            self.assertEqual(text.count(" right\n"), 2)  # the volume and, behind it, its location
            (folder / "saved").write_text(text.replace(" right\n", " left\n", 1))
            checked = output_of("check", folder / "saved", "--geometry", folder / "topology.json", "--format=json")
            self.assertEqual([(finding["id"], finding["subject"]["name"]) for finding in checked["findings"]],
                             [("PS018", "left")])
            self.assertEqual(checked["coverage"]["inOneBoundary"], 4)
            self.compare(checked["coverage"], topology)


if __name__ == "__main__":
    PROGRAM = sys.argv.pop(1)
    unittest.main()
