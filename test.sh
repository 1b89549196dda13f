#!/usr/bin/env bash
# Installs what game and tests need (Debian, once), builds both with warnings as errors, and runs the tests. Those that
# need a window bring a virtual display of their own. The exit status is CTest's.
#
# usage: ./test.sh [--sanitize] [CTEST-ARGUMENT...]
#        ./test.sh --fuzz SECONDS
#   --sanitize  builds and tests with AddressSanitizer and UndefinedBehaviorSanitizer
#   --fuzz      builds the fuzzers of everything that reads files, and runs each that long
#   ./test.sh -L unit runs the tests of one label: unit, gl, e2e or package
set -euo pipefail
# shellcheck source=scripts/setup.sh
source "$(dirname "${BASH_SOURCE[0]}")/scripts/setup.sh"

if [[ ${1:-} == --fuzz ]]; then
    [[ ${2:-} =~ ^[0-9]+$ ]] || die "usage: ./test.sh --fuzz SECONDS"
    require_packages "${play_packages[@]}" "${test_packages[@]}" clang
    configure fuzz -DQUACKDASH_WERROR=ON
    build fuzz
    exec "$project_root/fuzz/run.sh" "$2"
fi

preset=release
if [[ ${1:-} == --sanitize ]]; then
    preset=asan
    shift
fi

require_packages "${play_packages[@]}" "${test_packages[@]}"
configure "$preset" -DQUACKDASH_WERROR=ON
build "$preset"

cd "$project_root"
unset WAYLAND_DISPLAY # windows belong on the virtual display
exec ctest --preset "$preset" --parallel "$(nproc)" "$@"
