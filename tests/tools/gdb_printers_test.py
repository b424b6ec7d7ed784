"""Runs gdb in batch mode on a small program and compares what the printers show.

usage: gdb_printers_test.py GDB PRINTERS PROGRAM. Exits with 77, "skipped", where gdb cannot start a program.
"""

import subprocess
import sys

EXPECTED = {
    "text": r'"café \"x\""',
    "empty": '""',
    "core": '"core"',
    "date": "2021-03-04 12:34:56.5000",
    "early": "representation 1518552576000000",
    "integer": "Integer -5",
    "real": "Real 1.5 (5, 2)",
    "marker": "%all% Real",
    "none": "%null% Unknown",
    "flag": "Boolean true",
    "day": "Date 2021-03-04",
    "moment": "DateTime 2021-03-04 12:34:56.5000",
    "clock": "Time 01:01:01.000007",
    "string": 'String "text"',
    "row": 'Tuple (Integer -5, String "text")',
    "binary": "Binary 2 bytes 01 61",
    "name": "[schema].[a]]b]",
    "noName": "<no components>",
}


def main():
    gdb, printers, program = sys.argv[1:]
    command = [gdb, "--batch", "--nx", "-ex", "set confirm off", "-ex", "set debuginfod enabled off",
               "-ex", "set disable-randomization off", "-ex", "source " + printers, "-ex", "break shown", "-ex", "run", "-ex", "up"]
    for name in EXPECTED:
        command += ["-ex", "output %s" % name, "-ex", "echo \\n=%s\\n" % name]
    run = subprocess.run(command + [program], capture_output=True, encoding="utf-8", errors="replace", timeout=300)
    if "in main" not in run.stdout:
        print("skipped: gdb cannot run a program here\n" + run.stdout + run.stderr)
        return 77
    shown = {}
    before = ""
    for line in run.stdout.splitlines():
        if line.startswith("="):
            shown[line[1:]] = before
        before = line
    failures = [(name, shown.get(name), text) for name, text in EXPECTED.items() if shown.get(name) != text]
    for name, actual, text in failures:
        print("%s: %r, not %r" % (name, actual, text))
    if failures:
        print(run.stdout + run.stderr)
    return 1 if failures else 0


if __name__ == "__main__":
    sys.exit(main())
