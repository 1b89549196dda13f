#!/usr/bin/env bash
# Proves that the check sees faults, and sees none where there are none. usage: check-includes-test.sh CHECK
set -euo pipefail
check=$1
folder=$(mktemp -d)
trap 'rm -r "$folder"' EXIT
mkdir -p "$folder"/src/{base,gpu,app/rules}
printf 'base\ngpu base\napp/rules base\napp gpu\n' >"$folder/table"

# expect NUMBER WHAT: so many complaints about what lies in the tree now.
expect() {
    local status=0 complaints
    complaints=$("$check" "$folder/table" "$folder/src") || status=$?
    [[ $(grep -c . <<<"$complaints") == "$1" && $status == $(($1 > 0)) ]] || {
        printf '%s: expected %s complaints; status %s and these:\n%s\n' "$2" "$1" "$status" "$complaints"
        exit 1
    }
}

printf '#include "base/Log.h"\n#include <GL/glew.h>\nvoid f() { glClear(0); }\n' >"$folder/src/gpu/Draw.cpp"
printf '#include "app/Main.h"\n#include "gpu/Draw.h"\n// like glClear()\nvoid f() { glfwInit(); }\n' \
    >"$folder/src/app/Main.cpp"
expect 0 'a clean tree'
printf '#include "gpu/Draw.h"\n' >"$folder/src/base/Log.h"
expect 1 'upwards'
printf '  #  include "base/Log.h"\n' >"$folder/src/app/Other.h"
expect 2 'what only a library of a library names'
printf '#include "app/Main.h"\n' >"$folder/src/app/rules/Rules.cpp"
expect 3 'a folder into the one around it'
printf '#include "Near.h"\nvoid f() { glFlush(); }\n' >"$folder/src/app/rules/Rules.h"
expect 5 'an include without a module, and a call'
