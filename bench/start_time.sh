#!/usr/bin/env bash
# Start-up time and memory of the program beside the smallest Qt window of its size, in turns on a
# private display: start_time.sh [rounds] [build folder]. Times run from exec to the mapped window.
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
# shellcheck source=tools/display.sh
source "$root/tools/display.sh"
rounds=${1:-15}
bin=${2:-$root/build}/bin

scratch=$(mktemp -d)
trap 'StopDisplay; rm -rf "$scratch"' EXIT
trap 'exit 130' INT
export HOME=$scratch/home XDG_CONFIG_HOME=$scratch/config XDG_DATA_HOME=$scratch/data
export XDG_RUNTIME_DIR=$scratch/run XDG_CACHE_HOME=$scratch/cache QT_QPA_PLATFORM=xcb
unset DBUS_SESSION_BUS_ADDRESS
mkdir -m 700 "$HOME" "$XDG_RUNTIME_DIR"
StartDisplay "$scratch"

# A copy: the program may keep settings beside itself.
cp "$bin/KestrelIconEditor" "$bin/smallest_window" "$scratch"

# Median <file> <column>
Median() { cut -d' ' -f"$2" "$1" | sort -n | awk '{v[NR] = $1} END {print v[int((NR + 1) / 2)]}'; }

# One start of each before the measured ones warms the disk cache and makes the settings.
for ((round = 0; round <= rounds; ++round)); do
    editor=$("$bin/map_watch" 'KestrelIconEditor - ' "$scratch/KestrelIconEditor")
    smallest=$("$bin/map_watch" 'smallest window' "$scratch/smallest_window")
    [[ $round -gt 0 ]] || continue
    echo "$editor" >>"$scratch/editor.times"
    echo "$smallest" >>"$scratch/smallest.times"
done

editorMs=$(Median "$scratch/editor.times" 1)
smallestMs=$(Median "$scratch/smallest.times" 1)
printf 'start to mapped window, median of %d: %s ms; smallest Qt window: %s ms; ratio %s\n' \
    "$rounds" "$editorMs" "$smallestMs" "$(awk "BEGIN {printf \"%.2f\", $editorMs / $smallestMs}")"
printf 'peak resident memory, median: %s kB; smallest Qt window: %s kB\n' \
    "$(Median "$scratch/editor.times" 2)" "$(Median "$scratch/smallest.times" 2)"
