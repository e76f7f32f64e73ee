#!/bin/sh
# Time and peak memory of the whole job, from a CSV file to a table in a file, for 10^4, 10^5 and 10^6 rows.
#   sh MekBomHost/Bench/large_report.sh build/program/MekBomHost/mekbom
# Needs GNU time as /usr/bin/time (Debian package "time").
set -eu
program=$1
here=$(dirname "$0")
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
for rows in 10000 100000 1000000; do
    python3 "$here/generate_parts.py" "$rows" >"$work/parts.csv"
    for run in 1 2 3; do
        /usr/bin/time -f "$rows rows, run $run: %e s, %U s user, %M KiB peak" \
            "$program" report --data "$work/parts.csv" --template "$here/large-report.json" -o "$work/report.txt"
    done
done
