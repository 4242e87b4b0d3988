#!/usr/bin/env bash
# Time of kestrel-icon from start to end beside other programs that do the like, in turns on files
# in memory: cli_time.sh [build folder] [rounds]. Fails when a target is missed.
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
bin=$(realpath "${1:-$root/build}")/bin
rounds=${2:-400}
scratch=$(mktemp -d -p /dev/shm)
trap 'rm -rf "$scratch"' EXIT
cd "$scratch"
cp "$root/samples/kestrel.ico" in.ico
missed=0

# Pair <largest ratio> <command of kestrel-icon> <command of another program>
Pair() {
    local most=$1 own other ownTime otherTime ratio
    read -ra own <<<"$2"
    read -ra other <<<"$3"
    read -r ownTime otherTime _ < <(
        "$bin/run_times" "$rounds" "$bin/kestrel-icon" "${own[@]}" -- "${other[@]}")
    ratio=$(awk "BEGIN {printf \"%.3f\", $ownTime / $otherTime}")
    printf 'kestrel-icon %s: %s us; %s: %s us; ratio %s, at most %s\n' \
        "$2" "$ownTime" "$3" "$otherTime" "$ratio" "$most"
    awk "BEGIN {exit !($ratio <= $most)}" || missed=1
}

Pair 0.1 'apply mnuEmboss in.ico out.ico' 'convert-im6.q16 in.ico -emboss 1 magick.ico'
Pair 0.7 'convert in.ico out.png' 'icotool -x -o icotool.png in.ico'
Pair 0.7 'info in.ico' 'icotool -l in.ico'
exit "$missed"
