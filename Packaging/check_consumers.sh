#!/bin/sh
# Builds the consumer in one of the ways that a library is taken in, and checks what it prints.
#   sh check_consumers.sh WAY FOLDER        FOLDER: where to build, kept from one way to the next
#
#   subproject      add_subdirectory; also installs its static libraries
#   fetch-content   FetchContent
#   static          find_package in that installation
#   static-pc       pkg-config in that installation
#   shared-build    nothing but an installation of shared libraries, which is moved then
#   shared          find_package in it
#   shared-pc       pkg-config in it
#   exports         what its libraries export
#   debian          the packages for Debian in FOLDER/packages, unpacked in a folder without anything else
#   program         the program that BUILD=folder has built, installed alone
set -eu
way=$1
work=$2
here=$(cd "$(dirname "$0")" && pwd)
source=$(dirname "$here")
cxx=${CXX:-c++}
mkdir -p "$work"
work=$(cd "$work" && pwd)

skip()
{
    echo "skipped: $1"
    exit 77
}

# build PROJECT FOLDER ARGUMENTS...: configures and builds a project with CMake.
build()
{
    project=$1
    folder=$2
    shift 2
    cmake -S "$project" -B "$folder" "$@" >"$folder.log" 2>&1 && cmake --build "$folder" -j 2 >>"$folder.log" 2>&1 || {
        cat "$folder.log" >&2
        exit 1
    }
}

# check COMMAND...: runs the consumer.
check()
{
    "$@" >"$work/printed"
    sed -n 's,^//   ,,p' "$here/Consumers/consumer.cpp" | diff - "$work/printed"
}

# by_pkg_config PREFIX: builds with a compiler and what pkg-config says.
by_pkg_config()
{
    command -v pkg-config >/dev/null || skip "pkg-config is not installed"
    PKG_CONFIG_PATH=$(dirname "$(find "$1" -name MekBomEngine.pc)")
    export PKG_CONFIG_PATH
    pkg-config --exists 'MekBomEngine >= 1.0'
    # shellcheck disable=SC2046  # the flags are meant to be split
    "$cxx" -std=c++17 $(pkg-config --cflags MekBomEngine) "$here/Consumers/consumer.cpp" -o "$work/by-pkg-config" \
        $(pkg-config --libs MekBomEngine)
}

# tells_no_folder PREFIX: fails when something installed names the folder of the sources or of the build, or when a binary
# looks for libraries in a folder that does not move with it.
tells_no_folder()
{
    if grep -rlF -e "$source" -e "$work/" "$1"; then
        echo "these files name the folder that they were built in" >&2
        exit 1
    fi
    if find "$1" -name '*.so.*' -exec readelf -d {} + | grep -E 'R(UN)?PATH' | grep -v '\[\$ORIGIN'; then
        echo "these libraries are looked for in a fixed folder" >&2
        exit 1
    fi
}

# Once installed, it is moved: nothing may depend on the folder that it was built for.
build_shared()
{
    rm -rf "$work/shared" "$work/installed"
    build "$source" "$work/shared-build" -DBUILD_SHARED_LIBS=ON -DCMAKE_INSTALL_PREFIX="$work/installed" \
        -DMEK_BUILD_HOST=OFF -DMEK_BUILD_EXAMPLES=OFF -DMEK_BUILD_TESTS=OFF
    cmake --install "$work/shared-build" >/dev/null
    mv "$work/installed" "$work/shared"
    tells_no_folder "$work/shared"
}

# Only the loader's own folders are told to it, as an installation of the packages would.
check_debian()
{
    rm -rf "$work/root"
    for package in "$work"/packages/*.deb; do
        dpkg-deb -x "$package" "$work/root"
    done
    tells_no_folder "$work/root"
    build "$here/Consumers/Installed" "$work/debian-consumer" -DCMAKE_PREFIX_PATH="$work/root/usr" \
        -DCMAKE_FIND_USE_CMAKE_SYSTEM_PATH=OFF
    LD_LIBRARY_PATH=$(dirname "$(find "$work/root" -name libMekBomEngine.so)")
    export LD_LIBRARY_PATH
    check "$work/debian-consumer/consumer"
}

# The program brings its lists, its manual page and completions along, and finds them where it is moved to.
check_program()
{
    rm -rf "$work/program" "$work/installed-program"
    for component in runtime program; do
        cmake --install "$BUILD" --component "$component" --prefix "$work/installed-program" >/dev/null
    done
    mv "$work/installed-program" "$work/program"
    if grep -rlF -e "$source" -e "$BUILD" "$work/program"; then
        echo "these files name the folder that they were built in" >&2
        exit 1
    fi
    (cd / && "$work/program/bin/mekbom" demo 2>/dev/null) | grep -q '^Cutting list$'
    for file in man/man1/mekbom.1.gz bash-completion/completions/mekbom zsh/site-functions/_mekbom \
        fish/vendor_completions.d/mekbom.fish; do
        test -s "$work/program/share/$file"
    done
}

case $way in
    subproject)
        build "$here/Consumers/Subproject" "$work/subproject" -DMEK_SOURCE_DIR="$source" -DMEK_INSTALL=ON \
            -DCMAKE_INSTALL_PREFIX="$work/static"
        check "$work/subproject/consumer"
        cmake --install "$work/subproject" >/dev/null
        tells_no_folder "$work/static"
        ;;
    fetch-content)
        build "$here/Consumers/FetchContent" "$work/fetch-content" -DMEK_SOURCE_DIR="$source"
        check "$work/fetch-content/consumer"
        ;;
    static | shared)
        build "$here/Consumers/Installed" "$work/$way-consumer" -DCMAKE_PREFIX_PATH="$work/$way"
        check "$work/$way-consumer/consumer"
        ;;
    static-pc)
        by_pkg_config "$work/static"
        check "$work/by-pkg-config"
        ;;
    shared-build) build_shared ;;
    shared-pc)
        by_pkg_config "$work/shared"
        LD_LIBRARY_PATH=$(pkg-config --variable=libdir MekBomEngine) check "$work/by-pkg-config"
        ;;
    exports) python3 -B "$here/check_exports.py" "$here/exports.txt" "$work/shared/lib" ;;
    debian) check_debian ;;
    program) check_program ;;
    *)
        echo "check_consumers.sh: unknown way '$way'" >&2
        exit 2
        ;;
esac
