#!/bin/sh
# Builds all benchmarks, runs them on the same rows and prints tables with ratios; about half an hour. Arguments go to
# Scripts/bench.py, such as
#   sh Scripts/bench.sh --sizes 10000,100000        a quick run
#   sh Scripts/bench.sh --sections evaluate         one comparison alone
# DuckDB and Polars come from npm; without it, or where they have no package for this machine, they are left out.
set -eu
cd "$(dirname "$0")/.."
sh Scripts/setup.sh --bench

build=build/bench
cmake --preset bench -DMEK_BUILD_TESTS=OFF
cmake --build --preset bench

if command -v npm >/dev/null 2>&1; then
    mkdir -p "$build/peers"
    platform=linux-$(node -p process.arch)-gnu
    for packages in "@duckdb/node-api@1.5.6-r.1" "nodejs-polars@0.26.1 nodejs-polars-$platform@0.26.1"; do
        # shellcheck disable=SC2086  # the list is meant to be split
        npm install --prefix "$build/peers" --no-audit --no-fund --silent $packages ||
            echo "bench.sh: npm could not install $packages" >&2
    done
fi

python3 -B Scripts/bench.py --build "$build" "$@"
