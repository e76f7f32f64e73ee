#!/bin/sh
# Lets the limit program and the engine make the same report, and fails unless the texts are the same.
#   sh compare_texts.sh generate_parts.py LimitReport EngineReport
set -eu
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
for rows in 1 50 3000; do
    python3 "$1" "$rows" >"$work/parts.csv"
    "$2" --data "$work/parts.csv" --runs 1 --text "$work/limit.txt"
    "$3" --data "$work/parts.csv" --runs 2 --text "$work/engine.txt"
    cmp "$work/limit.txt" "$work/engine.txt"
done
