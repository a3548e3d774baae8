#!/usr/bin/env python3
"""Measures, and writes tables and picture of the page about performance; called by scripts/bench.

    performance.py FOLDER [--quick] [--up-to SIZE] [PROGRAM...]

FOLDER holds the benchmark programs. What was measured is kept in FOLDER/measured.json, so that programs that are not
named keep their figures. A quick run is for a look: it writes into FOLDER and leaves docs/ alone."""

import argparse
import json
import os
import sys

import measure
import page
import picture

ROOT = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))


def load(path):
    if not os.path.exists(path):
        return {}
    with open(path, encoding="utf-8") as file:
        return json.load(file)


def store(path, text):
    with open(path, "w", encoding="utf-8") as file:
        file.write(text)
    print(f"bench: wrote {os.path.relpath(path)}")


def main(folder, quick, most, names):
    unknown = [name for name in names if name not in measure.PROGRAMS]
    if unknown:
        print(f"bench: \"{unknown[0]}\" is no benchmark; there are {', '.join(measure.PROGRAMS)}", file=sys.stderr)
        return 2
    kept = os.path.join(folder, "measured-quickly.json" if quick else "measured.json")
    results = load(kept)
    for name in names or measure.PROGRAMS:
        results[name] = measure.run(folder, name, quick, most)
        store(kept, json.dumps(results, indent=1))

    with open(os.path.join(ROOT, "docs/performance.md"), encoding="utf-8") as file:
        text = page.updated(file.read(), results)
    target = folder if quick else os.path.join(ROOT, "docs")
    store(os.path.join(target, "performance.md"), text)
    if all(program in results for program, _, _ in picture.LINES):
        picture.draw(results, os.path.join(target, "performance.svg"))
    return 0


if __name__ == "__main__":
    PARSER = argparse.ArgumentParser()
    PARSER.add_argument("folder")
    PARSER.add_argument("--quick", action="store_true")
    PARSER.add_argument("--up-to", type=int, choices=measure.SIZES, default=measure.SIZES[-1])
    PARSER.add_argument("program", nargs="*")
    GIVEN = PARSER.parse_intermixed_args()
    sys.exit(main(GIVEN.folder, GIVEN.quick, GIVEN.up_to, GIVEN.program))
