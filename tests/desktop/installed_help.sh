#!/usr/bin/env bash
# The installed program finds its help; the help window closes by key and never keeps the program.
# shellcheck source=tests/desktop/desktop.sh
source "$(dirname "$0")/desktop.sh"
StartDesktop

cmake --install "$KESTREL_BUILD" --prefix "$scratch/usr" >"$scratch/install.log"
help=$scratch/usr/share/KestrelIconEditor/help
for file in ENG/index.html CHS/index.html style.css; do
    [[ -s $help/$file ]] || Fail "$file is not installed"
done
[[ $(find "$help/pictures" -name '*.png' | wc -l) -eq 98 ]] || Fail 'pictures are missing'
# The shutter of the disk, picture 4, shines (FFFFFC) at its left.
[[ $(convert "$help/pictures/04.png" -crop 1x1+4+2 -depth 8 rgb:- | od -An -tx1) == ' ff ff fc' ]] ||
    Fail 'picture 4 is not the disk'

Start "$scratch/usr/bin/KestrelIconEditor"
editor=$lastStarted
WaitForWindow 'KestrelIconEditor - Untitled'
Press F1
WaitForWindow 'KestrelIconEditor - Help'
Press Escape
WaitForWindow 'KestrelIconEditor - Untitled'
OpenMenu h
Press h
WaitForWindow 'KestrelIconEditor - Help'
# The editor is closed while its help stays open. A window that has just come up may still take the
# keyboard once more, so it is asked for until it stays.
main=$(xdotool search --name 'KestrelIconEditor - Untitled')
TakesKeyboard() {
    xdotool windowactivate --sync "$main"
    sleep 0.2
    [[ $(xdotool getwindowfocus) == "$main" ]]
}
WaitFor "$kPatience" TakesKeyboard || Fail 'the editor does not get the keyboard'
Quit
