#!/usr/bin/env python3
"""Prints the table of benchmark pairs from Google Benchmark's JSON files.

A pair is two benchmarks `ROW/ours` and `ROW/peer:NAME`; goals.tsv gives for a row and a peer the highest ratio
ours/peer that meets the goal. usage: bench_table.py goals.tsv results.json...
"""

import json
import re
import sys

NAME = re.compile(r"^(?P<row>.+?)/(?:ours|peer:(?P<peer>[^/]+))(?P<rest>(?:/.*)?)$")
TO_NS = {"ns": 1.0, "us": 1e3, "ms": 1e6, "s": 1e9}


def read_goals(path):
    goals = {}
    with open(path, encoding="utf-8") as lines:
        next(lines)
        for line in lines:
            row, peer, goal = line.rstrip("\n").split("\t")
            goals[row, peer] = float(goal)
    return goals


def medians(results):
    """Median nanoseconds by (row, peer); peer is None for ours. Processor time, or wall time for several threads."""
    found = {}
    for result in results:
        for run in result["benchmarks"]:
            match = NAME.match(run.get("run_name", ""))
            if not match or run.get("aggregate_name") != "median":
                continue
            # A time that the benchmark took itself stands under real_time too.
            by_wall = run.get("threads", 1) > 1 or re.search("real_time|manual_time", match["rest"])
            clock = "real_time" if by_wall else "cpu_time"
            rest = re.sub(r"/(?:real_time|manual_time|process_time|threads:1|iterations:\d+)(?=/|$)", "", match["rest"])
            found[match["row"] + rest, match["peer"]] = run[clock] * TO_NS[run["time_unit"]]
    return found


def table(goals, found):
    for (row, peer), peer_ns in found.items():
        ours_ns = found.get((row, None))
        if peer is None or ours_ns is None:
            continue
        ratio = ours_ns / peer_ns
        goal = goals.get((row, peer))
        verdict = "-" if goal is None else "met" if ratio <= goal else "missed"
        shown = "-" if goal is None else f"{goal:g}"
        yield f"{row}\t{ours_ns:.2f}\t{peer}\t{peer_ns:.2f}\t{ratio:.2f}\t{shown}\t{verdict}"


def main(arguments):
    goals = read_goals(arguments[0])
    results = []
    for path in arguments[1:]:
        with open(path, encoding="utf-8") as file:
            text = file.read()
        if text.strip():
            results.append(json.loads(text))
    found = medians(results)
    print("row\tours_ns\tpeer\tpeer_ns\tratio\tgoal\tverdict")
    for line in table(goals, found):
        print(line)
    for row, peer in goals:
        if (row, peer) not in found or (row, None) not in found:
            print(f"{row}: no measurement beside {peer}", file=sys.stderr)


if __name__ == "__main__":
    main(sys.argv[1:])
