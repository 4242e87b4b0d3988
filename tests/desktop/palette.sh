#!/usr/bin/env bash
# Palette files through the desktop's own dialogs, compared with files that the shell makes.
# shellcheck source=tests/desktop/desktop.sh
source "$(dirname "$0")/desktop.sh"
StartDesktop
table=$desktopFolder/../data/default_palette.txt

# PaletteOf <file of hexadecimal numbers>: the palette file of these colours.
PaletteOf() {
    printf 'JASC\r\n'
    # shellcheck disable=SC2046  # one argument for each number
    printf '\r\n%d' $(tr -s ' \n' '\n' <"$1" | sed 's/^/0x/')
}

# OpenPaletteItem <letter>: an item of Tools, Palette by keyboard.
OpenPaletteItem() {
    OpenMenu t
    Press Down Return "$1"
}

# ExpectColor <x> <y> <RRGGBB>: waits until this client point shows the colour.
PointHas() {
    [[ $(import -silent -window "$window" -crop "1x1+$1+$2" -depth 8 rgb:- |
        od -An -tx1 | tr -d ' \n') == "$3" ]]
}
ExpectColor() { WaitFor "$kPatience" PointHas "$@" || Fail "($1, $2) does not show $3"; }

PaletteOf "$table" >"$scratch/default.pal"
StartEditor
WaitForWindow 'KestrelIconEditor - Untitled'
ExpectColor 551 391 ffffff

# The name gets its extension.
Click 539 166
AnswerDialog 'Save As' "$files/default"
WaitForWindow 'KestrelIconEditor - Untitled'
WaitFor "$kPatience" cmp -s "$files/default.PAL" "$scratch/default.pal" ||
    Fail "the default palette's file is another"

# With the box ticked the first click opens the dialog, and the second one, which falls on its Cancel
# button, is not meant for it.
Click 350 400
ToScreen 492 378
xdotool mousemove "$pointX" "$pointY" click --repeat 2 --delay 150 1
sleep 0.5
WaitForWindow 'Select Color'
Press Escape
WaitForWindow 'KestrelIconEditor - Untitled'
Click 350 400

# A short file in lower case without an extension, loaded over the default palette.
printf 'x\r\ny\r\n255\r\n65280.4\r\n 16711680 z' >"$files/short"
OpenPaletteItem r
OpenPaletteItem d
ExpectColor 350 190 000000
Click 518 166
AnswerDialog 'Open' "$files/short"
WaitForWindow 'KestrelIconEditor - Untitled'
ExpectColor 350 190 ff0000
ExpectColor 363 190 00ff00
ExpectColor 376 190 0000ff
ExpectColor 389 190 808000
# What is loaded is used: the third cell with the left button, the first with the right one.
Click 376 190
Click 350 190 3
ExpectColor 394 166 0000ff
ExpectColor 419 166 ff0000
ExpectColor 352 165 0000ff

# What cannot be written or read is told.
chmod 444 "$files/default.PAL"
OpenPaletteItem s
WaitFor "$kPatience" HasDialog 'Save As' || Fail "the menu opens no save dialog"
Type default
Press Return
WaitFor "$kPatience" HasBox 'Save As' || Fail "no question before a file is replaced"
Press alt+y
ExpectError 'Permission denied*Unable to save the palette file.' 'Untitled'
OpenPaletteItem l
AnswerDialog 'Open' /dev/null
ExpectError 'Invalid argument*Unable to load the palette file.' 'Untitled'
Quit
