#!/usr/bin/env bash
# Files from the Open dialog and files dropped on the grid, of which the first is opened; what is no
# icon is refused, and the open icon stays.
# shellcheck source=tests/desktop/desktop.sh
source "$(dirname "$0")/desktop.sh"
StartDesktop

convert -size 32x32 xc:'#0000c0' "$files/Blue.ico"
convert -size 32x32 xc:'#c00000' "$files/Red.ico"
echo 'This is no icon.' >"$files/Notes.txt"

DropIsAccepted() { grep -q accepted "$scratch/editor.log"; }

# Drop <file>...: drags them from a window of another program onto the middle of the grid.
Drop() {
    local main=$window from source
    : >"$scratch/editor.log"
    Start "${KESTREL_DRAG_SOURCE:-"$desktopFolder/../../build/bin/drag_source"}" "$@"
    source=$lastStarted
    WaitForWindow 'drag source'
    ToScreen 50 50
    from=("$pointX" "$pointY")
    window=$main
    CellPoint 16 16
    ToScreen "$cellX" "$cellY"
    xdotool mousemove "${from[@]}" mousedown 1 mousemove_relative 20 20 \
        mousemove "$pointX" "$pointY"
    WaitFor "$kPatience" DropIsAccepted || Fail "the grid takes no files"
    xdotool mouseup 1
    WaitFor "$kPatience" ProcessEnded "$source" || Fail "nobody fetched the files"
}

StartEditor
WaitForWindow 'KestrelIconEditor - Untitled'
Press ctrl+o
AnswerDialog 'KestrelIconEditor - Open' "$files/Red.ico"
WaitForWindow 'KestrelIconEditor - Red.ico'
ExpectCell 16 16 c00000

Press ctrl+o
AnswerDialog 'KestrelIconEditor - Open' "$files/Notes.txt"
ExpectError 'Unable to open the file Notes.txt' Red.ico
ExpectCell 16 16 c00000

Drop "$files/Blue.ico" "$files/Red.ico"
WaitForWindow 'KestrelIconEditor - Blue.ico'
ExpectCell 16 16 0000c0

Drop "$files/Notes.txt"
ExpectError 'Unable to open the file Notes.txt' Blue.ico
ExpectCell 16 16 0000c0
Quit
