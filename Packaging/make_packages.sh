#!/bin/sh
# Makes the packages for Debian in a folder of its own.
#   sh Packaging/make_packages.sh FOLDER [libraries]        libraries: those of the libraries alone, without the program
set -eu
here=$(cd "$(dirname "$0")" && pwd)
folder=$1
build_host=ON
[ "${2:-}" != libraries ] || build_host=OFF
mkdir -p "$folder"
folder=$(cd "$folder" && pwd)

# All times in the packages are that of the version, and not of the day on which they are made.
SOURCE_DATE_EPOCH=$(dpkg-parsechangelog -l "$here/Debian/changelog" -S Timestamp)
export SOURCE_DATE_EPOCH
umask 022
{
    cmake -S "$here/.." -B "$folder/build" -DCMAKE_BUILD_TYPE=Release -DCMAKE_INSTALL_PREFIX=/usr \
        -DBUILD_SHARED_LIBS=ON -DMEK_DEBIAN_PACKAGES=ON -DMEK_BUILD_HOST="$build_host" -DMEK_BUILD_EXAMPLES=OFF \
        -DMEK_BUILD_TESTS=OFF -DMEK_WARNINGS_AS_ERRORS=OFF
    cmake --build "$folder/build" -j "$(nproc)"
    cd "$folder"
    cpack --config build/CPackConfig.cmake -B packed
} >"$folder/log" 2>&1 || {
    tail -n 30 "$folder/log" >&2
    exit 1
}
mv packed/*.deb .
ls ./*.deb
