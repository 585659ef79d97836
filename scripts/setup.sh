#!/usr/bin/env bash
# Installs what the build, the tests and the stand-in device need from the Debian archive.
# Safe to run again: it asks dpkg first and touches the network only for what is missing.
set -euo pipefail

# Compilers for the handheld's two stand-in word sizes, and for the natively built pure code.
packages=(
    g++ g++-mingw-w64-x86-64-posix g++-mingw-w64-i686-posix clang-14 clang-format-14 libclang-rt-14-dev
    cmake ninja-build ccache git
)
# Running and testing Windows binaries: Wine, a virtual screen, one in a window that can be turned,
# the handheld's face Tahoma, and Japanese glyphs drawn for its small sizes.
packages+=(wine wine64 xvfb xserver-xephyr fonts-wine fonts-monapo)
# Libraries and data of the module and the stand-in device.
packages+=(libboost-dev libz-mingw-w64-dev dpkg-dev googletest tango-icon-theme)
# The city database: its builder's libraries, country names and time zones.
packages+=(zlib1g-dev libzip-dev libcli11-dev nlohmann-json3-dev libicu-dev iso-codes tzdata)
# Translations: the library and the programs for translators' files.
packages+=(libgettextpo-dev gettext)
# Peers and instruments of the benchmarks and checks.
packages+=(valgrind libsqlite3-dev libarchive-dev unzip)
# Contact sheets of the pictures.
packages+=(graphicsmagick)
# Static analysis and the measuring of coverage.
packages+=(clang-tidy-14 cppcheck gcovr)
# Packages: archives and installers.
packages+=(zip nsis)
# Any npm will do, also one that was not installed as a package.
command -v npm >/dev/null || packages+=(npm)

as_root() {
    if [ "$(id -u)" -eq 0 ]; then "$@"; else sudo "$@"; fi
}

missing_packages() {
    local name
    for name in "${packages[@]}"; do
        dpkg-query -W -f='${db:Status-Abbrev}' "$name" 2>/dev/null | grep -q '^ii' || echo "$name"
    done
}

# Runs a package-manager command up to four times, waiting longer each time: mirrors hiccup.
with_retries() {
    local attempt
    for attempt in 1 2 3 4; do
        if "$@" >>"$log" 2>&1; then return 0; fi
        sleep $((attempt * attempt * 2))
    done
    return 1
}

log=${SETUP_LOG:-out/setup.log}
mkdir -p "$(dirname "$log")"

install_packages() {
    local apt=(as_root env DEBIAN_FRONTEND=noninteractive apt-get -o Acquire::Retries=3
               -o DPkg::Lock::Timeout=120 -y --no-install-recommends)
    # A stale or unreachable list is not fatal by itself: the install below decides.
    with_retries "${apt[@]}" update || true
    with_retries "${apt[@]}" install "$@" && return
    mapfile -t missing < <(missing_packages)
    if [ "${#missing[@]}" -ne 0 ]; then
        echo "setup: could not get from the Debian archive: ${missing[*]} (details: $log)" >&2
        exit 1
    fi
}

mapfile -t missing < <(missing_packages)
[ "${#missing[@]}" -eq 0 ] || install_packages "${missing[@]}"
"$(dirname "${BASH_SOURCE[0]}")/minizip.sh"
