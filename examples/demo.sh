#!/usr/bin/env bash
# Shows typedtable on daily weather and on airports, and the whole road of a value: text, typed value, computed, written
# for a person, a document and a query. TYPEDTABLE: the program, if not the one of the release build.
set -eu
cd "$(dirname "$0")/.."
program=${TYPEDTABLE:-build/release/examples/typedtable}

run() {
    printf '\n$ typedtable'
    for word in "$@"; do
        case $word in
        *[][\ \>\<\#\;\(]*) printf " '%s'" "$word" ;;
        *) printf ' %s' "$word" ;;
        esac
    done
    printf '\n'
    "$program" "$@"
}

run examples/data/weather.csv
run examples/data/weather.csv --group-by date:quarter --fiscal-start 4 --sum precipitation --max temp_max
run examples/data/weather.csv --group-by date:iso-year --count --mean wind --min date --max date
run examples/data/weather.csv --where 'temp_max > 35' --sort temp_max
run examples/data/weather.csv --where 'precipitation > 0' --sum precipitation --mean wind --min temp_min --max temp_max
run examples/data/weather.csv --distinct weather --count --mean temp_max
run examples/data/weather.csv --where '[weather].[temp_max] > 35' --mean '[weather].[wind]'
run examples/data/airports.csv --sort name --collation LEN_RUS_S2 --rows 10
run examples/data/airports.csv --find lafayette --sort city --locale en_US --ignore-case
run examples/data/weather.csv --group-by date:year --max temp_max --language de
run --explain-collation LEN_RUS_S2
run examples/data/seattle-months.csv --dates-in en_US --rows 3
run examples/data/seattle-months.csv --dates-in en_US --dates-as "d. MMMM yyyy" --locale de_DE --where 'warmest > 33'
run examples/data/seattle-months.csv --dates-in en_US --group-by month:year --sum precipitation --max warmest
run --date-order en_US
run --date-order de_DE
run examples/data/airports.csv --cast iata:integer --rows 3
run examples/data/airports.csv --cast iata:integer --where 'iata > 0' --min iata --max iata --count
run examples/data/weather.csv --group-by date:year --sum precipitation --mean temp_min --format 'precipitation=n#,##0.00' --format 'temp_min=n0.0;(0.0)'
run examples/data/weather.csv --where 'temp_max > 37' --as values
run examples/data/cities.csv --cast shape:spatial --as wkt
run examples/data/weather.csv --where 'temp_max > 37' --as literals
