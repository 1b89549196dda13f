#!/usr/bin/env bash
# Names every include that the link line of its folder does not cover, and every OpenGL call outside gpu/ and render/.
#
# usage: check-includes.sh TABLE FOLDER
#   TABLE   a line a module: its folder, then those that it may include, as paths below FOLDER
# Exit status 1 when there is something to name.
set -euo pipefail
table=$1 root=${2%/}

find "$root" \( -name '*.h' -o -name '*.cpp' \) -print0 | LC_ALL=C sort -z |
    xargs -0 awk -v table="$table" -v root="$root" '
    function moduleOf(path) { # the innermost folder that is a module
        while (sub("/[^/]*$", "", path)) if (path in modules) return path
        return ""
    }
    function complain(what) { print FILENAME ":" FNR ": " what; ++faults }
    BEGIN {
        while ((getline line < table) > 0) {
            count = split(line, names, " ")
            modules[names[1]]
            for (i = 1; i <= count; ++i) allowed[names[1], names[i]]
        }
    }
    FNR == 1 {
        own = moduleOf(substr(FILENAME, length(root) + 2))
        if (own == "") complain("belongs to no module")
    }
    /^[ \t]*#[ \t]*include[ \t]*"/ {
        split($0, parts, "\"")
        other = moduleOf(parts[2])
        if (other == "") complain("\"" parts[2] "\" names no module of ours")
        else if (!((own, other) in allowed))
            complain(own " includes \"" parts[2] "\", but its link line does not name " other)
    }
    own != "gpu" && own != "render" {
        code = $0
        sub("//.*", "", code)
        if (code ~ /(^|[^A-Za-z0-9_])gl[A-Z][A-Za-z0-9]*[ \t]*\(/)
            complain(own " calls OpenGL; only gpu and render may")
    }
    END { exit faults > 0 }' || exit 1
