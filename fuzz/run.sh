#!/usr/bin/env bash
# Runs every fuzzer that was built, one after the other. What one finds stops it and lies beside it, as NAME-crash-...
#
# usage: fuzz/run.sh SECONDS     of each
set -uo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../build/fuzz" || exit 1
export ASAN_OPTIONS=detect_leaks=1:allocator_may_return_null=1
status=0
while read -r name arguments; do
    echo "== $name"
    # shellcheck disable=SC2086  # they are several
    "./$name" $arguments -max_total_time="$1" </dev/null 2>"$name.log" || status=1
    grep -o "cov: [0-9]*" "$name.log" | tail -1
    grep -E "^stat::number_of_executed_units|SUMMARY|Test unit written" "$name.log"
done <fuzzers.txt
exit "$status"
