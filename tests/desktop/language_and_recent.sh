#!/usr/bin/env bash
# By keyboard alone: the language changes at once and is kept; the recent files outlive the program.
# shellcheck source=tests/desktop/desktop.sh
source "$(dirname "$0")/desktop.sh"
StartDesktop

for name in A B C; do
    convert -size 32x32 xc:'#c00000' "$files/$name.ico"
done

StartEditor
WaitForWindow 'KestrelIconEditor - Untitled'
OpenMenu v
Press Right Return # Language, Chinese
WaitForWindow 'KestrelIconEditor - 未命名'
Quit
StartEditor
WaitForWindow 'KestrelIconEditor - 未命名'
OpenMenu v # the letter is the same
Press Right Down Return
WaitForWindow 'KestrelIconEditor - Untitled'
Quit

for name in A B C; do
    StartEditor /open "$files/$name.ico"
    WaitForWindow "KestrelIconEditor - $name.ico"
    Quit
done
# The list is in the menu of the next start; its second entry has lost its file.
rm "$files/B.ico"
StartEditor
WaitForWindow 'KestrelIconEditor - Untitled'
OpenMenu f
Press f Down Return
ExpectError 'Unable to locate *B.ico' Untitled
OpenMenu f
Press f Down Return
WaitForWindow 'KestrelIconEditor - A.ico'
Quit
