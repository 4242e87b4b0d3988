#!/usr/bin/env bash
# Time and memory of kestrel-icon on icon libraries beside wrestool, and beside programs that only
# move the same bytes, in turns on files in memory:
# library_time.sh [build folder] [rounds] [program or library]...
# Uses libraries of 1,000 and 8,000 icons, then the files that are named. Fails when a target is
# missed; the floors are no targets.
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
bin=$(realpath "${1:-$root/build}")/bin
rounds=${2:-9}
mapfile -t files < <(realpath -e -- "${@:3}" 2>&-)
scratch=$(mktemp -d -p /dev/shm)
trap 'rm -rf "$scratch"' EXIT
cd "$scratch"
missed=0
kestrel=$bin/kestrel-icon
floor=$bin/file_floor

Median() { cut -d' ' -f"$1" times.txt | sort -n | sed -n "$(((rounds + 1) / 2))p"; }

# Check <what> <ratio> <largest>: no target where that is empty.
Check() {
    printf '  %s: %s%s\n' "$1" "$2" "${3:+, at most $3}"
    [[ -z $3 ]] || awk "BEGIN {exit !($2 <= $3)}" || missed=1
}

# Turns <largest ratio> <command>... -- <command>...: each time with an empty folder "out". A
# second program that is not installed is told of and passed over.
Turns() {
    local most=$1 second="$*"
    second=${second##* -- }
    shift
    if ! command -v "${second%% *}" >/dev/null; then
        echo "not measured: $second"
        return
    fi
    for ((round = 0; round < rounds; ++round)); do
        rm -rf out
        mkdir out
        "$bin/run_times" 1 "$@"
    done >times.txt
    own=$(Median 1) other=$(Median 2)
    echo "${*//"$bin/"/}: $own us, $other us; $(Median 3) KB, $(Median 4) KB"
    Check ratio "$(awk "BEGIN {printf \"%.3f\", $own / $other}")" "$most"
}

# Library <file> <icons> <largest ratio for all icons>
Library() {
    Turns 0.25 "$kestrel" info "$1" -- wrestool -l "$1"
    Turns '' "$kestrel" info "$1" -- "$floor" map "$1"
    Turns "$3" "$kestrel" extract --into out "$1" -- wrestool -x -t14 -o out "$1"
    all=$own
    Turns '' "$kestrel" extract --into out "$1" -- "$floor" copy "$1" out "$2"
}

"$bin/icon_library" small.dll 1000
"$bin/icon_library" large.dll 8000
Library small.dll 1000 0.2
small=$all
Library large.dll 8000 0.03
Check '8,000 icons, times 1,000' "$(awk "BEGIN {printf \"%.2f\", $all / $small}")" 9
Turns 0.2 "$kestrel" extract --into out --icon 7000 large.dll -- \
    wrestool -x -t14 -n7000 -o out large.dll
cp "$root/samples/kestrel.ico" in.ico
Turns 0.35 "$kestrel" thumbnail in.ico out/own.png -- \
    gdk-pixbuf-thumbnailer -s 128 in.ico out/other.png
Turns '' "$kestrel" thumbnail in.ico out/own.png -- "$floor" copy in.ico out 1
"$bin/icon_library" program.dll 4
Turns 0.05 "$kestrel" thumbnail program.dll out/own.png -- \
    exe-thumbnailer -s 128 program.dll out/other.png
for file in "${files[@]}"; do
    cp "$file" real
    Turns '' "$kestrel" info real -- wrestool -l real
    Turns '' "$kestrel" extract --into out real -- wrestool -x -t14 -o out real
done
exit "$missed"
