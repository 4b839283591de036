#!/usr/bin/env bash
# One test of the installed package: package_test.sh TEST. ctest sets the variables named below;
# "install" runs before the others and leaves the package in $WORK/moved.
set -euo pipefail

: "${CMAKE:?}" "${GENERATOR:?}" "${CXX:?}" "${CONFIG?}" # the tools the tree was built with
: "${SOURCE:?}" "${BUILD:?}" "${WORK:?}"                # source tree, build tree, our own folder
: "${VERSION:?}" "${QT_MAJOR:?}" "${LIBDIR:?}"          # of the package
export QT_QPA_PLATFORM=offscreen LC_ALL=C.UTF-8

here="$SOURCE/tests/package"
prefix="$WORK/moved"
warnings=(-Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wold-style-cast -Werror
    -DQT_NO_KEYWORDS)

fail() {
    echo "FAILED: $*" >&2
    exit 1
}

# configure SOURCE BUILD [CMAKE-OPTION...], from nothing.
configure() {
    local source=$1 build=$2
    shift 2
    rm -rf "$build"
    "$CMAKE" -S "$source" -B "$build" -G "$GENERATOR" -DCMAKE_CXX_COMPILER="$CXX" \
        -DCMAKE_CXX_COMPILER_LAUNCHER="${LAUNCHER:-}" "$@"
}

# Runs the host programs that a project has built.
run_consumers() {
    "$1/consumer"
    "$1/list-consumer"
    "$1/test-consumer"
}

# The package has to work wherever it ends up, so the place it was installed to is gone.
test_install() {
    rm -rf "$WORK"
    mkdir -p "$WORK"
    DESTDIR='' "$CMAKE" --install "$BUILD" --config "$CONFIG" --prefix "$WORK/staging" --strip
    mv "$WORK/staging" "$prefix"
}

test_cmake_consumer() {
    local build="$WORK/cmake-consumer"
    configure "$here/consumer" "$build" -DCMAKE_PREFIX_PATH="$prefix" \
        -DCMAKE_CXX_FLAGS="${warnings[*]}"
    "$CMAKE" --build "$build"
    grep -q "^Tessark_DIR:PATH=$prefix/" "$build/CMakeCache.txt" || fail "another Tessark was found"
    run_consumers "$build"
}

# Everything a compile line needs comes from pkg-config. Its Qt folders are named again as system
# ones, which turns off the warnings of Qt's own headers but not those of ours.
compile_with_pkgconfig() {
    local module=$1 source=$2 program=$3 flags qt_flags
    eval "flags=($(pkg-config --cflags --libs "$module"))"
    eval "qt_flags=($(pkg-config --cflags-only-I "Qt${QT_MAJOR}Widgets" | sed 's/-I/-isystem /g'))"
    "$CXX" -std=c++17 -fPIC "${warnings[@]}" "${qt_flags[@]}" "$source" -o "$program" "${flags[@]}"
}

test_pkgconfig_consumer() {
    local build="$WORK/pkgconfig-consumer" module
    export PKG_CONFIG_PATH="$prefix/$LIBDIR/pkgconfig" LD_LIBRARY_PATH="$prefix/$LIBDIR"
    rm -rf "$build"
    mkdir -p "$build"
    for module in tessark-core tessark-property tessark-propertyhost tessark-propertytest; do
        [ "$(pkg-config --modversion "$module")" = "$VERSION" ] || fail "version of $module"
    done
    compile_with_pkgconfig tessark-property "$here/consumer/main.cpp" "$build/consumer"
    compile_with_pkgconfig tessark-propertyhost "$here/consumer/list.cpp" "$build/list-consumer"
    compile_with_pkgconfig tessark-propertytest "$here/consumer/test.cpp" "$build/test-consumer"
    run_consumers "$build"
}

test_components() {
    local build="$WORK/components"
    configure "$here/components" "$build" -DCMAKE_PREFIX_PATH="$prefix" \
        -DEXPECTED_VERSION="$VERSION" -DEXPECTED_QT_MAJOR="$QT_MAJOR"
    if configure "$here/components" "$build" -DCMAKE_PREFIX_PATH="$prefix" \
        -DASK_REQUIRED=Nonsense >"$WORK/components.log" 2>&1; then
        fail "a required component that does not exist was accepted"
    fi
    grep -q 'It has no component Nonsense' "$WORK/components.log" ||
        fail "the message does not name the component: $(cat "$WORK/components.log")"
}

# Every public header of the package compiles alone, twice in a row, for the strictest host.
test_headers() {
    local build="$WORK/headers" flags header name
    export PKG_CONFIG_PATH="$prefix/$LIBDIR/pkgconfig"
    rm -rf "$build"
    mkdir -p "$build"
    eval "flags=($(pkg-config --cflags tessark-propertyhost))"
    eval "flags+=($(pkg-config --cflags-only-I "Qt${QT_MAJOR}Widgets" | sed 's/-I/-isystem /g'))"
    (cd "$prefix/include/tessark" && find . -name '*.h' -printf '%P\n') >"$build/headers.txt"
    [ -s "$build/headers.txt" ] || fail "no header is installed"
    while IFS= read -r header; do
        name="$build/${header//\//_}.cpp"
        printf '#include <%s>\n#include <%s>\n' "$header" "$header" >"$name"
        printf '%s\0' "$name"
    done <"$build/headers.txt" >"$build/sources"
    xargs -0 -n 1 -P "$(nproc)" -- "$CXX" -std=c++17 -fPIC -fsyntax-only "${warnings[@]}" \
        -Wnon-virtual-dtor -Woverloaded-virtual -DQT_NO_CAST_FROM_ASCII -DQT_NO_CAST_TO_ASCII \
        "${flags[@]}" <"$build/sources" || fail "a header does not compile alone"
    echo "$(wc -l <"$build/headers.txt") headers compile alone"
}

test_subproject() {
    local build="$WORK/subproject"
    configure "$here/subproject" "$build" -DTESSARK_SOURCE="$SOURCE" -DTESSARK_QT_MAJOR="$QT_MAJOR"
    "$CMAKE" --build "$build" --parallel 2 --target consumer
    "$build/consumer"
}

"test_$1"
