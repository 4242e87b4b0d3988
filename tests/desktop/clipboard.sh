#!/usr/bin/env bash
# What is copied reaches other programs, what they copy is pasted, and no clipboard harms the editor.
# shellcheck source=tests/desktop/desktop.sh
source "$(dirname "$0")/desktop.sh"
# What the program has given back does not count.
export ASAN_OPTIONS=${ASAN_OPTIONS-}:quarantine_size_mb=1
StartDesktop

# ExpectSame <picture> <picture> <what>
ExpectSame() {
    local differing
    differing=$(compare -metric AE "$1" "$2" null: 2>&1) || Fail "$3 differs in $differing pixels"
}

# Own <type> <file>: another program owns the clipboard; its process id is in owner.
owner=
Own() {
    local before
    before=$(Owners)
    Start xclip -quiet -selection clipboard -t "$1" -i "$2"
    owner=$lastStarted
    WaitFor "$kPatience" OwnersExceed "$before" || Fail "$2 is not on the clipboard"
}
# Each tells when it owns the clipboard. Asking for what it holds could take long.
Owners() { grep -cs '^Waiting for selection requests' "$scratch/editor.log" || true; }
OwnersExceed() { [[ $(Owners) -gt $1 ]]; }

# PasteShows <key> <column> <row> <RRGGBB>: presses the key until the cell shows the colour: the
# editor learns of a new clipboard a moment later.
PasteShows() { WaitFor "$kPatience" PasteOnce "$@" || Fail "cell ($2, $3) does not become $4"; }
PasteOnce() {
    Press "$1"
    WaitFor 1 CellHas "$2" "$3" "$4"
}

convert -size 32x32 xc:none -fill '#204060' -draw 'rectangle 4,4 20,12' -fill white \
    -draw 'rectangle 6,6 9,9' -fill '#fe0102' -draw 'point 31,0' "$scratch/icon.png"
convert "$scratch/icon.png" "$files/Icon.ico"
convert -size 1x1 xc:'#00ff00' "$scratch/dot.png"
Own image/png "$scratch/dot.png"
StartEditor /open "$files/Icon.ico"
WaitForWindow 'KestrelIconEditor - Icon.ico'
ExpectCell 31 0 fe0102
# The clipboard was there before the editor.
PasteShows ctrl+v 0 0 00ff00
Press ctrl+z

# Copied: a PNG with alpha whose transparent pixels are white, and a bitmap over white.
Press ctrl+a ctrl+c
HasPng() { timeout 5 xclip -o -selection clipboard -t image/png >"$scratch/copied.png" 2>/dev/null; }
WaitFor "$kPatience" HasPng || Fail "nothing was copied"
timeout 5 xclip -o -selection clipboard -t image/bmp >"$scratch/copied.bmp"
ExpectSame "$scratch/copied.png" "$scratch/icon.png" "the copied PNG"
convert "$scratch/icon.png" -background white -flatten "$scratch/flat.png"
convert "$scratch/copied.png" -alpha off "$scratch/colors.png"
ExpectSame "$scratch/colors.png" "$scratch/flat.png" "what lies under the alpha"
ExpectSame "$scratch/copied.bmp" "$scratch/flat.png" "the copied bitmap"
# ... and pasted back.
Press Delete
ExpectCell 5 5 808080
Press ctrl+v
ExpectCell 31 0 fe0102
Press ctrl+z ctrl+z

# Pasted: white and what is half transparent or less lets the icon through.
convert -size 12x8 xc:'#00c080' -fill white -draw 'rectangle 0,0 3,7' "$scratch/base.png"
convert "$scratch/base.png" -alpha set -channel A \
    -fx 'i<6 ? 1 : i<8 ? 127/255 : i<10 ? 128/255 : 0' "$scratch/offer.png"
Own image/png "$scratch/offer.png"
PasteShows ctrl+v 5 1 00c080
Press Escape ctrl+s
Saved() { [[ $files/Icon.ico -nt $scratch/offer.png ]]; }
WaitFor "$kPatience" Saved || Fail "the icon is not saved"
Press ctrl+n
WaitForWindow 'KestrelIconEditor - Untitled'
convert "$scratch/icon.png" -fill '#00c080' -draw 'rectangle 4,0 5,7 rectangle 8,0 9,7' \
    "$scratch/expected.png"
convert "$files/Icon.ico" "$scratch/saved.png"
ExpectSame "$scratch/saved.png" "$scratch/expected.png" "the saved icon"

# Too large: the dialog asks, and the second choice keeps the proportion.
convert -size 64x32 xc:'#102030' -fill '#ffcc00' -draw 'rectangle 62,30 63,31' "$scratch/wide.png"
Own image/png "$scratch/wide.png"
IsAsked() {
    Press ctrl+v
    WaitFor 1 HasKeyboard 'KestrelIconEditor - Paste'
}
WaitFor "$kPatience" IsAsked || Fail "no question about a large picture"
Press Down Return
WaitForWindow 'KestrelIconEditor - Untitled'
ExpectCell 31 15 ffcc00
ExpectCell 30 15 102030
Press Delete

# A whole screen comes in many parts. Its noise does not shrink in the file.
convert -size 1920x1080 xc:'#405060' +noise Random -fill '#60ff20' -draw 'rectangle 0,0 999,1079' \
    "$scratch/screen.png"
Own image/png "$scratch/screen.png"
ScreenIsPasted() {
    IsAsked || return 1
    Press Return
    WaitForWindow 'KestrelIconEditor - Untitled'
    WaitFor 1 CellHas 15 31 60ff20
}
WaitFor "$kPatience" ScreenIsPasted || Fail "the screen cannot be pasted"
Press Delete

# Clipboards that cannot be read: a message, at once and without much memory.
head -c 60 "$scratch/wide.png" >"$scratch/cut.png"
: >"$scratch/empty.png"
# 20,000 x 20,000 pixels that are not there; in the other one they are claimed by a bitmap.
printf '\x89PNG\r\n\x1a\n\0\0\0\rIHDR\0\0\x4e\x20\0\0\x4e\x20\x08\x02\0\0\0' >"$scratch/huge.png"
printf '\x6c\x12\xd1\x6e\0\0\0\x0aIDAT' >>"$scratch/huge.png"
printf 'BM\x36\x80\x86\x47\0\0\0\0\x36\0\0\0\x28\0\0\0\x20\x4e\0\0\x20\x4e\0\0\x01\0\x18\0' >"$scratch/huge.bmp"
head -c 24 /dev/zero >>"$scratch/huge.bmp"
truncate -s 400M "$scratch/endless.bmp"
PasteFails() {
    Press ctrl+v
    WaitFor 1 HasBox 'KestrelIconEditor - Error'
}
for case in image/png:cut.png image/png:empty.png image/png:huge.png image/bmp:huge.bmp \
    image/bmp:endless.bmp; do
    Own "${case%%:*}" "$scratch/${case#*:}"
    WaitFor "$kPatience" PasteFails || Fail "no message about ${case#*:}"
    ExpectError '*image on the clipboard*' Untitled
done

# An owner that does not answer any more keeps the editor waiting for less than a second.
Own image/png "$scratch/offer.png"
PasteShows ctrl+v 5 1 00c080
kill -STOP "$owner"
start=$(date +%s%N)
Press ctrl+v
WaitFor "$kPatience" HasBox 'KestrelIconEditor - Error' || Fail "no message about a silent owner"
waited=$((($(date +%s%N) - start) / 1000000))
[[ $waited -lt 2000 ]] || Fail "a silent owner held up the editor for $waited ms"
ExpectError '*image on the clipboard*' Untitled
# One that vanishes takes the command with it: no message, no picture.
kill -KILL "$owner"
wait "$owner" 2>/dev/null || true
PasteDoesNothing() {
    Press ctrl+v
    ! WaitFor 1 HasBox 'KestrelIconEditor - Error' || { Press Return; return 1; }
}
WaitFor "$kPatience" PasteDoesNothing || Fail "Paste goes on without a clipboard"
Press ctrl+n
ExpectBox 'KestrelIconEditor' 'Save changes to current icon?'
Press alt+n
WaitForWindow 'KestrelIconEditor - Untitled'
most=$(awk '/VmHWM/ {print $2}' "/proc/$editor/status")
[[ $most -lt 400000 ]] || Fail "the editor took $most kB"
echo "silent owner: $waited ms; most memory: $most kB"
Quit
