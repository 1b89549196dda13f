#!/usr/bin/env bash
# Installs what the game needs (Debian, once), builds what is not up to date, and starts the game.
#
# usage: ./play.sh [OPTION...]   the game's own options; see ./play.sh --help
set -euo pipefail
# shellcheck source=scripts/setup.sh
source "$(dirname "${BASH_SOURCE[0]}")/scripts/setup.sh"

require_packages "${play_packages[@]}"
[[ -e $project_root/build/release/build.ninja ]] || configure release
build release --target quackdash

if [[ -z $*${DISPLAY:-}${WAYLAND_DISPLAY:-} ]]; then
    die 'The game is built, but there is no display to show it on; a virtual one serves (packages xvfb, xauth):' \
        'xvfb-run -a -s "-screen 0 1400x900x24" ./play.sh'
fi
exec "$project_root/build/release/quackdash" "$@"
