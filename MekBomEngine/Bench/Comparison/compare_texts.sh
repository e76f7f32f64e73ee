#!/bin/sh
# Lets the limit program and the engine make the same report of both sets of rows, and fails unless the texts are equal.
#   sh compare_texts.sh generate_parts.py LimitReport EngineReport
set -eu
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
generator=$1
limit=$2
engine=$3

# compare TEXTS GENERATOR_ARGUMENT...
compare()
{
    texts=$1
    shift
    python3 "$generator" "$@" >"$work/parts.csv"
    "$limit" --data "$work/parts.csv" --runs 1 --text "$work/limit.txt"
    "$engine" --data "$work/parts.csv" --texts "$texts" --runs 2 --text "$work/engine.txt"
    cmp "$work/limit.txt" "$work/engine.txt"
}

for rows in 1 50 3000; do
    compare shared "$rows"
    compare own "$rows" --full-lengths
done
