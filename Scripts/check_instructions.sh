#!/bin/sh
# Counts the instructions that evaluating reports of fixed rows takes, and fails when one of them takes more than the
# bound stored for it in Scripts/instructions_per_row.txt. Seconds differ from machine to machine, instructions hardly:
# what exceeds a bound is a change in the code. A change that needs fewer lowers the bound; the script says what it found.
#   sh Scripts/check_instructions.sh [BUILD]        BUILD: a configured build with benchmarks, made by default
set -eu
cd "$(dirname "$0")/.."
bound_file=Scripts/instructions_per_row.txt
rows=1000
runs=2 # the second one finds the memory that the first one freed

build=${1:-}
if [ -z "$build" ]; then
    sh Scripts/setup.sh --checks
    build=build/bench
    cmake --preset bench -DMEK_BUILD_TESTS=OFF >/dev/null
fi
cmake --build "$build" --target EngineReport ShapesBench

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
python3 MekBomHost/Bench/generate_parts.py "$rows" >"$work/parts.csv"
failed=0

# check NAME PROGRAM...: counts what evaluate() takes while the program makes its report `runs` times.
check()
{
    name=$1
    shift
    valgrind --tool=callgrind --callgrind-out-file="$work/callgrind.out" --collect-atstart=no \
        --toggle-collect='VorBomEvaluator2::evaluate(VorBomTemplate*, VorBomTemplate*)' \
        "$@" --runs "$runs" >"$work/log" 2>&1 || { cat "$work/log" >&2; exit 1; }
    collected=$(sed -n 's/.*Collected : \([0-9]*\).*/\1/p' "$work/log")
    bound=$(sed -n "s/^$name //p" "$bound_file")
    per_row=$((${collected:-0} / (rows * runs)))
    echo "evaluate, $name: $per_row instructions per row, bound ${bound:-missing}"
    if [ "$per_row" -eq 0 ]; then
        echo "check_instructions.sh: nothing was counted; has VorBomEvaluator2::evaluate another signature?" >&2
        exit 1
    fi
    [ "$per_row" -le "${bound:-0}" ] || failed=1
}

bench=$build/MekBomEngine/Bench
check standard "$bench/EngineReport" --data "$work/parts.csv"
check full-lengths "$bench/ShapesBench" "$rows" --only full-lengths --alone
check own-texts-some-missing "$bench/ShapesBench" "$rows" --only own-texts-some-missing --alone

if [ "$failed" -ne 0 ]; then
    echo "check_instructions.sh: more than $bound_file allows; make it cheaper, or raise the bound and say why" >&2
    exit 1
fi
