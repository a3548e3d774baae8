#!/usr/bin/env python3
"""Holds docs/case.schema.json and the reader together: the schema accepts every good case, and every bad one that is
bad only in what it refers to; it refuses those with a wrong shape. What the reader says to them is tested in C++."""

import json
import pathlib
import unittest

import jsonschema

ROOT = pathlib.Path(__file__).resolve().parents[2]
CASES = ROOT / "tests/data"


def load(path):
    return json.loads(path.read_text(encoding="utf-8"))


def is_case(path):
    return load(path).get("format") == "physics-case"


class SchemaTest(unittest.TestCase):
    def setUp(self):
        schema = load(ROOT / "docs/case.schema.json")
        jsonschema.Draft202012Validator.check_schema(schema)
        self.validator = jsonschema.Draft202012Validator(schema)

    def check(self, paths, is_valid, at_least):
        paths = sorted(paths)
        self.assertGreaterEqual(len(paths), at_least)
        for path in paths:
            with self.subTest(path.name):
                self.assertEqual(self.validator.is_valid(load(path)), is_valid)

    def test_examples_are_valid(self):
        self.check(filter(is_case, (ROOT / "examples").glob("*.json")), True, 2)

    def test_good_cases_are_valid(self):
        self.check(filter(is_case, (CASES / "good-cases").glob("*.json")), True, 2)

    def test_cases_to_compare_are_valid(self):
        self.check((CASES / "diff").glob("*.json"), True, 1)

    def test_broken_cases_have_the_right_shape(self):
        self.check(filter(is_case, (CASES / "broken-cases").glob("*.json")), True, 40)

    def test_cases_with_wrong_references_have_the_right_shape(self):
        self.check((CASES / "bad-cases/meaning").glob("*.json"), True, 20)

    def test_refused_cases_have_the_right_shape(self):
        self.check((CASES / "bad-cases/refused").glob("*.json"), True, 10)

    def test_cases_with_a_wrong_shape_are_not_valid(self):
        self.check((CASES / "bad-cases/shape").glob("*.json"), False, 40)


if __name__ == "__main__":
    unittest.main()
