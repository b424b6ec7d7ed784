#!/usr/bin/env bash
# Shows typedtable on daily weather. TYPEDTABLE: the program, if not the one of the release build.
set -eu
cd "$(dirname "$0")/.."
program=${TYPEDTABLE:-build/release/examples/typedtable}

run() {
    printf '\n$ typedtable %s\n' "$*"
    "$program" "$@"
}

run examples/data/weather.csv
run examples/data/weather.csv --group-by date:quarter --fiscal-start 4 --sum precipitation --max temp_max
run examples/data/weather.csv --group-by date:iso-year --count --mean wind --min date --max date
