#!/usr/bin/env bash
# The programs are built with the protections that their compiler has: hardening.sh <program>...
set -euo pipefail

# Expect <pattern> <what it shows> <command> [argument...]: the output has a line like that.
Expect() {
    local pattern=$1 what=$2
    shift 2
    grep -qE -- "$pattern" <("$@" 2>/dev/null) || { echo "$program: $what is missing" >&2; exit 1; }
}

for program in "$@"; do
    Expect 'Type: +DYN' 'position independence' readelf -hW "$program"
    Expect 'GNU_RELRO' 'RELRO' readelf -lW "$program"
    Expect 'Flags:.*NOW.*PIE' 'BIND_NOW' readelf -dW "$program"
    Expect 'GNU_STACK .* RW ' 'the stack without code' readelf -lW "$program"
    # A static program has both from the libraries in it, whatever its own code does.
    if [[ $(readelf -lW "$program") == *INTERP* ]]; then
        Expect '__stack_chk_fail@' 'the stack protector' readelf -sW "$program"
        Expect '__snprintf_chk@' 'checked copying' readelf -sW "$program"
    fi
    if [[ $(uname -m) == x86_64 ]]; then
        main=$(readelf -sW "$program" | awk '$8 == "main" {print "0x" $2}')
        Expect 'endbr64' 'the mark of jump targets' \
            objdump -d --start-address="$main" --stop-address="$((main + 4))" "$program"
        # Large frames touch every page of theirs.
        Expect 'orq .*0x0,\(%rsp\)' 'probing of the stack' objdump -d "$program"
    fi
done
