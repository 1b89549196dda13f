#!/usr/bin/env bash
# Runs every command of the README as it stands, or says what else runs it; a command that is not known here is an
# error. Wants what test.sh installs, and a release build.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
scratch=$(mktemp -d)
trap 'rm -r "$scratch"' EXIT
unset DISPLAY WAYLAND_DISPLAY

die() {
    printf '%s\n' "$*" >&2
    exit 1
}

# play COMMAND: it must bring the game to its first screen; then it is told to end.
play() {
    local status=1 log=$scratch/log
    : >"$log" # no traces of an earlier game
    setsid bash -c "$1" >>"$log" 2>&1 </dev/null &
    local process=$!
    for ((i = 0; i < 600; ++i)); do
        if grep -q 'Enter RegisterPlayersGamestate' "$log"; then status=0; fi
        if ((status == 0)) || ! kill -0 "$process" 2>/dev/null; then break; fi
        sleep 0.2
    done
    kill -- "-$process" 2>/dev/null || true
    wait "$process" 2>/dev/null || true
    ((status == 0)) || die "$1 does not start the game:" "$(tail -n 20 "$log")"
}

on_display() {
    printf 'xvfb-run -a -s "-screen 0 1400x900x24" bash -c %q' "$1"
}

# Commands are the lines that stand four columns in, and a few within the text.
# shellcheck disable=SC2016  # backticks are the README's
mapfile -t commands < <(sed -n 's/^    \([^ ].*\)/\1/p' README.md
    grep -o '`[^`]*cmake --install [^`]*`\|`./test.sh [^`]*`' README.md | tr -d '`')
((${#commands[@]} > 0)) || die 'The README has no commands'

for command in "${commands[@]}"; do
    echo "== $command"
    # shellcheck disable=SC2088  # the tilde is for the command to expand
    case $command in
        ./test.sh) grep -qx '\./test\.sh' .ci/run || die 'CI does not run it' ;;
        ./play.sh* | build/release/quackdash) play "$(on_display "$command")" ;;
        'xvfb-run '*./play.sh) play "$command" ;;
        'tar xf '*) HOME=$scratch bash -c "$command" ;;
        '~/quackdash-'*) HOME=$scratch play "$(on_display "$command")" ;;
        'sudo apt install '*) bash -c "apt-get install --simulate ${command#sudo apt install}" ;; # changes nothing
        'sudo cmake --install '*)
            DESTDIR=$scratch/root bash -c "${command#sudo }" && [[ -x $scratch/root/usr/local/games/quackdash ]]
            ;;
        './test.sh -L unit' | 'cmake --preset '* | 'cmake --build '*) bash -c "$command" ;;
        *' = '*) # a line of the settings file
            echo "$command" >"$scratch/settings"
            ! build/release/quackdash --config "$scratch/settings" 2>&1 | grep "$scratch/settings:1: " >&2 ||
                die 'This is no setting'
            ;;
        *) die "Nothing runs this command of the README: $command" ;;
    esac
done >"$scratch/output" || {
    tail -n 40 "$scratch/output"
    exit 1
}
grep '^== ' "$scratch/output"

# What the README says that the game says.
# shellcheck disable=SC2016  # backticks are the README's
mapfile -t quotes < <(sed -n 's/^| `ERROR \\| \(.*\)` |.*/\1/p' README.md)
((${#quotes[@]} > 0)) || die 'The README quotes no log line'
for quote in "${quotes[@]}"; do
    grep -rqF "logLine(0) << \"$quote" src || die "The README quotes what the game does not say: $quote"
done

mapfile -t links < <(grep -oh '](\([^)#]*\))' README.md CONTRIBUTING.md THIRD_PARTY.md docs/*.md |
    sed 's/^](//; s/)$//' | grep -v '://' | sort -u)
for link in "${links[@]}"; do
    [[ -e $link || -e docs/$link ]] || die "A page refers to $link, which is not there"
done
