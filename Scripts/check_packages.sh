#!/bin/sh
# Makes the packages for Debian twice, from two copies of the sources in two folders, and checks that they are the same
# to the byte, that lintian accepts them, and that a consumer can be built from what they unpack.
#   sh Scripts/check_packages.sh [libraries]        libraries: those of the libraries alone, in a minute
set -eu
cd "$(dirname "$0")/.."
sh Scripts/setup.sh --checks
what=${1:-}
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

for copy in first second-copy; do
    mkdir -p "$work/$copy"
    git ls-files -z | xargs -0 tar -cf - | tar -xf - -C "$work/$copy"
done
for copy in first second-copy; do
    sh "$work/$copy/Packaging/make_packages.sh" "$work/$copy/made" $what
done
for package in "$work"/first/made/*.deb; do
    cmp "$package" "$work/second-copy/made/$(basename "$package")"
done
echo "two builds made the same bytes"

lintian --fail-on error,warning --allow-root "$work"/first/made/*.deb
echo "lintian accepts them"

mkdir "$work/consumers"
mv "$work/first/made" "$work/consumers/packages"
sh Packaging/check_consumers.sh debian "$work/consumers"
echo "a consumer was built with them"
