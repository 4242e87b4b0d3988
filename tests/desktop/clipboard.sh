#!/usr/bin/env bash
# What is copied reaches other programs, what they copy is pasted, and no clipboard harms the editor.
# shellcheck source=tests/desktop/desktop.sh
source "$(dirname "$0")/desktop.sh"
# What the program has given back does not count.
export ASAN_OPTIONS=${ASAN_OPTIONS-}:quarantine_size_mb=1
StartDesktop

# Own <type> <file>: another program owns the clipboard; its process id is in lastStarted. It tells
# when it does: asking for what it holds could take long.
Own() {
    : >"$scratch/editor.log"
    Start xclip -quiet -selection clipboard -t "$1" -i "$2"
    WaitFor "$kPatience" grep -q '^Waiting for selection requests' "$scratch/editor.log" ||
        Fail "$2 is not on the clipboard"
}

# Pastes <command> [argument...]: until the command succeeds: the editor learns of a new clipboard a
# moment later.
Pastes() { WaitFor "$kPatience" PasteOnce "$@" || Fail "Paste: not $*"; }
PasteOnce() {
    Press ctrl+v
    WaitFor 2 "$@"
}

# ExpectSame <what> <picture> <picture>
ExpectSame() { compare -metric AE "$2" "$3" null: || Fail "$1 differs"; }

convert -size 32x32 xc:none -fill '#204060' -draw 'rectangle 4,4 20,12' -fill white \
    -draw 'rectangle 6,6 9,9' -fill '#fe0102' -draw 'point 31,0' "$scratch/icon.png"
convert "$scratch/icon.png" "$files/Icon.ico"
convert -size 1x1 xc:'#00ff00' "$scratch/dot.png"
# The clipboard was there before the editor.
Own image/png "$scratch/dot.png"
StartEditor '* - Icon.ico' /open "$files/Icon.ico"
Pastes CellHas 0 0 00ff00
Press ctrl+z

# Copied: a PNG with alpha whose transparent pixels are white, and a bitmap over white.
Press ctrl+a ctrl+x
Copied() { timeout 5 xclip -o -selection clipboard -t "image/$1" >"$scratch/copied.$1" 2>/dev/null; }
WaitFor "$kPatience" Copied png || Fail 'nothing was copied'
Copied bmp
convert "$scratch/icon.png" -background white -flatten "$scratch/flat.png"
convert "$scratch/copied.png" -alpha off "$scratch/colors.png"
ExpectSame 'the copied PNG' "$scratch/copied.png" "$scratch/icon.png"
ExpectSame 'what lies under the alpha' "$scratch/colors.png" "$scratch/flat.png"
ExpectSame 'the copied bitmap' "$scratch/copied.bmp" "$scratch/flat.png"
# ... and pasted back, and put down.
ExpectCell 5 5 808080
Press ctrl+v
ExpectCell 31 0 fe0102
Press Escape

# A whole screen comes in many parts. Its noise does not shrink in the file.
convert -size 1920x1080 xc:'#405060' +noise Random -fill '#60ff20' -draw 'rectangle 0,0 999,1079' \
    "$scratch/screen.png"
Own image/png "$scratch/screen.png"
Pastes HasKeyboard '* - Paste'
Press Return
WaitForWindow '* - Icon.ico'
ExpectCell 15 31 60ff20
Press Delete

# An icon, and the file of one among others that were copied.
convert "$scratch/dot.png" "$scratch/dot.ico"
Own image/x-icon "$scratch/dot.ico"
Pastes CellHas 0 0 00ff00
Press Delete
convert -size 1x1 xc:'#0000ff' "$files/one dot.ICO"
printf '# copied\r\nfile://%s\r\n' elsewhere/a.png "$scratch/list" "$files/one%20dot.ICO" \
    >"$scratch/list"
Own text/uri-list "$scratch/list"
Pastes CellHas 0 0 0000ff
Press Delete

# What has no end: a message, without much memory.
truncate -s 400M "$scratch/endless.bmp"
Own image/bmp "$scratch/endless.bmp"
Pastes HasKeyboard '* - Error'
ExpectError '*image on the clipboard*' '* - Icon.ico'
ExpectMemory 130000

# An owner that does not answer any more keeps the editor waiting for less than a second.
Own image/png "$scratch/dot.png"
Pastes CellHas 0 0 00ff00
Press Escape
kill -STOP "$lastStarted"
start=$SECONDS
Pastes HasKeyboard '* - Error'
[[ $((SECONDS - start)) -le 2 ]] || Fail 'a silent owner holds up the editor'
ExpectError '*image on the clipboard*' '* - Icon.ico'
# One that vanishes takes the command with it.
Kill "$lastStarted"
PasteDoesNothing() {
    Press ctrl+v
    ! WaitFor 1 HasKeyboard '* - Error' || { Press Return; return 1; }
}
WaitFor "$kPatience" PasteDoesNothing || Fail 'Paste goes on without a clipboard'
QuitUnsaved
