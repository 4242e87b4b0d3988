#!/usr/bin/env bash
# Time and memory of kestrel-icon over many icon files beside icotool, ImageMagick and programs that
# only move the same bytes, in turns, on files in memory and on a disk:
# batch_time.sh [build folder] [rounds] [folder on a disk]
# Fails when a target is missed; a busy machine misses that of -j 2.
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
build=$(realpath "${1:-$root/build}")
bin=$build/bin
rounds=${2:-5}
disk=$(mktemp -d -p "$(realpath "${3:-$build}")")
scratch=$(mktemp -d -p /dev/shm)
trap 'rm -rf "$scratch" "$disk"' EXIT
cd "$scratch"
missed=0
kestrel=$bin/kestrel-icon

Median() { cut -d' ' -f"$1" times.txt | sort -n | sed -n "$(((rounds + 1) / 2))p"; }

# Check <what> <value> <largest>: no target where that is empty.
Check() {
    printf '  %s: %s%s\n' "$1" "$2" "${3:+, at most $3}"
    [[ -z $3 ]] || awk "BEGIN {exit !($2 <= $3)}" || missed=1
}

# Turns <largest ratio> <command>... -- <command>...: each round with empty folders "out" and
# "other". Leaves own and other, in microseconds, and memory, in KB.
Turns() {
    local most=$1
    shift
    for ((round = 0; round < rounds; ++round)); do
        rm -rf out other
        mkdir out other
        "$bin/run_times" 1 "$@"
    done >times.txt
    own=$(Median 1) other=$(Median 2) memory=$(Median 3)
    echo "${*//"$bin/"/}: $((own / 1000)) ms, $((other / 1000)) ms; $memory KB"
    Check ratio "$(awk "BEGIN {printf \"%.3f\", $own / $other}")" "$most"
}

# Ratio <time> <time>
Ratio() { awk "BEGIN {printf \"%.2f\", $1 / $2}"; }

# MakeIcons <thousands>: icons/, each of its own pixels in 32 x 32, and a list for each size of run.
MakeIcons() {
    "$bin/icon_library" icons.dll 10000
    for ((i = 0; i < $1 / 10; ++i)); do
        ln -sf icons.dll "part$i.dll"
    done
    "$kestrel" extract --into stored part*.dll
    find stored -type f >list
    "$kestrel" convert --into icons --format ico --files-from list
    rm -rf stored
    find icons -type f | sort -R --random-source=icons.dll >list100000
    for count in 1000 10000; do
        head -n "$count" list100000 >"list$count"
    done
}

# Growth <job>...: 1,000, 10,000 and 100,000 files in one run each, memory and what 100,000 take to
# 1,000.
Growth() {
    local first='' rounds=1
    for count in 1000 10000 100000; do
        Turns '' "$@" "list$count" -- "$bin/file_floor" each "list$count" other 300
        first=${first:-$own}
    done
    Check 'memory of 100,000 files in KB' "$memory" 65536
    Check '100,000 files, times 1,000' "$(Ratio "$own" "$first")" 130
}

MakeIcons 100
uptime
echo "files in memory, $(nproc) processors"
convert=("$kestrel" convert --format png --into out --files-from)
for count in 1000 10000; do
    Turns 0.25 "${convert[@]}" "list$count" -- xargs -a "list$count" icotool -x -o other
    Turns '' "${convert[@]}" "list$count" -- \
        xargs -a "list$count" mogrify-im6.q16 -format png -path other
    size=$(cat out/* | wc -c)
    Turns 2 "${convert[@]}" "list$count" -- \
        "$bin/file_floor" each "list$count" other $((size / count))
    info=("$kestrel" info --json --files-from "list$count")
    Turns '' "${info[@]}" -- xargs -a "list$count" icotool -l
    Turns 1.5 "${info[@]}" -- xargs -a "list$count" cat
done
Growth "${convert[@]}"
Turns 0.588 "$kestrel" convert -j 2 --format png --into out --files-from list100000 -- \
    "$kestrel" convert -j 1 --format png --into other --files-from list100000

echo 'files on a disk'
cp -r icons list* "$disk"
sync "$disk"
cd "$disk"
Growth "${convert[@]}"
Growth "$kestrel" apply mnuRotateOpts1 --in-place --files-from
exit "$missed"
