#!/usr/bin/env bash
# Checks the form of the sources: C++ by clang-format, no line of code, script or shader over 120 columns; and the
# habits of the C++ sources by clang-tidy. The tests hold every source to its form.
#
# usage: scripts/check.sh [--format | --fix] [FILE...]
#   FILE...   default: every C++ file of the repository
#   --format  the form only, which takes a second; clang-tidy takes some per file
#   --fix     lets clang-format rewrite the files first; a table that is laid out by hand stands between clang-format
#             off and on
set -euo pipefail
# shellcheck source=scripts/setup.sh
source "$(dirname "${BASH_SOURCE[0]}")/setup.sh"
cd "$project_root"

format=(clang-format --dry-run --Werror)
mode=${1:-}
[[ $mode != --fix ]] || format=(clang-format -i)
[[ $mode != --* ]] || shift
files=("$@")
wide=("${files[@]}")
if ((${#files[@]} == 0)); then
    mapfile -t files < <(find src testing tests bench fuzz tools -name '*.h' -o -name '*.cpp' | LC_ALL=C sort)
    mapfile -t wide < <(find src testing tests bench fuzz tools scripts cmake data/Shader ./*.sh -type f \( \
        -name '*.h' -o -name '*.cpp' -o -name '*.sh' -o -name '*.py' -o -name '*.cmake' \
        -o -name CMakeLists.txt -o -path 'data/*' \))
fi

status=0
require_packages "${play_packages[@]}" "${test_packages[@]}"
"${format[@]}" "${files[@]}" || status=1
awk 'length > 120 { print FILENAME ":" FNR ": wider than 120 columns"; wide = 1 } END { exit wide }' "${wide[@]}" ||
    status=1
[[ $mode != --format ]] || exit "$status"

require_packages clang-tidy
[[ -e build/release/build.ninja ]] || configure release
cmake -S . -B build/release -DCMAKE_EXPORT_COMPILE_COMMANDS=ON >/dev/null

# clang-tidy sees headers through the files that include them. It does not know every option of g++. Fuzzers belong to
# another preset.
mapfile -t sources < <(printf '%s\n' "${files[@]}" | grep '\.cpp$' | grep -v '^fuzz/')
((${#sources[@]} == 0)) || printf '%s\0' "${sources[@]}" |
    xargs -0 -n 1 -P "$(nproc)" clang-tidy --quiet -p build/release --extra-arg=-Wno-unknown-warning-option || status=1
exit "$status"
