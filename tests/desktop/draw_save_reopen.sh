#!/usr/bin/env bash
# Draw on an opened icon, save, and find the very pixels in the file and on the screen again.
# shellcheck source=tests/desktop/desktop.sh
source "$(dirname "$0")/desktop.sh"
StartDesktop

convert -size 32x32 xc:'#204060' -define icon:auto-resize=32 "$files/Drawn.ico"
StartEditor /open "$files/Drawn.ico"
WaitForWindow 'KestrelIconEditor - Drawn.ico'
ExpectCell 16 16 204060

PaintCell 3 4 1 000000
PaintCell 30 31 3 ffffff
DragCells 1 000000 10 10 11 10 12 11 12 12
DragCells 3 ffffff 20 5 20 6 20 7
# Everything filled, and taken back.
Click 469 102
PaintCell 0 31 1 000000
Press ctrl+z
ExpectCell 0 31 204060
# A filled rectangle: the outline in the button's colour, the inside in the other one.
Click 469 124
CellPoint 28 25
ToScreen "$cellX" "$cellY"
xdotool mousemove "$pointX" "$pointY" mousedown 3
CellPoint 22 20
ToScreen "$cellX" "$cellY"
xdotool mousemove "$pointX" "$pointY" mouseup 3
ExpectCell 28 25 ffffff
Press ctrl+s
Quit

listing=$(icotool -l "$files/Drawn.ico")
[[ $listing == '--icon --index=1 --width=32 --height=32 --bit-depth=24 --palette-size=0' ]] ||
    Fail "the saved file is: $listing"
[[ $(stat -c %s "$files/Drawn.ico") -eq 3262 ]] || Fail "the saved file has another size"

# The same picture drawn by another program.
convert -size 32x32 xc:'#204060' \
    -fill black -draw 'point 3,4 point 10,10 point 11,10 point 12,11 point 12,12' \
    -fill white -draw 'point 30,31 point 20,5 point 20,6 point 20,7' \
    -draw 'rectangle 22,20 28,25' -fill black -draw 'rectangle 23,21 27,24' "$scratch/expected.png"
convert "$files/Drawn.ico" "$scratch/saved.png"
differing=$(compare -metric AE "$scratch/saved.png" "$scratch/expected.png" null: 2>&1) ||
    Fail "the saved picture differs in $differing pixels"

StartEditor /open "$files/Drawn.ico"
WaitForWindow 'KestrelIconEditor - Drawn.ico'
while read -r column row color; do
    ExpectCell "$column" "$row" "$color"
done <<'CELLS'
3 4 000000
30 31 ffffff
12 11 000000
20 7 ffffff
13 11 204060
CELLS
Quit
