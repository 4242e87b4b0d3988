#!/usr/bin/env bash
# Settings and registry that are no text, a folder, unreadable or far too large: the program starts,
# works, and leaves them as they are.
# shellcheck source=tests/desktop/desktop.sh
source "$(dirname "$0")/desktop.sh"
StartDesktop

registry=$XDG_CONFIG_HOME/KestrelIconEditor/registry.txt
settings=$scratch/bin/KestrelIconEditor.ini
convert -size 32x32 xc:'#c00000' "$files/Red.ico"
mkdir -p "${registry%/*}"

Noise() { head -c 3000 /dev/urandom >"$1"; }
NoiseOf100MB() { head -c 104857600 /dev/urandom >"$1"; }
Folder() { mkdir "$1"; }
Dangling() { ln -s "$scratch/nowhere/at/all" "$1"; }

# What lies at the path: kind, size and content.
StateOf() { stat -c '%F %s' "$1" && { [[ ! -f $1 ]] || cksum <"$1"; }; }

for damage in Noise NoiseOf100MB Folder Dangling; do
    for file in "$registry" "$settings"; do
        rm -rf "$file"
        "$damage" "$file"
    done
    before=$(StateOf "$registry"; StateOf "$settings")
    StartEditor /open "$files/Red.ico"
    WaitForWindow 'KestrelIconEditor - Red.ico'
    OpenMenu v
    Press Right Return
    Press ctrl+n
    WaitForWindow 'KestrelIconEditor - 未命名'
    Quit
    [[ $(StateOf "$registry"; StateOf "$settings") == "$before" ]] || Fail "$damage was changed"
    echo "$damage: started, worked, left as it was"
done

# Files that may only be read are read, and no trace of an attempt stays beside them.
rm -rf "$registry" "$settings"
printf '[Settings]\nLanguage=CHS\n' >"$settings"
chmod 444 "$settings"
StartEditor
WaitForWindow 'KestrelIconEditor - 未命名'
Quit
[[ $(ls "$scratch/bin") == $'KestrelIconEditor\nKestrelIconEditor.ini' ]] || Fail "left: $(ls "$scratch/bin")"
