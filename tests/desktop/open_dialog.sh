#!/usr/bin/env bash
# Open from the dialog; a file that is no icon is refused and the open one stays.
# shellcheck source=tests/desktop/desktop.sh
source "$(dirname "$0")/desktop.sh"
StartDesktop

convert -size 32x32 xc:'#c00000' "$files/Red.ico"
echo 'This is no icon.' >"$files/Notes.txt"
StartEditor
WaitForWindow 'KestrelIconEditor - Untitled'

Press ctrl+o
AnswerDialog 'KestrelIconEditor - Open' "$files/Red.ico"
WaitForWindow 'KestrelIconEditor - Red.ico'
ExpectCell 16 16 c00000

Press ctrl+o
AnswerDialog 'KestrelIconEditor - Open' "$files/Notes.txt"
ExpectBox 'KestrelIconEditor - Error' 'Unable to open the file Notes.txt'
Press Return
WaitForWindow 'KestrelIconEditor - Red.ico'
ExpectCell 16 16 c00000

# A cancelled dialog says nothing and changes nothing.
Press ctrl+o
WaitForWindow 'KestrelIconEditor - Open'
Press Escape
WaitForWindow 'KestrelIconEditor - Red.ico'
ExpectCell 16 16 c00000
Quit
