#!/usr/bin/env bash
# Renews tests/recordings with the game as it is built here (preset release; needs GoogleTest): plays the matches anew,
# which takes eight minutes, and notes how they end. With --hashes the recordings stay, and only the lines beside them
# are renewed: after a wanted change of the rules. Works without a display.
#
# usage: tools/recordings.sh [--hashes | NAME]   # NAME: duel, four-pads or sixteen; all of them unless given
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
folder=$root/tests/recordings
cd "$root/build/${PRESET:-release}"
if [[ ${1:-} != --hashes ]]; then
    ALSOFT_DRIVERS=null ./play_recordings "$folder" "$@"
    if [[ $# -gt 0 ]]; then rm -f "$folder/$1.hashes"; else rm -f "$folder"/*.hashes; fi
fi
./hash_recordings "$folder"
