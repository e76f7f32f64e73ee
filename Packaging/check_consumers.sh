#!/bin/sh
# Builds a host in one of the ways that Docs/EMBEDDING.md shows, from the projects that stand there, and checks what it
# prints.
#   sh check_consumers.sh WAY FOLDER        FOLDER: where to build, kept from one way to the next
#
#   subproject      add_subdirectory; also installs its static libraries
#   fetched         FetchContent, from an archive
#   static          find_package in that installation
#   static-pc       pkg-config in that installation
#   shared-build    nothing but an installation of shared libraries, which is moved then
#   shared          find_package in it
#   shared-pc       pkg-config in it
#   exports         what its libraries export
#   debian          the packages for Debian in FOLDER/packages, unpacked in a folder without anything else
#   program         the program and the C interface that BUILD=folder has built
set -eu
way=$1
work=$2
here=$(cd "$(dirname "$0")" && pwd)
source=$(dirname "$here")
mkdir -p "$work"
work=$(cd "$work" && pwd)

skip()
{
    echo "skipped: $1"
    exit 77
}

# shown HEADING LANGUAGE: the block of the language below a heading of the page.
shown()
{
    sed -n "/^## $1\$/,/^## /p" "$source/Docs/EMBEDDING.md" | awk -v fence="\`\`\`$2" \
        '$0 == "```" { inside = 0 } inside { print } $0 == fence { inside = 1 }'
}

# project HEADING: the folder of a project as the page shows it, with the host in it.
project()
{
    rm -rf "$work/$way-project"
    mkdir -p "$work/$way-project/third-party"
    cp "$here/Consumers/consumer.cpp" "$work/$way-project/main.cpp"
    shown "$1" cmake >"$work/$way-project/CMakeLists.txt"
    echo "$work/$way-project"
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

# check COMMAND...: runs the host.
check()
{
    "$@" >"$work/printed"
    sed -n 's,^//   ,,p' "$here/Consumers/consumer.cpp" | diff - "$work/printed"
}

# The sources lie where the page has them, by a link: what is built names the folder of the link.
check_subproject()
{
    project=$(project "As a subproject")
    ln -s "$source" "$project/third-party/MekBomEngine"
    cat "$here/Consumers/subproject-checks.cmake" >>"$project/CMakeLists.txt"
    build "$project" "$work/subproject" -DMEK_INSTALL=ON -DCMAKE_INSTALL_PREFIX="$work/static"
    check "$work/subproject/lists"
    cmake --install "$work/subproject" >/dev/null
    tells_no_folder "$work/static"
}

check_fetched()
{
    project=$(project Fetched)
    tar -czf "$project/third-party/MekBomEngine.tar.gz" --exclude=./build --exclude=./.git -C "$source" .
    build "$project" "$work/fetched" -Wno-dev
    check "$work/fetched/lists"
}

# check_installed PREFIX: with CMake.
check_installed()
{
    project=$(project Installed)
    cat "$here/Consumers/installed-checks.cmake" >>"$project/CMakeLists.txt"
    build "$project" "$work/$way-build" -DCMAKE_PREFIX_PATH="$1"
    check "$work/$way-build/lists"
}

# check_pkg_config PREFIX: with the command that the page shows.
check_pkg_config()
{
    command -v pkg-config >/dev/null || skip "pkg-config is not installed"
    PKG_CONFIG_PATH=$(dirname "$(find "$1" -name MekBomEngine.pc)")
    export PKG_CONFIG_PATH
    pkg-config --exists 'MekBomEngine >= 1.0'
    project=$(project "With pkg-config")
    (cd "$project" && eval "$(shown "With pkg-config" sh)")
    LD_LIBRARY_PATH=$(pkg-config --variable=libdir MekBomEngine) check "$project/lists"
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

# What is installed is moved: nothing may depend on the folder that it was built for.
build_shared()
{
    rm -rf "$work/shared" "$work/installed"
    build "$source" "$work/shared-libraries" -DBUILD_SHARED_LIBS=ON -DCMAKE_INSTALL_PREFIX="$work/installed" \
        -DMEK_BUILD_HOST=OFF -DMEK_BUILD_EXAMPLES=OFF -DMEK_BUILD_TESTS=OFF
    cmake --install "$work/shared-libraries" >/dev/null
    mv "$work/installed" "$work/shared"
    tells_no_folder "$work/shared"
}

# An installation of the packages would tell the loader of the folder.
check_debian()
{
    rm -rf "$work/root"
    for package in "$work"/packages/*.deb; do
        dpkg-deb -x "$package" "$work/root"
    done
    tells_no_folder "$work/root"
    LD_LIBRARY_PATH=$(dirname "$(find "$work/root" -name libMekBomEngine.so)")
    export LD_LIBRARY_PATH
    check_installed "$work/root/usr"
}

# The program brings its lists, its manual page and completions along, and finds them where it is moved to.
check_program()
{
    rm -rf "$work/program" "$work/installed-program"
    for component in runtime program interface development; do
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
    check_interface "$(dirname "$(find "$work/program" -name libmekbom.so)")"
}

# check_interface FOLDER: a C program is built by pkg-config, and the library exports nothing but what its header has.
check_interface()
{
    python3 -B "$here/check_exports.py" "$here/exports.txt" "$1" mekbom
    command -v pkg-config >/dev/null || return 0
    flags=$(PKG_CONFIG_PATH=$1/pkgconfig pkg-config --cflags --libs mekbom)
    version=$(PKG_CONFIG_PATH=$1/pkgconfig pkg-config --modversion mekbom)
    # shellcheck disable=SC2086  # the flags are meant to be split
    "${CC:-cc}" -DEXPECTED_VERSION="\"$version\"" "$source/MekBomHost/Test/Interface/uses_mekbom.c" \
        -o "$work/uses-mekbom" $flags
    LD_LIBRARY_PATH=$1 "$work/uses-mekbom"
}

case $way in
    subproject) check_subproject ;;
    fetched) check_fetched ;;
    static | shared) check_installed "$work/$way" ;;
    static-pc) check_pkg_config "$work/static" ;;
    shared-pc) check_pkg_config "$work/shared" ;;
    shared-build) build_shared ;;
    exports)
        python3 -B "$here/check_exports.py" "$here/exports.txt" "$work/shared/lib" \
            MekRoots MekUnits MekRepositoryProxy MekExpressionEvaluator MekBomEngine
        ;;
    debian) check_debian ;;
    program) check_program ;;
    *)
        echo "check_consumers.sh: unknown way '$way'" >&2
        exit 2
        ;;
esac
