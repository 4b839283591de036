# shellcheck shell=bash disable=SC2154
# Sourced by the scripts that build. They set root, the root of the tree.

# A build folder remembers where its source tree lay: that of a moved or copied checkout is of no
# use and starts anew.
discard_moved_build() {
    local cache="$1/CMakeCache.txt"
    [ -f "$cache" ] || return 0
    grep -qxF "CMAKE_HOME_DIRECTORY:INTERNAL=$root" "$cache" || rm -rf "$1"
}

# build_preset PRESET [OPTION-OF-THE-BUILD...], from the root of the tree.
build_preset() {
    local preset=$1
    shift
    discard_moved_build "$root/build/$preset"
    echo "== $preset: build"
    cmake --preset "$preset" >/dev/null
    cmake --build --preset "$preset" -j "$(nproc)" "$@"
}

# test_preset PRESET [OPTION-OF-CTEST...], from the root of the tree. The last lines are ctest's.
test_preset() {
    local preset=$1
    shift
    echo "== $preset: test"
    ctest --test-dir "build/$preset" --no-tests=error --output-on-failure -j "$(nproc)" "$@"
}
