#!/usr/bin/env bash
# The icon library that the build makes from pictures holds, as other programs see it, the pixels of
# these pictures in their order.
set -euo pipefail
pictures=$(dirname "$0")/../data
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

"$KESTREL_MAKE_LIBRARY" "$work/Shell32.dll" "$pictures"/*.xpm
[[ $(file -b "$work/Shell32.dll") == 'PE32 executable (DLL)'* ]]

# Expect <icon> <image> <bits> <picture>
Expect() {
    wrestool -x -t14 -n"$1" "$work/Shell32.dll" >"$work/icon.ico"
    icotool -x -i"$2" -o "$work/image.png" "$work/icon.ico"
    echo "icon $1, image $2: $(icotool -l -i"$2" "$work/icon.ico")"
    [[ $(icotool -l -i"$2" "$work/icon.ico") == *--bit-depth="$3"* ]]
    compare -metric AE "$pictures/$4" "$work/image.png" null:
}
Expect 1 1 4 01-disc.xpm
Expect 1 2 4 01-disc-16.xpm
Expect 2 1 8 02-ramp.xpm
