#!/usr/bin/env bash
# Takes the pictures of docs/images anew, from the game as it is built here (./test.sh builds it, or the preset release
# where GoogleTest is installed). The tests compare the game with them. Works without a display.
#
# usage: tools/screenshots.sh [NAME]   # such as duel or leader; all of them unless given
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
mkdir -p "$root/docs/images"
cd "$root/build/release"
ALSOFT_DRIVERS=null xvfb-run -a -s "-screen 0 1280x1024x24" ./take_screenshots "$root/docs/images" "$@" >screenshots.log
