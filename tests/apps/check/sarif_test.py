#!/usr/bin/env python3
"""Validates what `physics-case check --format=sarif` writes against the published schema of SARIF 2.1.0, which
scripts/install fetches. Arguments: the program, the schema."""

import json
import pathlib
import subprocess
import sys
import unittest

import jsonschema

ROOT = pathlib.Path(__file__).resolve().parents[3]
BROKEN = ROOT / "tests/data/broken-cases"


def sarif_of(case, *options, folder=BROKEN):
    run = subprocess.run([PROGRAM, "check", case, "--format=sarif", *options], capture_output=True, check=False,
                         cwd=folder)
    return json.loads(run.stdout)


class SarifTest(unittest.TestCase):
    def setUp(self):
        self.validator = jsonschema.Draft202012Validator(json.loads(SCHEMA.read_text(encoding="utf-8")))

    def test_schema_refuses_a_wrong_log(self):
        log = sarif_of("many-mistakes.json")
        log["runs"][0]["results"][0]["level"] = "fatal"
        self.assertFalse(self.validator.is_valid(log))

    def test_every_log_is_valid(self):
        cases = sorted(path.name for path in BROKEN.glob("*.json") if path.name != "topology.json")
        self.assertGreaterEqual(len(cases), 40)
        for case in cases:
            with self.subTest(case):
                self.validator.validate(sarif_of(case))

    def test_sound_case_gives_an_empty_list_of_results(self):
        log = sarif_of("heat_exchanger.json", folder=ROOT / "examples")
        self.validator.validate(log)
        self.assertEqual(log["runs"][0]["results"], [])

    def test_results_are_the_findings(self):
        run = sarif_of("many-mistakes.json")["runs"][0]
        found = json.loads(subprocess.run([PROGRAM, "check", "many-mistakes.json", "--format=json"],
                                          capture_output=True, check=False, cwd=BROKEN).stdout)["findings"]
        rules = run["tool"]["driver"]["rules"]
        self.assertEqual(len(run["results"]), len(found))
        for result, finding in zip(run["results"], found):
            self.assertEqual(result["ruleId"], finding["id"])
            self.assertEqual(rules[result["ruleIndex"]]["id"], finding["id"])
            self.assertEqual(result["level"], finding["severity"])
            self.assertEqual(result["message"]["text"], finding["message"])
            self.assertEqual(result["properties"], finding["details"])
            place = result["locations"][0]["physicalLocation"]
            self.assertEqual(place["artifactLocation"]["uri"], "many-mistakes.json")
            self.assertEqual(place["region"], {"startLine": finding["place"]["line"],
                                               "startColumn": finding["place"]["column"]})

    def test_place_of_a_result_is_where_its_subject_begins(self):
        lines = (BROKEN / "many-mistakes.json").read_text(encoding="utf-8").splitlines()
        skin = [result for result in sarif_of("many-mistakes.json")["runs"][0]["results"]
                if result["ruleId"] == "PS016"][0]
        region = skin["locations"][0]["physicalLocation"]["region"]
        self.assertTrue(lines[region["startLine"] - 1][region["startColumn"] - 1:].startswith('{"name": "skin"'))

    def test_file_names_become_uris(self):
        text = (BROKEN / "unused-body.json").read_text(encoding="utf-8")
        case = pathlib.Path(WORK) / "ä b%.json"
        case.write_text(text.replace('"topology.json"', json.dumps(str(BROKEN / "topology.json"))), encoding="utf-8")
        relative = sarif_of(case.name, folder=WORK)["runs"][0]["results"][0]["locations"][0]
        self.assertEqual(relative["physicalLocation"]["artifactLocation"]["uri"], "%C3%A4%20b%25.json")
        absolute = sarif_of(str(case.resolve()))
        self.validator.validate(absolute)
        self.assertEqual(absolute["runs"][0]["results"][0]["locations"][0]["physicalLocation"]["artifactLocation"]["uri"],
                         case.resolve().as_uri())


if __name__ == "__main__":
    import tempfile
    PROGRAM = sys.argv.pop(1)
    SCHEMA = pathlib.Path(sys.argv.pop(1))
    if not SCHEMA.exists():
        print(f"skipped: {SCHEMA} is missing; ./scripts/install fetches it")
        sys.exit(77)
    with tempfile.TemporaryDirectory() as WORK:
        unittest.main()
