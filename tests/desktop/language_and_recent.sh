#!/usr/bin/env bash
# By keyboard alone: the language changes at once and is kept; the recent files outlive the program.
# shellcheck source=tests/desktop/desktop.sh
source "$(dirname "$0")/desktop.sh"
StartDesktop

registry=$XDG_CONFIG_HOME/KestrelIconEditor/registry.txt
for name in A B C D E; do
    convert -size 32x32 xc:'#c00000' "$files/$name.ico"
done

# RecentNames: the names in the registry, the latest first.
RecentNames() {
    awk '/^\[/ {here = /Brinmoor.*Rfl\]/} here && /^"[1-4]\."=/' "$registry" | sort |
        grep -o '[^\\/]*\.ico' | tr '\n' ' '
}

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
[[ ! -e $registry ]] || [[ -z $(RecentNames) ]] || Fail "no file was opened: $(RecentNames)"

for name in A B C D E B; do
    StartEditor /open "$files/$name.ico"
    WaitForWindow "KestrelIconEditor - $name.ico"
    Quit
done
[[ $(RecentNames) == 'B.ico E.ico D.ico C.ico ' ]] || Fail "the list is $(RecentNames)"

# The list is in the menu of the next start; the third entry has lost its file.
rm "$files/D.ico"
StartEditor
WaitForWindow 'KestrelIconEditor - Untitled'
OpenMenu f
Press f Down Down Return
ExpectError 'Unable to locate *D.ico' Untitled
OpenMenu f
Press f Down Down Return
WaitForWindow 'KestrelIconEditor - C.ico'

# A companion program that is not installed is missed in an orderly way.
OpenMenu t
Press Up Return
ExpectError 'The program is not installed*Unable to start *Ormsby Extender.exe' C.ico
Quit
[[ $(RecentNames) == 'C.ico B.ico E.ico ' ]] || Fail "the list is $(RecentNames)"
