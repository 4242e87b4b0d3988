#!/usr/bin/env bash
# Work that was not saved outlives every end of the program but the user's own.
# shellcheck source=tests/desktop/desktop.sh
source "$(dirname "$0")/desktop.sh"
StartDesktop
export XDG_STATE_HOME=$scratch/state
convert -size 32x32 xc:'#c00000' "$files/Red.ico"

# Offered <answer key>: the next start asks; its window is in front afterwards.
Offered() {
    StartEditor 'KestrelIconEditor'
    ExpectBox 'KestrelIconEditor' $'KestrelIconEditor was not closed properly.\nRestore the icon that was being edited?'
    Press "$1"
}

StartEditor '* - Red.ico' /open "$files/Red.ico"
ExpectCell 6 6 c00000
PaintCell 5 5 1 000000
Kill "$editor"

# Yes is the default. The file is asked about as ever: another program has changed it.
convert -size 32x32 xc:'#00c000' "$files/Red.ico"
Offered Return
WaitForWindow '* - Red.ico'
ExpectCell 5 5 000000
ExpectCell 6 6 c00000
Press ctrl+s
ExpectBox 'KestrelIconEditor' '"Red.ico" has been changed by another program.*'
Press alt+n
WaitForWindow '* - Red.ico'

for signal in TERM HUP INT; do
    kill -"$signal" "$editor"
    WaitForEnd
    Offered alt+y
    WaitForWindow '* - Red.ico'
    ExpectCell 5 5 000000
done
Press ctrl+z
ExpectCell 5 5 c00000
Press ctrl+y
ExpectCell 5 5 000000
QuitUnsaved
[[ -z $(ls "$XDG_STATE_HOME/KestrelIconEditor") ]] || Fail "a journal stays"
