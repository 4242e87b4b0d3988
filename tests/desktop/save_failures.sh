#!/usr/bin/env bash
# A save that fails says so, names the file that was tried, leaves the old file byte for byte as it
# was and the changes unsaved.
# shellcheck source=tests/desktop/desktop.sh
source "$(dirname "$0")/desktop.sh"
StartDesktop

picture=$scratch/picture.ico
convert -size 32x32 xc:'#204060' "$picture"

# SaveFails <file> <reason pattern> <command>...: the command comes between drawing and saving.
SaveFails() {
    local file=$files/$1 left
    cp "$picture" "$file"
    StartEditor /open "$file"
    WaitForWindow "KestrelIconEditor - $1"
    PaintCell 3 4 1 000000
    "${@:3}"
    Press ctrl+s
    ExpectError "$2*Unable to save $1" "$1"
    cmp "$file" "$picture" || Fail "a failed save changed the file"
    left=$(find "$files" -type f ! -name '*.ico')
    [[ -z $left ]] || Fail "a failed save left $left"
    QuitUnsaved
}

SaveFails Readonly.ico 'Permission denied' chmod 444 "$files/Readonly.ico"

# A file-size limit: the write fails like one on a full disk and the signal that comes along does
# not end the program.
LimitFiles() { prlimit --fsize=0 --pid "$editor"; }
SaveFails Limited.ico 'File too large' LimitFiles
