#!/bin/sh
# Installs what the build needs from Debian's packages, when it may; says exactly what is missing otherwise.
#   sh Scripts/setup.sh            compiler, cmake, ninja, python, and the host program's libraries
#   sh Scripts/setup.sh --checks   also clang, its sanitizer runtime, clang-format and -tidy, valgrind, mandoc,
#                                  Google Benchmark, what packages for Debian are made and checked with, zsh and fish
#   sh Scripts/setup.sh --browser  also Chromium and pdftotext, for the test that opens pages of lists
#   sh Scripts/setup.sh --bench    also Google Benchmark, and the tools and libraries that the benchmarks compare with
# Also makes the locale de_DE.UTF-8 where it may: tests hold numbers against its decimal comma, and skip without it.
set -eu

packages="g++ cmake ninja-build python3 locales libgtest-dev libcli11-dev nlohmann-json3-dev libutf8proc-dev"
packages="$packages libzip-dev libpugixml-dev libxlsxwriter-dev python3-jsonschema python3-openpyxl python3-pandas"
packages="$packages pkg-config"
for argument in "$@"; do
    case "$argument" in
        --checks)
            packages="$packages clang libclang-rt-dev clang-format clang-tidy valgrind libbenchmark-dev mandoc lintian"
            packages="$packages dpkg-dev zsh fish"
            ;;
        --browser) packages="$packages chromium poppler-utils" ;;
        --bench)
            packages="$packages libbenchmark-dev sqlite3 libsqlite3-dev python3-xlsxwriter libfparser-dev"
            packages="$packages libmuparser-dev liblua5.4-dev miller time valgrind"
            ;;
        *) echo "setup.sh: unknown argument '$argument'; expected --checks, --browser or --bench" >&2; exit 2 ;;
    esac
done

missing=""
for package in $packages; do
    status=$(dpkg-query -W -f='${Status}' "$package" 2>/dev/null || true)
    [ "$status" = "install ok installed" ] || missing="$missing $package"
done

if [ "$(id -u)" = 0 ]; then
    as_root=""
elif command -v sudo >/dev/null 2>&1 && sudo -n true 2>/dev/null; then
    as_root="sudo"
elif [ -n "$missing" ]; then
    echo "setup.sh: these Debian packages are missing:$missing" >&2
    echo "setup.sh: install them with: sudo apt-get install$missing" >&2
    exit 1
else
    exit 0
fi

if [ -n "$missing" ]; then
    echo "Installing$missing"
    $as_root apt-get update -qq
    # shellcheck disable=SC2086  # the list is meant to be split
    $as_root env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends $missing >/dev/null
fi
locale -a | grep -qi '^de_DE.utf-\?8$' || $as_root localedef -i de_DE -f UTF-8 de_DE.UTF-8
