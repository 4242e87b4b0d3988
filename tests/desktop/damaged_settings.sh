#!/usr/bin/env bash
# Settings and registry that are no text, a folder, out of reach or far too large: the program starts,
# works, and leaves them as they are.
# shellcheck source=tests/desktop/desktop.sh
source "$(dirname "$0")/desktop.sh"
StartDesktop

registry=$XDG_CONFIG_HOME/KestrelIconEditor/registry.txt
settings=$scratch/bin/KestrelIconEditor.ini
convert -size 32x32 xc:'#c00000' "$files/Red.ico"
mkdir -p "${registry%/*}"

# Bytes that are no text, the same in each run.
Noise() { gzip -nc "$KESTREL_EDITOR" | head -c 3000 >"$1" || true; }
NoiseOf100MB() { yes "$(printf '\x01\xff')" | head -c 104857600 >"$1" || true; }
Folder() { mkdir "$1"; }
Dangling() { ln -s "$scratch/nowhere/at/all" "$1"; }

# What lies at both paths: kind, size and content.
State() { stat -c '%F %s' "$registry" "$settings"; cksum "$registry" "$settings" 2>&1 || true; }

for damage in Noise NoiseOf100MB Folder Dangling; do
    for file in "$registry" "$settings"; do
        rm -rf "$file"
        "$damage" "$file"
    done
    before=$(State)
    StartEditor /open "$files/Red.ico"
    WaitForWindow 'KestrelIconEditor - Red.ico'
    OpenMenu v
    Press Right Return # Language, Chinese
    Press ctrl+n
    WaitForWindow 'KestrelIconEditor - 未命名'
    Quit
    [[ $(State) == "$before" ]] || Fail "$damage was changed"
done
