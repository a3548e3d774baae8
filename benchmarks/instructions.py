#!/usr/bin/env python3
"""Counts the instructions of fixed pieces of work, which no other work on the machine disturbs, and fails when
one takes 5 % more or less than benchmarks/instructions.txt says. With --record that table is written anew.

    instructions.py PROGRAM COMPILER [--record]

PROGRAM is instruction-workloads, built in release mode; COMPILER is what built it, such as "GNU 12.2.0". The counts
hold for the compiler that the table names; with another one there is nothing to compare, and the exit is 77."""

import os
import re
import subprocess
import sys

TABLE = os.path.join(os.path.dirname(os.path.abspath(__file__)), "instructions.txt")
TOLERANCE = 0.05
SKIPPED = 77

HEAD = """# Instructions of each piece of work of benchmarks/InstructionWorkloads.cpp, counted by callgrind. Written by
# scripts/bench --record-instructions, never by hand; a change of it shows what a change of the code costs.
"""


def parsed(table):
    """(compiler, {work: instructions}) of a table."""
    rows = [line.split(": ") for line in table.splitlines() if line and not line.startswith("#")]
    counts = dict(rows)
    return counts.pop("compiler", ""), {work: int(count) for work, count in counts.items()}


def written(compiler, counts):
    return HEAD + "".join(f"{name}: {value}\n" for name, value in [("compiler", compiler), *sorted(counts.items())])


def findings(recorded, counted):
    """One sentence for each piece of work whose count is not the recorded one."""
    sentences = [f"\"{work}\" is recorded, but there is no such work" for work in recorded if work not in counted]
    for work, count in counted.items():
        if work not in recorded:
            sentences.append(f"\"{work}\" takes {count} instructions, and none are recorded")
        elif abs(count - recorded[work]) > TOLERANCE * recorded[work]:
            change = 100 * (count / recorded[work] - 1)
            sentences.append(f"\"{work}\" takes {count} instructions, {abs(change):.1f} % "
                             f"{'more' if change > 0 else 'fewer'} than the {recorded[work]} that are recorded")
    return sentences


def count(program, work):
    """The instructions of one piece of work."""
    run = subprocess.run(["valgrind", "--tool=callgrind", "--callgrind-out-file=/dev/null", "--collect-atstart=no",
                          "--toggle-collect=workloads::measured(*", program, work],
                         check=True, stderr=subprocess.PIPE, text=True)
    return int(re.search(r"Collected : (\d+)", run.stderr)[1])


def count_all(program):
    works = subprocess.run([program], check=True, stdout=subprocess.PIPE, text=True).stdout.split()
    return {work: count(program, work) for work in works}


def main(program, compiler, is_recording):
    if is_recording:
        with open(TABLE, "w", encoding="utf-8") as file:
            file.write(written(compiler, count_all(program)))
        return 0
    with open(TABLE, encoding="utf-8") as file:
        recorded_compiler, recorded = parsed(file.read())
    if compiler != recorded_compiler:
        print(f"instructions: counted with {recorded_compiler}, and this is {compiler}; nothing to compare")
        return SKIPPED
    sentences = findings(recorded, count_all(program))
    for sentence in sentences:
        print(f"instructions: {sentence}", file=sys.stderr)
    if sentences:
        print("instructions: find out why; when it has to be so, scripts/bench --record-instructions writes "
              "benchmarks/instructions.txt anew", file=sys.stderr)
    return 1 if sentences else 0


if __name__ == "__main__":
    if len(sys.argv) not in (3, 4) or sys.argv[3:] not in ([], ["--record"]):
        print(__doc__, file=sys.stderr)
        sys.exit(2)
    sys.exit(main(sys.argv[1], sys.argv[2], len(sys.argv) == 4))
