#!/usr/bin/env bash
# What the magnifier costs at 400 x 300 pixels and 200 %, pointer still and moved 20 times a second,
# in turns beside kmag and beside a bare Qt program that grabs the region every 50 ms:
# magnifier_cost.sh [rounds] [seconds] [build folder]. Costs are those of the program and of the X
# server together. Wants the packages kmag, dbus and at least a quiet machine.
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
# shellcheck source=tools/display.sh
source "$root/tools/display.sh"
rounds=${1:-3}
seconds=${2:-6}
bin=${3:-$root/build}/bin

scratch=$(mktemp -d)
program=
End() {
    [[ -z $program ]] || kill "$program" 2>/dev/null || true
    StopDisplay
    rm -rf "$scratch"
}
trap End EXIT
trap 'exit 130' INT
export HOME=$scratch/home XDG_CONFIG_HOME=$scratch/config XDG_DATA_HOME=$scratch/data
export XDG_RUNTIME_DIR=$scratch/run XDG_CACHE_HOME=$scratch/cache QT_QPA_PLATFORM=xcb NO_AT_BRIDGE=1
unset DBUS_SESSION_BUS_ADDRESS
mkdir -m 700 "$HOME" "$XDG_RUNTIME_DIR" "$XDG_CONFIG_HOME"
StartDisplay "$scratch"
convert -size 1024x768 xc:gray50 +noise Random "$scratch/wall.png"
# It sets the wallpaper and then fails all the same.
display -window root "$scratch/wall.png" || true
cp "$bin/KestrelIconEditor" "$bin/region_grab" "$scratch"
printf '[Settings]\nZoom=200\n[Positions]\nfrmZoom=9000,5700,6150,5100,False\n' \
    >"$scratch/KestrelIconEditor.ini"
printf '[General Options]\nMode=followmouse\nStaysOnTop=false\n' >"$XDG_CONFIG_HOME/kmagrc"

# Spent <process>: nanoseconds of processor time of it and of the X server.
Spent() {
    local file sum=0 time
    for file in /proc/{"$1","$displayServer"}/task/*/schedstat; do
        read -r time _ <"$file" && sum=$((sum + time))
    done
    echo "$sum"
}
# Share <process> <command> [argument...]: the share of one processor while the command runs.
Share() {
    local start=$(($(date +%s%N))) before after
    before=$(Spent "$1")
    "${@:2}"
    after=$(Spent "$1")
    awk "BEGIN {printf \"%.2f\n\", ($after - $before) * 100 / ($(date +%s%N) - $start)}"
}
MovePointer() {
    local step moves=()
    for ((step = 0; step < $1 * 20; ++step)); do
        moves+=(mousemove $((150 + step * 7 % 100)) $((120 + step * 3 % 50)) sleep 0.05)
    done
    xdotool "${moves[@]}"
}
# Measure <name> <title pattern> <command> [argument...]: a line "still moving kB" to its file.
Measure() {
    local name=$1 title=$2 still moving
    "${@:3}" >"$scratch/$name.log" 2>&1 </dev/null &
    program=$!
    WaitFor 20 IsWindowTitled "$title"
    [[ $name != magnifier ]] || OpenMagnifier
    [[ $name != kmag ]] || xdotool windowsize "$(WindowTitled "$title")" 414 369
    xdotool windowmove "$(WindowTitled '*[gkz][rmo][ao]*')" 590 370 mousemove 200 150
    sleep 1.5
    still=$(Share "$program" sleep "$seconds")
    moving=$(Share "$program" MovePointer "$seconds")
    echo "$still $moving" >>"$scratch/$name.shares"
    kill "$program"
    wait "$program" 2>/dev/null || true
    program=
}
OpenMagnifier() {
    local memory
    xdotool mousemove --window "$(WindowTitled 'KestrelIconEditor - Untitled')" 400 420
    sleep 1
    memory=$(Memory)
    xdotool mousemove --window "$(WindowTitled 'KestrelIconEditor - Untitled')" 326 45 sleep 0.1 click 1
    WaitFor 20 IsWindowTitled '*Screen Zoom'
    xdotool mousemove 300 220
    sleep 1
    echo $(($(Memory) - memory)) >>"$scratch/memory"
}
# Private memory of the program, in kB.
Memory() { awk '/^Private/ {sum += $2} END {print sum}' "/proc/$program/smaps_rollup"; }
Median() { cut -d' ' -f"$2" "$scratch/$1" | sort -n | awk '{v[NR] = $1} END {print v[int((NR + 1) / 2)]}'; }

for ((round = 0; round < rounds; ++round)); do
    Measure magnifier 'KestrelIconEditor - Untitled' "$scratch/KestrelIconEditor"
    Measure bare 'region grab' "$scratch/region_grab"
    if command -v kmag >/dev/null; then Measure kmag 'KMagnifier' kmag; fi
done
for kind in 1:still 2:moving; do
    own=$(Median magnifier.shares "${kind%:*}")
    echo "pointer ${kind#*:}: magnifier $own % of a processor, median of $rounds"
    for other in bare kmag; do
        [[ -s $scratch/$other.shares ]] || continue
        share=$(Median "$other.shares" "${kind%:*}")
        echo "    $other $share %, ratio $(awk "BEGIN {printf \"%.2f\", $own / $share}")"
    done
done
echo "memory added: $(Median memory 1) kB"
