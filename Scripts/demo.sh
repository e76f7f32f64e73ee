#!/bin/sh
# Builds the program and prints the list that README.md begins with.
set -eu
cd "$(dirname "$0")/.."
sh Scripts/setup.sh

log=$(mktemp)
trap 'rm -f "$log"' EXIT
echo "Building mekbom (a minute or two) ..." >&2
{ cmake --preset program && cmake --build --preset program --target mekbom; } >"$log" 2>&1 || { cat "$log" >&2; exit 1; }

build/program/MekBomHost/mekbom report --data Examples/export.csv
