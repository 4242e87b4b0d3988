#!/usr/bin/env bash
# The Image menu, filters and their dialogs by keyboard; the saved icon is compared with one that the
# shell computes.
# shellcheck source=tests/desktop/desktop.sh
source "$(dirname "$0")/desktop.sh"
StartDesktop

# OpenColors <downs>: the item so far down in Effect, Colors, which have no letters.
OpenColors() {
    OpenMenu i
    Press Right Up Up Up Right
    for ((i = 0; i < $1; i++)); do Press Down; done
    Press Return
}

# The flipped gradient from black to white, negated and brightened by the gamma factor 2.
Expected() {
    awk 'function round(v,  whole) {
             whole = int(v)
             return v - whole == 0.5 ? whole + whole % 2 : int(v + 0.5)
         }
         BEGIN {
             print "P2 32 32 255"
             for (i = 0; i < 1024; i++)
                 print round(255 * sqrt((255 - round((31 - i % 32) * 255 / 32)) / 255))
         }'
}

StartEditor
WaitForWindow 'KestrelIconEditor - Untitled'
OpenMenu t
Press g
WaitForWindow 'KestrelIconEditor - Gradient Background'
Press Return
WaitForWindow 'KestrelIconEditor - Untitled'
ExpectCell 31 0 f7f7f7
ExpectCell 16 31 808080
OpenMenu i
Press f h
ExpectCell 0 0 f7f7f7
OpenColors 1
ExpectCell 0 31 080808
OpenColors 3
WaitForWindow 'KestrelIconEditor - Gamma Correction'
Type 'x-200'
Press Return
WaitForWindow 'KestrelIconEditor - Untitled'
ExpectCell 0 31 2d2d2d
Press ctrl+s
AnswerDialog 'KestrelIconEditor - Save As' "$files/shades"
WaitForWindow 'KestrelIconEditor - shades.ico'
Expected | convert pgm:- -depth 8 gray:"$scratch/expected"
WaitFor "$kPatience" test -s "$files/shades.ico"
icotool -x -o "$scratch/saved.png" "$files/shades.ico"
for channel in R G B; do
    convert "$scratch/saved.png" -channel "$channel" -separate -depth 8 gray:- |
        cmp - "$scratch/expected" || Fail "channel $channel is another"
done

# One bar moves the red by five levels however far it goes, and the adjustment can be undone.
OpenMenu i
Press a
WaitForWindow 'KestrelIconEditor - Color Adjustment'
Press Tab Home Return
WaitForWindow 'KestrelIconEditor - shades.ico'
ExpectCell 0 31 322d2d
Press ctrl+z ctrl+z
ExpectCell 0 31 080808
QuitUnsaved
