#!/usr/bin/env bash
# Checks how ./run and ./check provide for packages: commands_test.sh ROOT. The system's package
# tools are stood in for by small scripts, so that nothing is installed.
set -euo pipefail

root=$1
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
failures=0

# The tools that the scripts may use, without any package manager and without a compiler.
make_tools() {
    local tool
    rm -rf "${work:?}/bin"
    mkdir "$work/bin"
    for tool in bash cat dirname env grep sed; do
        ln -s "$(command -v "$tool")" "$work/bin/$tool"
    done
}

# stand_in NAME: standard input is what the tool does. It notes its arguments first.
stand_in() {
    {
        echo '#!/usr/bin/env bash'
        echo "echo \"$1 \$*\" >>'$work/calls'"
        cat
    } >"$work/bin/$1"
    chmod +x "$work/bin/$1"
}

# A Debian system where only g++ is installed, used by the user with the given number.
make_debian() {
    make_tools
    # shellcheck disable=SC2016 # the stand-in expands it
    stand_in dpkg-query <<<'[ "${!#}" = g++ ] && echo installed'
    stand_in id <<<"echo $1"
    stand_in apt-get <<<'exit 0'
}

# try COMMAND...: runs it with the stand-ins alone and keeps status, output and calls.
try() {
    : >"$work/calls"
    status=0
    env -i PATH="$work/bin" "$@" >"$work/output" 2>&1 </dev/null || status=$?
}

# Asks for a set's packages as ./run does, on a system that counts as Debian.
try_require() {
    # shellcheck disable=SC2016 # the shell that is tried expands it
    try bash -c 'set -euo pipefail
        root=$1
        . "$root/scripts/packages.sh"
        is_debian_like() { true; }
        require_packages "$2"
        echo provided' bash "$root" "$1"
}

expect_status() {
    [ "$status" = "$2" ] || failed "$1: status $status instead of $2"
}

expect_text() { # in the file "output" or "calls"
    grep -qF -- "$3" "$work/$2" || failed "$1: \"$3\" is not in the $2"
}

expect_no_text() {
    ! grep -qF -- "$3" "$work/$2" || failed "$1: \"$3\" is in the $2"
}

failed() {
    echo "FAILED: $1"
    sed 's/^/    /' "$work/output" "$work/calls"
    failures=$((failures + 1))
}

make_tools
try "$root/run"
expect_status "run on another system" 2
expect_text "run on another system" output "Qt 6.4"
expect_text "run on another system" output qt6-base-dev
expect_no_text "run on another system" output qtbase5-dev

try "$root/check"
expect_status "check on another system" 2
expect_text "check on another system" output qtbase5-dev
expect_text "check on another system" output pkg-config
expect_text "check on another system" output clang-tidy-14
expect_no_text "check on another system" output gcovr

try "$root/check" --quick
expect_status "quick check on another system" 2
expect_no_text "quick check on another system" output qtbase5-dev
expect_no_text "quick check on another system" output clang-tidy-14

try "$root/check" --nonsense
expect_status "unknown option" 2
expect_text "unknown option" output "usage: ./check [--quick]"

make_debian 0
try_require run
expect_status "root" 0
expect_text "root" calls "install -y --no-install-recommends cmake ninja-build qt6-base-dev"
expect_text "root" output provided

stand_in dpkg-query <<<'echo installed'
try_require run
expect_status "nothing missing" 0
expect_text "nothing missing" output provided
expect_no_text "nothing missing" calls apt-get

make_debian 1000
stand_in sudo <<<'exec "$@"'
try_require run
expect_status "user with sudo" 0
expect_text "user with sudo" calls "sudo env DEBIAN_FRONTEND=noninteractive apt-get"
expect_text "user with sudo" output provided

make_debian 1000
try_require run
expect_status "user without sudo" 2
expect_text "user without sudo" output "Missing: cmake ninja-build qt6-base-dev"
expect_no_text "user without sudo" calls apt-get

make_debian 0
stand_in apt-get <<<'[[ "$*" != *install* ]]'
try_require run
expect_status "failing installation" 2
expect_text "failing installation" output qt6-base-dev
expect_no_text "failing installation" output provided

make_debian 0
stand_in apt-get <<<'[[ "$*" != *update* ]]'
try_require run
expect_status "lists that cannot be fetched" 0
expect_text "lists that cannot be fetched" output provided

echo "$failures failed"
[ "$failures" -eq 0 ]
