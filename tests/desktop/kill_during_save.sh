#!/usr/bin/env bash
# The editor is killed while it draws and saves, in turns at a random moment and in the middle of a
# save: kill_during_save.sh [times]. The file is then the old icon or a new one, whole.
# shellcheck source=tests/desktop/desktop.sh
source "$(dirname "$0")/desktop.sh"
StartDesktop
times=${1:-200}
victim=$files/Victim.ico
original=$scratch/original.ico
convert -size 32x32 xc:'#204060' "$original"

# One xdotool command line that draws a cell and saves, many times over.
FillStorm() {
    local column
    for column in {4..31} {4..31}; do
        CellPoint "$column" 8
        ToScreen "$cellX" "$cellY"
        storm+=(mousemove "$pointX" "$pointY" click 1 key --delay 0 ctrl+s)
    done
}

ExpectWholeIcon() {
    local colors
    cmp -s "$victim" "$original" && return 0
    saved=$((saved + 1))
    [[ $(stat -c %s "$victim") -eq 3262 ]] || Fail "the file has $(stat -c %s "$victim") bytes"
    icotool -x -o "$scratch/victim.png" "$victim" || Fail "the file is no icon"
    colors=$(convert "$scratch/victim.png" -unique-colors -depth 8 rgb:- | od -An -v -w3 -tx1 | tr -d ' ')
    [[ $(sort <<<"$colors" | tr '\n' ' ') == '000000 204060 ' ]] || Fail "strange colours: $colors"
}

# Returns as soon as a save has begun its new file; without forks, since that file lives for
# milliseconds.
CatchSave() {
    local until=$((SECONDS + 3))
    while ! compgen -G "$files/.*.tmp" >/dev/null && [[ $SECONDS -lt $until ]]; do :; done
}

saved=0
halfway=0
storm=()
for ((round = 1; round <= times; ++round)); do
    cp "$original" "$victim"
    StartEditor /open "$victim"
    WaitForWindow 'KestrelIconEditor - Victim.ico'
    [[ ${#storm[@]} -gt 0 ]] || FillStorm
    PaintCell 3 4 1 000000
    Start xdotool "${storm[@]}"
    if ((round % 2)); then sleep "0.$(printf '%03d' $((RANDOM % 500)))"; else CatchSave; fi
    kill -KILL "$editor" "$lastStarted" 2>/dev/null || true
    wait "$editor" "$lastStarted" 2>/dev/null || true
    WaitForNoWindow 'KestrelIconEditor*'
    ExpectWholeIcon
    # What a save had begun beside the file.
    [[ -z $(find "$files" -type f ! -name Victim.ico) ]] || halfway=$((halfway + 1))
    find "$files" -type f ! -name Victim.ico -delete
    started=()
done
echo "$times kills: the file was new $saved times, old $((times - saved)) times;" \
    "$halfway kills fell between the beginning and the end of a save"
