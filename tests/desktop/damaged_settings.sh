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

# Files that may only be read are read; what cannot be kept leaves no trace beside them. For root
# there is no such file, so the program runs as nobody then.
rm -rf "$registry" "$settings"
StartEditor /open "$files/Red.ico"
WaitForWindow 'KestrelIconEditor - Red.ico'
OpenMenu v
Press Right Return
WaitFor "$kPatience" grep -q 'Language=CHS' "$settings" || Fail 'the language was not kept'
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
OpenMenu v
Press Right Down Return
Press ctrl+n
WaitForWindow 'KestrelIconEditor - Untitled'
Quit
[[ $(Contents) == "$before" ]] || Fail "read-only files were changed: $(diff <(echo "$before") <(Contents))"
