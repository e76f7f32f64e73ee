#!/bin/sh
# The slower checks: format, linter, instruction count, packages for Debian, ThreadSanitizer over the threading tests, then all tests under
# Address-, Leak- and UndefinedBehaviorSanitizer. Arguments go to each configuration, as with Scripts/test.sh.
set -eu
cd "$(dirname "$0")/.."
sh Scripts/setup.sh --checks
jobs=$(nproc)

echo "== clang-format"
git ls-files '*.cpp' '*.h' | xargs clang-format --dry-run --Werror

echo "== clang-tidy"
cmake --preset sanitize "$@"
git ls-files '*/Src/*.cpp' | xargs -P "$jobs" -n 4 clang-tidy -p build/sanitize --quiet --warnings-as-errors='*'

echo "== instructions that a report takes"
sh Scripts/check_instructions.sh

echo "== packages for Debian"
sh Scripts/check_packages.sh libraries

echo "== ThreadSanitizer over the threading tests"
cmake --preset threads "$@"
cmake --build --preset threads
ctest --preset threads -j "$jobs"

echo "== clang++ with Address-, Leak- and UndefinedBehaviorSanitizer"
cmake --build --preset sanitize
MEK_RANDOM_CASES=${MEK_RANDOM_CASES:-5000} ctest --preset sanitize -j "$jobs" # the release tests run them all
