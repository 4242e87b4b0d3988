#!/usr/bin/env bash
# Damaged files are refused by name, at little cost in memory, and the program goes on.
# shellcheck source=tests/desktop/desktop.sh
source "$(dirname "$0")/desktop.sh"
StartDesktop

kMemoryLimit=100000 # kB

# Bytes <hex>...: writes them.
Bytes() { printf '%b' "$(printf '%s' "$@" | sed 's/../\\x&/g')"; }
# Entry <width> <height> <bytes> <offset>, the numbers as little-endian hex.
Header() { Bytes 000001000100 "$1" "$2" 0000 01001800 "$3" "$4"; }

: >"$files/Empty.ico"
head -c 65536 /dev/zero | tr '\0' '\377' >"$files/Ones.ico"
{ Header 00 00 ffffff7f 16000000; Bytes 28000000 ffffff7f ffffff7f 01002000; head -c 24 /dev/zero; } \
    >"$files/Huge.ico"
# A picture of 30000 x 30000 in a few kilobytes of PNG.
{
    convert -size 1x1 xc:red "$scratch/dot.png"
    Header 00 00 00100000 16000000
    head -c 16 "$scratch/dot.png"
    Bytes 0000753000007530
    tail -c +25 "$scratch/dot.png"
} >"$files/Bomb.ico"
mkdir "$files/Folder.ico"

for file in "$files"/*.ico "$files/Missing.ico"; do
    name=${file##*/}
    StartEditor /open "$file"
    ExpectError "[Uu]nable to open the file $name" Untitled
    peak=$(awk '/VmHWM/ {print $2}' "/proc/$editor/status")
    [[ $peak -lt $kMemoryLimit ]] || Fail "$name cost $peak kB"
    PaintCell 3 4 1 000000
    QuitUnsaved
done
