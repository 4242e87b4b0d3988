#!/usr/bin/env bash
# Settings and registry that are no text, far too large or a folder: the program starts, works, and
# keeps them beside new ones. Where they are out of reach it leaves them as they are.
# shellcheck source=tests/desktop/desktop.sh
source "$(dirname "$0")/desktop.sh"
StartDesktop

registry=$XDG_CONFIG_HOME/KestrelIconEditor/registry.ini
settings=$scratch/bin/KestrelIconEditor.ini
convert -size 32x32 xc:'#c00000' "$files/Red.ico"
mkdir -p "${registry%/*}"

# Bytes that are no text, the same in each run.
Noise() { gzip -nc "$KESTREL_EDITOR" | head -c 3000 >"$1" || true; }
NoiseOf100MB() { yes "$(printf '\x01\xff')" | head -c 104857600 >"$1" || true; }
Folder() { mkdir "$1"; }
Dangling() { ln -s "$scratch/nowhere/at/all" "$1"; }

# State <suffix>: what lies at both paths with the suffix: kind, size and content.
State() {
    local file
    for file in "$registry$1" "$settings$1"; do
        stat -c '%F %s' "$file"
        cksum 2>/dev/null <"$file" || true
    done
}

for damage in Noise NoiseOf100MB Folder Dangling; do
    for file in "$registry" "$settings"; do
        rm -rf "$file" "$file.damaged"
        "$damage" "$file"
    done
    before=$(State '')
    StartEditor /open "$files/Red.ico"
    WaitForWindow 'KestrelIconEditor - Red.ico'
    OpenMenu v
    Press Right Return # Language, Chinese
    Press ctrl+n
    WaitForWindow 'KestrelIconEditor - 未命名'
    Quit
    if [[ $damage == Dangling ]]; then
        [[ $(State '') == "$before" ]] || Fail "$damage was changed"
        continue
    fi
    [[ $(State .damaged) == "$before" ]] || Fail "$damage was not kept"
    grep -qx 'Language=CHS' "$settings" || Fail "$damage: no new settings"
    grep -q '^1\.=.*/Red\.ico$' "$registry" || Fail "$damage: no new registry"
done
