#!/bin/sh
# Builds everything and passes the tests. Arguments go to the configuration, such as
#   sh Scripts/test.sh -DMEK_REAL_DATA_DIR=/folder/with/steel-frame.csv
set -eu
cd "$(dirname "$0")/.."
sh Scripts/setup.sh
cmake --preset release "$@"
cmake --build --preset release
ctest --preset release -j "$(nproc)"
