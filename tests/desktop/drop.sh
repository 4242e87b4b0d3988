#!/usr/bin/env bash
# Files dragged from another program and dropped on the grid: the first one is opened.
# shellcheck source=tests/desktop/desktop.sh
source "$(dirname "$0")/desktop.sh"
StartDesktop

convert -size 32x32 xc:'#0000c0' "$files/Blue.ico"
convert -size 32x32 xc:'#c00000' "$files/Red.ico"
echo 'This is no icon.' >"$files/Notes.txt"

DropIsAccepted() { grep -q accepted "$scratch/editor.log"; }

# Drop <file>...: drags them from a window of another program onto the middle of the grid.
Drop() {
    local main=$window fromX fromY source
    : >"$scratch/editor.log"
    Start "${KESTREL_DRAG_SOURCE:-"$desktopFolder/../../build/bin/drag_source"}" "$@"
    source=$lastStarted
    WaitForWindow 'drag source'
    ToScreen 50 50
    fromX=$pointX
    fromY=$pointY
    window=$main
    CellPoint 16 16
    ToScreen "$cellX" "$cellY"
    xdotool mousemove "$fromX" "$fromY" mousedown 1 mousemove_relative 20 20 \
        mousemove "$pointX" "$pointY"
    WaitFor "$kPatience" DropIsAccepted || Fail "the grid takes no files"
    xdotool mouseup 1
    WaitFor "$kPatience" ProcessEnded "$source" || Fail "nobody fetched the files"
}

StartEditor
WaitForWindow 'KestrelIconEditor - Untitled'
Drop "$files/Blue.ico" "$files/Red.ico"
WaitForWindow 'KestrelIconEditor - Blue.ico'
ExpectCell 16 16 0000c0

Drop "$files/Notes.txt"
ExpectBox 'KestrelIconEditor - Error' 'Unable to open the file Notes.txt'
Press Return
WaitForWindow 'KestrelIconEditor - Blue.ico'
ExpectCell 16 16 0000c0
Quit
