# Sourced by play.sh, test.sh and scripts/check.sh: what a machine needs, and how it gets it. Wants bash with
# `set -euo pipefail`.
# shellcheck shell=bash

project_root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)

# Names of Debian packages. What the game is built from, runs on and is packed with:
# shellcheck disable=SC2034  # used by the scripts that source this one
play_packages=(g++ cmake ninja-build pkg-config ca-certificates
    libglfw3-dev libglew-dev libgl-dev libgl1-mesa-dri libglm-dev libboost-dev libassimp-dev libstb-dev
    libsdl2-dev libopenal-dev libsndfile1-dev libcli11-dev libpng-dev libglib2.0-dev libprotobuf-dev
    protobuf-compiler gettext dpkg-dev file)
# What the tests need besides:
# shellcheck disable=SC2034
test_packages=(libgtest-dev libx11-dev libxtst-dev xvfb xauth dbus python3-dbusmock
    lintian desktop-file-utils appstream clang-format)

die() {
    printf '%s\n' "$*" >&2
    exit 1
}

# Debian 12's plain cargo is 1.65; the crate registry's index wants 1.70.
has_recent_cargo() {
    local version
    version=$(cargo --version 2>/dev/null) || return 1
    [[ $version =~ ^cargo\ ([0-9]+)\.([0-9]+) ]] && ((BASH_REMATCH[1] > 1 || BASH_REMATCH[2] >= 70))
}

# The arguments that name no installed package, one a line.
missing_packages() {
    comm -23 <(printf '%s\n' "$@" | LC_ALL=C sort -u) \
        <(dpkg-query -W -f '${db:Status-Abbrev} ${Package}\n' "$@" 2>/dev/null |
            sed -n 's/^.i[^ ]* *//p' | LC_ALL=C sort -u)
}

# Install those of the named packages that are missing, and a cargo that is recent enough where there is none.
require_packages() {
    local wanted=("$@") missing
    if ! has_recent_cargo; then
        wanted+=(cargo-web rustc-web)
        PATH=/usr/bin:$PATH # before an older cargo that lies elsewhere
    fi
    command -v dpkg-query >/dev/null ||
        die "This is no Debian system; install what these Debian packages hold, then build with CMake: ${wanted[*]}"

    mapfile -t missing < <(missing_packages "${wanted[@]}")
    ((${#missing[@]} > 0)) || return 0
    local as_root=()
    if ((EUID != 0)); then
        command -v sudo >/dev/null ||
            die "These packages are missing, and there is neither root nor sudo to install them: ${missing[*]}"
        as_root=(sudo)
    fi
    echo "Installing ${missing[*]}"
    "${as_root[@]}" apt-get update -q || die "apt-get update failed; these packages are missing: ${missing[*]}"
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -q -y --no-install-recommends "${missing[@]}" ||
        die "These packages are missing and could not be installed: ${missing[*]}"
    hash -r
}

# configure PRESET [CMAKE-ARGUMENT...]
configure() {
    (cd "$project_root" && cmake --preset "$@")
}

# build PRESET [CMAKE-ARGUMENT...]: compile what is not up to date.
build() {
    (cd "$project_root" && cmake --build --preset "$@")
}
