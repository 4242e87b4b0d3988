#!/usr/bin/env bash
# What every filter makes of an icon, and the icon itself: filter_pictures.sh <kestrel-icon> <icon>
# <folder> writes <key>.png and original.png there, the same pixels every time.
set -euo pipefail
program=$1 icon=$2 folder=$3
mkdir -p "$folder"
"$program" convert "$icon" "$folder/original.png"
# Of the commands those of the Image menu, which bear Opts in their names, are no filters.
for key in $("$program" apply --help | grep -o 'mnu[A-Za-z0-9]*' | grep -v Opts | sort -u); do
    command=$key
    [[ $key != mnuGamma ]] || command=mnuGamma=200
    "$program" apply --seed 1 "$command" "$icon" "$folder/$key.png"
done
