"""Reports of the benchmark programs become tables, and the prose around these is kept."""

import os
import sys
import unittest

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), "../../benchmarks"))

import measure
import page


def run(name, milliseconds, **counters):
    """One repetition as Google Benchmark reports it."""
    return {"name": name, "run_name": name, "run_type": "iteration", "repetitions": 3, "cpu_time": milliseconds,
            "real_time": 0.0, "time_unit": "ms", "iterations": 1, **counters}


def result(rows):
    return {"command": "run it", "machine": "a machine", "date": "2026-01-31", "load": 0.1, "rows": rows}


class MeasureTest(unittest.TestCase):
    def test_the_median_of_the_repetitions_counts(self):
        report = [run("list/1000", time, perObject=2e-6) for time in (9.0, 1.0, 3.0)]
        report.append({**run("list/1000", 4.0), "run_type": "aggregate"})

        self.assertEqual(measure.medians(report), {"list": {"time": 3e6, "perObject": 2e-6}})

    def test_what_stands_behind_the_size_is_no_part_of_the_name(self):
        self.assertEqual(list(measure.medians([run("restore/over a set-up/1000/iterations:1", 1.0)])),
                         ["restore/over a set-up"])

    def test_a_benchmark_that_failed_is_no_figure(self):
        failed = {**run("read/1000", 1.0), "error_occurred": True, "error_message": "The text is refused."}

        with self.assertRaisesRegex(RuntimeError, "^read/1000: The text is refused[.]$"):
            measure.medians([failed])

    def test_a_quick_run_leaves_large_cases_out(self):
        self.assertEqual(measure.sizes_of(measure.Program(), quick=True), [1000, 10000])
        self.assertEqual(measure.sizes_of(measure.Program(largest=100000), quick=False), [1000, 10000, 100000])

    def test_a_run_up_to_a_size_leaves_larger_cases_out(self):
        self.assertEqual(measure.sizes_of(measure.Program(), quick=False, most=10000), [1000, 10000])
        self.assertEqual(measure.sizes_of(measure.Program(largest=1000), quick=False, most=10000), [1000])


class PageTest(unittest.TestCase):
    def test_three_digits_of_a_figure_are_shown(self):
        self.assertEqual([page.figure(value) for value in (0.01234, 1.2345, 12.345, 123.45, 1234567.8)],
                         ["0.012", "1.23", "12.3", "123", "1 234 568"])

    def test_the_cost_of_an_object_is_its_counter_or_its_part_of_the_time(self):
        self.assertAlmostEqual(page.per_object({"time": 5e6, "perObject": 2e-6}, "1000"), 2)
        self.assertAlmostEqual(page.per_object({"time": 5e6}, "1000"), 5)

    def test_a_report_has_its_speed_and_what_it_costs_above_writing(self):
        rows = {"all": {"1000": {"time": 2e6, "bytes_per_second": 250e6, "toWriting": 80.5},
                        "10000": {"time": 30e6, "bytes_per_second": 125e6, "toWriting": 40}}}

        self.assertEqual(page.report_table(result(rows)).splitlines()[2:],
                         ["| all | 2.00 | 3.00 | 1.50 |",
                          "| all: megabytes a second | 250 | 125 |  |",
                          "| all: times writing the same bytes | 80.5 | 40.0 |  |"])

    def test_growth_divides_the_largest_by_the_smallest_case(self):
        table = page.growth_table(result({"one/list/cold": {"1000": {"time": 2e6}, "10000": {"time": 30e6}}}))

        self.assertEqual(table.splitlines(), ["|  | 1 000 | 10 000 | growth |", "| --- | --- | --- | --- |",
                                              "| one: list | 2.00 | 3.00 | 1.50 |"])

    def test_others_are_compared_at_the_largest_size_that_both_have(self):
        table = page.beside_table(result({
            "write/this library": {"1000": {"time": 2e6}, "10000": {"time": 20e6}},
            "write/other": {"1000": {"time": 12e6}},
            "restore/alone": {"1000": {"time": 1e6}},
        }))

        self.assertEqual(table.splitlines()[2:], ["| write: this library | 2.00 | 2.00 | 1.00 |",
                                                  "| write: other | 12.0 |  | 6.00 |",
                                                  "| restore: alone | 1.00 |  |  |"])

    def test_the_chain_adds_its_steps_up(self):
        table = page.chain_table(result({"chain": {"1000": {"1 build": 2.0, "2 clear": 1.0, "time": 9e6}}}))

        self.assertEqual(table.splitlines()[2:], ["| 1 build | 2.00 |", "| 2 clear | 1.00 |", "| all | 3.00 |"])

    def test_only_what_was_measured_is_written_anew(self):
        text = ("Prose.\n<!-- measured: validation -->\nold\n<!-- end -->\nMore prose.\n"
                "<!-- measured: chain -->\nkept\n<!-- end -->\n")
        results = {"validation-benchmark": result({"many": {"1000": {"time": 1e6}}})}

        self.assertEqual(page.updated(text, results), """Prose.
<!-- measured: validation -->

|  | 1 000 | growth |
| --- | --- | --- |
| many | 1.00 | 1.00 |

`run it`

Measured on 2026-01-31 on a machine; load average 0.1.

<!-- end -->
More prose.
<!-- measured: chain -->
kept
<!-- end -->
""")

    def test_every_program_that_is_run_has_a_table(self):
        self.assertEqual({program for program, _ in page.TABLES.values()}, set(measure.PROGRAMS))


if __name__ == "__main__":
    unittest.main()
