# shellcheck shell=bash disable=SC2154
# Sourced by the scripts that build: makes sure that the packages of scripts/debian-packages.txt are
# installed.

# The packages of the given sets, one a line.
listed_packages() {
    local list="$root/scripts/debian-packages.txt" set
    for set in "$@"; do
        sed -n "s/^$set  *//p" "$list"
    done
}

is_debian_like() {
    command -v apt-get >/dev/null && command -v dpkg-query >/dev/null &&
        grep -Eq '^ID(_LIKE)?=.*(debian)' /etc/os-release 2>/dev/null
}

# Names what is needed and how to get it, and ends the script with status 2.
explain_packages_and_stop() {
    {
        echo "$1"
        echo "Needed: a C++17 compiler, CMake 3.22, Ninja, Qt 6.4 or later (Qt 5.15 too for ./check)."
        echo "On Debian 12 these are the packages:"
        listed_packages "${package_sets[@]}" | sed 's/^/    /'
        echo "With all of that in place, set TESSARK_SKIP_PACKAGES=1 to go on without this test."
    } >&2
    exit 2
}

# require_packages SET...: installs what is missing. Asks the local package database only, so that
# nothing is fetched when all is there.
require_packages() {
    package_sets=("$@")
    [ -n "${TESSARK_SKIP_PACKAGES:-}" ] && return
    is_debian_like || explain_packages_and_stop "This is not a Debian system, so nothing is installed by itself."

    local package missing=()
    for package in $(listed_packages "$@"); do
        dpkg-query -W -f '${db:Status-Status}' "$package" 2>/dev/null | grep -qx installed ||
            missing+=("$package")
    done
    [ ${#missing[@]} -eq 0 ] && return

    local as_root=()
    if [ "$(id -u)" -ne 0 ]; then
        command -v sudo >/dev/null || explain_packages_and_stop "Missing: ${missing[*]}. Neither root nor sudo is at hand to install it."
        as_root=(sudo)
    fi
    echo "Installing: ${missing[*]}" >&2
    # A fresh machine may have no package lists yet, or old ones, and may be busy with updates of
    # its own just after its start. Where a list cannot be fetched, the others may still do.
    local apt=("${as_root[@]}" env DEBIAN_FRONTEND=noninteractive
        apt-get -q -o DPkg::Lock::Timeout=300)
    "${apt[@]}" update >&2 || echo "The package lists could not be fetched." >&2
    "${apt[@]}" install -y --no-install-recommends "${missing[@]}" >&2 ||
        explain_packages_and_stop "Installing the packages failed."
}
