#!/usr/bin/env bash
# How long a capture takes: from Ctrl+Q until the frozen screen with its frame is shown, beside
# gnome-screenshot -a from its start to its own picking, in turns; and from the click to the icon in
# the editing grid. On a private screen of 1920 x 1080: capture_time.sh [rounds] [build folder].
# Wants dbus-daemon, feh and gnome-screenshot. Times begin where xdotool is started, which the last line tells.
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
# shellcheck source=tools/display.sh
source "$root/tools/display.sh"
rounds=${1:-15}
bin=${2:-$root/build}/bin

scratch=$(mktemp -d)
editor='' bus=''
End() {
    kill $editor $bus 2>/dev/null || true
    StopDisplay
    rm -rf "$scratch"
}
trap End EXIT
trap 'exit 130' INT
export HOME=$scratch/home XDG_CONFIG_HOME=$scratch/config XDG_DATA_HOME=$scratch/data
export XDG_RUNTIME_DIR=$scratch/run XDG_CACHE_HOME=$scratch/cache QT_QPA_PLATFORM=xcb NO_AT_BRIDGE=1
mkdir -m 700 "$HOME" "$XDG_RUNTIME_DIR"
dbus-daemon --session --nofork --address="unix:path=$XDG_RUNTIME_DIR/bus" \
    >/dev/null 2>&1 &
bus=$!
export DBUS_SESSION_BUS_ADDRESS=unix:path=$XDG_RUNTIME_DIR/bus
StartDisplay "$scratch" 1920x1080
convert -size 1920x1080 xc:'#405060' +noise Random "PNG24:$scratch/wall.png"
feh --no-fehbg --bg-center "$scratch/wall.png"

# A copy: the program may keep settings beside itself.
cp "$bin/KestrelIconEditor" "$scratch"
"$scratch/KestrelIconEditor" 2>/dev/null &
editor=$!
WaitFor 20 IsWindowTitled 'KestrelIconEditor - *'
sleep 1
window=$(WindowTitled 'KestrelIconEditor - *')
read -r left top < <(xwininfo -id "$window" | awk '/Absolute/ {print $NF}' | xargs)

# The square begins at (300, 200); its pixel (5, 5) is seen in the middle of a cell.
shown=$(convert "$scratch/wall.png" -crop 1x1+305+205 -depth 8 rgb:- | od -An -tx1 | tr -d ' ')
cell=("$((left + 67))" "$((top + 124))")
# The frame's white line.
frame=(298 210 ffffff)

# Watch <file> <program> [argument...]: the time that the program prints first, into the file.
Watch() { ("${@:2}" || true) 2>/dev/null | cut -d' ' -f1 >>"$scratch/$1.times"; }
for ((round = 0; round < rounds; ++round)); do
    xdotool mousemove 300 200
    sleep 0.3
    Watch picking "$bin/pixel_watch" "${frame[@]}" xdotool key --delay 0 ctrl+q
    sleep 0.3
    Watch icon "$bin/pixel_watch" "${cell[@]}" "$shown" xdotool click 1
    sleep 0.3
    xdotool key ctrl+z
    # Its window is mapped where nobody sees it. Asked to close, it would stay for ever.
    Watch other "$bin/map_watch" Screenshot "$(command -v timeout)" 2 gnome-screenshot -a
    sleep 0.3
    start=${EPOCHREALTIME/./}
    xdotool getmouselocation >/dev/null
    echo $((${EPOCHREALTIME/./} - start)) | awk '{print $1 / 1000}' >>"$scratch/xdotool.times"
done

Median() { sort -n "$scratch/$1.times" | awk '{v[NR] = $1} END {print v[int((NR + 1) / 2)]}'; }
picking=$(Median picking) other=$(Median other)
printf 'Ctrl+Q to picking, median of %d: %s ms; gnome-screenshot -a: %s ms; ratio %s\n' "$rounds" \
    "$picking" "$other" "$(awk "BEGIN {printf \"%.2f\", $picking / $other}")"
printf 'click to icon: %s ms\n' "$(Median icon)"
printf 'xdotool alone: %s ms\n' "$(Median xdotool)"
