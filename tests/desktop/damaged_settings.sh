#!/usr/bin/env bash
# Settings and registry that are no text, a folder, unreadable or far too large: the program starts,
# works, and leaves them as they are.
# shellcheck source=tests/desktop/desktop.sh
source "$(dirname "$0")/desktop.sh"
StartDesktop

asNobody=()
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

# SwitchLanguage <title> <key>...: goes on in the language that the keys choose in its menu.
SwitchLanguage() {
    OpenMenu v
    Press Right "${@:2}" Return
    Press ctrl+n
    WaitForWindow "KestrelIconEditor - $1"
}

for damage in Noise NoiseOf100MB Folder Dangling; do
    for file in "$registry" "$settings"; do
        rm -rf "$file"
        "$damage" "$file"
    done
    before=$(State)
    StartEditor /open "$files/Red.ico"
    WaitForWindow 'KestrelIconEditor - Red.ico'
    SwitchLanguage 未命名
    Quit
    [[ $(State) == "$before" ]] || Fail "$damage was changed"
done

# Files that may only be read are read; what cannot be kept leaves no trace beside them. For root
# there is no such file, so the program runs as nobody then.
rm -rf "$registry" "$settings"
StartEditor /open "$files/Red.ico"
WaitForWindow 'KestrelIconEditor - Red.ico'
SwitchLanguage 未命名
Quit
cp "$files/Red.ico" "$files/Second.ico"
chmod 444 "$registry" "$settings"
Contents() { cat "$registry" "$settings"; ls -A "$scratch/bin" "${registry%/*}"; }
before=$(Contents)
if [[ $(id -u) -eq 0 ]]; then
    chmod -R a+rwX "$scratch"
    chmod 444 "$registry" "$settings"
    asNobody=(setpriv --reuid=65534 --regid=65534 --clear-groups)
fi
Start "${asNobody[@]}" "$scratch/bin/KestrelIconEditor" /open "$files/Second.ico"
editor=$lastStarted
WaitForWindow 'KestrelIconEditor - Second.ico'
SwitchLanguage Untitled Down
Quit
[[ $(Contents) == "$before" ]] || Fail "read-only files were changed: $(diff <(echo "$before") <(Contents))"
