#!/usr/bin/env bash
# A save that fails says so, names the file that was tried, leaves the old file byte for byte as it
# was and the changes unsaved.
# shellcheck source=tests/desktop/desktop.sh
source "$(dirname "$0")/desktop.sh"
StartDesktop

picture=$scratch/picture.ico
convert -size 32x32 xc:'#204060' "$picture"

# OpenAndDraw <file>
OpenAndDraw() {
    cp "$picture" "$1"
    WaitForNoWindow 'KestrelIconEditor*'
    StartEditor /open "$1"
    WaitForWindow "KestrelIconEditor - ${1##*/}"
    PaintCell 3 4 1 000000
}

# ExpectRefusal <opened file> <reason pattern>
ExpectRefusal() {
    ExpectError "$2*Unable to save ${1##*/}" "${1##*/}"
    ExpectUnsaved "$1"
}

# ExpectUnsaved <opened file>
ExpectUnsaved() {
    WaitForWindow "KestrelIconEditor - ${1##*/}"
    cmp "$1" "$picture" || Fail "a failed save changed the file"
    local left
    left=$(find "$(dirname "$1")" -type f ! -name '*.ico')
    [[ -z $left ]] || Fail "a failed save left $left"
    QuitUnsaved
}

# A file without write permission.
OpenAndDraw "$files/Readonly.ico"
chmod 444 "$files/Readonly.ico"
Press ctrl+s
ExpectRefusal "$files/Readonly.ico" 'Permission denied'

# A folder that went away.
mkdir "$files/folder"
OpenAndDraw "$files/folder/Lost.ico"
mv "$files/folder" "$files/elsewhere"
Press ctrl+s
ExpectRefusal "$files/elsewhere/Lost.ico" 'No such file or directory'

# The dialog takes no folder that is missing.
OpenAndDraw "$files/Old.ico"
Press ctrl+shift+s
WaitFor "$kPatience" HasDialog 'KestrelIconEditor - Save As' || Fail "no dialog to save"
Press ctrl+a
Type "$files/missing/New.ico"
Press Return
ExpectBox 'KestrelIconEditor - Save As' '*Directory not found*'
Press Return
WaitFor "$kPatience" HasDialog 'KestrelIconEditor - Save As' || Fail "the dialog did not come back"
Press Escape
ExpectUnsaved "$files/Old.ico"

# A full disk, where one may be mounted.
mkdir "$files/disk"
if mount -t tmpfs -o size=8k,mode=755 tmpfs "$files/disk" 2>/dev/null; then
    trap 'umount "$files/disk"; EndDesktop' EXIT
    OpenAndDraw "$files/disk/Full.ico"
    head -c 8192 /dev/zero >"$files/disk/Ballast.ico" 2>/dev/null || true
    Press ctrl+s
    ExpectRefusal "$files/disk/Full.ico" 'No space left on device'
    umount "$files/disk"
    trap EndDesktop EXIT
else
    echo "No tmpfs may be mounted here; the full disk is left out"
fi

# A file-size limit: the write fails like one on a full disk and the signal that comes along does
# not end the program.
OpenAndDraw "$files/Limited.ico"
prlimit --fsize=0 --pid "$editor"
Press ctrl+s
ExpectRefusal "$files/Limited.ico" 'File too large'
