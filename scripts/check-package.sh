#!/usr/bin/env bash
# Makes the packages of a release build and checks them: Debian's rules, the metadata, what is inside, whether its
# dependencies can be had.
#
# usage: scripts/check-package.sh [BUILD-FOLDER]
#   BUILD-FOLDER  default: build/release. The packages are left there.
set -euo pipefail
project_root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
longest_summary=35 # characters; more are cut off in some software centres
build_folder=$(cd "${1:-$project_root/build/release}" && pwd)

die() {
    printf '%s\n' "$*" >&2
    exit 1
}

# Without a word of warning, and as software centres show it: what they cut off must not matter, every picture is there.
check_metadata() {
    local metainfo entry said summary image
    metainfo=$(echo "$project_root"/packaging/*.metainfo.xml) entry=$project_root/packaging/quackdash.desktop
    said=$(desktop-file-validate "$entry") && [[ -z $said ]] || die "$said"
    # Newer validators would like a tag for the developers that older ones do not know.
    said=$(LC_ALL=C.UTF-8 appstreamcli validate --pedantic --no-net "$metainfo") &&
        ! grep -v 'developer-name-tag-deprecated$\|developer-info-missing$' <<<"$said" | grep '^[EWIP]: ' >&2 ||
        die "$said"
    while read -r summary; do
        [[ ${#summary} -le $longest_summary ]] || die "More than $longest_summary characters: $summary"
    done < <(sed -nE 's|.*<summary[^>]*>(.*)</summary>|\1|p' "$metainfo")
    for image in $(sed -nE 's|.*<image .*/(.*)</image>|\1|p' "$metainfo"); do
        [[ -e $project_root/docs/images/$image ]] || die "There is no picture docs/images/$image"
    done
}

rm -f "$build_folder"/quackdash[-_]*.{deb,tar.gz}
cmake --build "$build_folder" --target package
debs=("$build_folder"/quackdash_*.deb) archives=("$build_folder"/quackdash-*.tar.gz)
[[ ${#debs[@]} == 1 && ${#archives[@]} == 1 ]] || die "Expected one package of each kind, got ${debs[*]} ${archives[*]}"

lintian --fail-on error --allow-root "${debs[0]}"
check_metadata
apt-get install --simulate -qq "${debs[0]}" >/dev/null || die 'The dependencies of the .deb cannot be had here'

scratch=$(mktemp -d)
trap 'rm -r "$scratch"' EXIT
dpkg-deb -x "${debs[0]}" "$scratch/deb"
mkdir "$scratch/archive"
tar xf "${archives[0]}" -C "$scratch/archive" --strip-components 1
diff -r "$scratch/deb/usr" "$scratch/archive" || die 'The .deb and the archive differ'

version=$(dpkg-deb -f "${debs[0]}" Version)
for page in "$project_root"/{CHANGELOG.md,packaging/{changelog.Debian,quackdash.6.in,*.metainfo.xml}}; do
    grep -qF "${version%-*}" "$page" || die "$page does not name version ${version%-*}"
done

cd "$scratch/deb/usr"
diff -r share/games/quackdash "$project_root/data" || die 'Not the data of this tree'
strangers=$(find . -type f ! -path './share/games/quackdash/*' ! -path './share/doc/quackdash/*' ! -name 'quackdash*' \
    ! -name '*.metainfo.xml')
[[ -z $strangers && $(ls games) == quackdash ]] ||
    die "Files that have no business in a package: $strangers $(ls games)"
zgrep -q 'mute' share/man/man6/quackdash.6.gz && grep -q -- --mute share/bash-completion/completions/quackdash ||
    die 'Manual and completion do not name the options'
[[ $(readelf -S games/quackdash) != *.symtab* ]] || die 'The program is not stripped'
for owner in 'Quackdash developers' 'NVIDIA Corporation'; do
    grep -q "^[C ].* [0-9]\{4\} $owner" share/doc/quackdash/copyright || die "The copyright file does not name $owner"
done
grep -q 'Redistributions in binary form must reproduce' share/doc/quackdash/copyright ||
    die "The SDK's licence is missing"
echo "${debs[0]##*/} and ${archives[0]##*/} are in order"
