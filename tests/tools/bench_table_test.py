"""Tests of tools/bench_table.py."""

import os
import sys
import unittest

sys.dont_write_bytecode = True
sys.path.insert(0, os.path.join(os.path.dirname(__file__), "..", "..", "tools"))
from bench_table import medians, table


def run(name, cpu, unit="ns", aggregate="median", **more):
    return {"run_name": name, "aggregate_name": aggregate, "cpu_time": cpu, "real_time": 2 * cpu, "time_unit": unit, **more}


class BenchTable(unittest.TestCase):
    def lines(self, goals, *runs):
        return list(table(goals, medians([{"benchmarks": runs}])))

    def test_a_pair_is_compared_with_its_goal(self):
        runs = run("copy/ours", 3.0), run("copy/peer:variant", 4.0)
        self.assertEqual(self.lines({("copy", "variant"): 0.75}, *runs), ["copy\t3.00\tvariant\t4.00\t0.75\t0.75\tmet"])
        self.assertEqual(self.lines({("copy", "variant"): 0.7}, *runs), ["copy\t3.00\tvariant\t4.00\t0.75\t0.7\tmissed"])

    def test_one_row_may_have_two_peers(self):
        lines = self.lines({("copy", "b"): 1.0}, run("copy/ours", 1), run("copy/peer:a", 1), run("copy/peer:b", 2))
        self.assertEqual(lines, ["copy\t1.00\ta\t1.00\t1.00\t-\t-", "copy\t1.00\tb\t2.00\t0.50\t1\tmet"])

    def test_units_become_nanoseconds(self):
        self.assertEqual(self.lines({}, run("sort/ours", 1, "ms"), run("sort/peer:a", 4, "us")),
                         ["sort\t1000000.00\ta\t4000.00\t250.00\t-\t-"])

    def test_only_medians_count(self):
        self.assertEqual(self.lines({}, run("a/ours", 1, aggregate="mean"), run("a/peer:b", 1)), [])

    def test_several_threads_are_measured_by_the_wall_clock(self):
        self.assertEqual(self.lines({}, run("a/ours/threads:2", 1, threads=2), run("a/peer:b/threads:2", 1, threads=2)),
                         ["a/threads:2\t2.00\tb\t2.00\t1.00\t-\t-"])

    def test_a_time_of_its_own_counts(self):
        self.assertEqual(self.lines({}, run("a/ours/iterations:60/manual_time", 1),
                                    run("a/peer:b/iterations:60/manual_time", 4)),
                         ["a\t2.00\tb\t8.00\t0.25\t-\t-"])


if __name__ == "__main__":
    unittest.main()
