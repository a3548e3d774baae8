"""The comparison of counted with recorded instructions finds what it is for."""

import os
import sys
import unittest

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), "../../benchmarks"))

import instructions


class InstructionsTest(unittest.TestCase):
    def test_a_table_that_was_written_is_read_back(self):
        table = instructions.written("GNU 12.2.0", {"move": 7, "build": 12})

        self.assertEqual(table.splitlines()[-3:], ["compiler: GNU 12.2.0", "build: 12", "move: 7"])
        self.assertEqual(instructions.parsed(table), ("GNU 12.2.0", {"build": 12, "move": 7}))

    def test_up_to_five_percent_are_no_change(self):
        self.assertEqual(instructions.findings({"build": 100, "move": 100}, {"build": 105, "move": 95}), [])

    def test_more_and_fewer_instructions_are_told(self):
        self.assertEqual(instructions.findings({"build": 1000, "move": 1000}, {"build": 1051, "move": 900}), [
            '"build" takes 1051 instructions, 5.1 % more than the 1000 that are recorded',
            '"move" takes 900 instructions, 10.0 % fewer than the 1000 that are recorded',
        ])

    def test_a_piece_of_work_on_one_side_only_is_told(self):
        self.assertEqual(instructions.findings({"old": 10}, {"new": 20}), [
            '"old" is recorded, but there is no such work',
            '"new" takes 20 instructions, and none are recorded',
        ])


if __name__ == "__main__":
    unittest.main()
