#!/usr/bin/env bash
# Each header compiles alone: headers.sh <compiler> <file with the compiler's flags>.
set -euo pipefail
cd "$(dirname "$0")/../../src"
export compiler=$1 flags=$2

CompileAlone() {
    printf '#include "%s"\n' "$1" |
        "$compiler" "@$flags" -fsyntax-only -x c++ - 2>&1 || {
        echo "FAILED: $1 does not compile alone"
        return 1
    }
}
export -f CompileAlone

{
    find . -name '*.h' -printf '%P\0'
    cd .. && find cli -name '*.h' -print0
} | sort -z |
    xargs -0 -r -n 1 -P "$(nproc)" bash -c 'CompileAlone "$1"' bash
