#!/usr/bin/env bash
# The installed program finds its help. An icon is opened, drawn on and saved, and another program
# finds these pixels in it. What cannot be opened or saved is told, and the program goes on. It keeps
# nothing beside itself.
# shellcheck source=tests/desktop/desktop.sh
source "$(dirname "$0")/desktop.sh"
StartDesktop

cmake --install "${KESTREL_BUILD:-"$desktopFolder/../../build"}" --prefix "$scratch/usr" >"$scratch/install.log"
help=$scratch/usr/share/KestrelIconEditor/help
[[ -s $help/CHS/index.html && -s $help/style.css ]] || Fail 'a page is not installed'
[[ $(find "$help/pictures" -name '*.png' | wc -l) -eq 119 ]] || Fail 'pictures are missing'
program=$scratch/usr/bin/KestrelIconEditor
StartEditor '* - Untitled'
Press F1
WaitForWindow '* - Help'
Press Escape
WaitForWindow '* - Untitled'

# A few bytes of PNG, at byte 22, for 30,000 x 30,000 pixels.
convert -size 1x1 xc:red "$scratch/dot.png"
{
    printf '\0\0\1\0\1\0\0\0\0\0\1\0\x18\0\0\x10\0\0\x16\0\0\0'
    head -c 16 "$scratch/dot.png"
    printf '\0\0\x75\x30\0\0\x75\x30'
    tail -c +25 "$scratch/dot.png"
} >"$files/Bomb.ico"

Press ctrl+o
AnswerDialog '* - Open' "$files/Bomb.ico"
ExpectError 'Unable to open the file Bomb.ico*The image is damaged.' '* - Untitled'
ExpectMemory 300000

convert -size 32x32 xc:'#204060' "$files/Drawn.ico"
cp "$files/Drawn.ico" "$files/Other.ico"
cp "$files/Drawn.ico" "$scratch"
Press ctrl+o
AnswerDialog '* - Open' "$files/Drawn.ico"
WaitForWindow '* - Drawn.ico'
ExpectCell 16 16 204060
PaintCell 3 4 1 000000
PaintCell 30 31 3 ffffff
Drag 1 117 174 137 174
ExpectCell 12 10 000000
Press ctrl+s
IsSaved() { [[ $(icotool -l "$files/Drawn.ico") == *' --bit-depth=24 '* ]]; }
WaitFor "$kPatience" IsSaved || Fail "the saved file is: $(icotool -l "$files/Drawn.ico")"
convert -size 32x32 xc:'#204060' -fill black -draw 'point 3,4 point 10,10 point 12,10' \
    -fill white -draw 'point 30,31' "$scratch/expected.png"
compare -metric AE "$files/Drawn.ico" "$scratch/expected.png" null: || Fail 'other pixels are saved'

# A limit on the size of files sends a signal with the failure. After two boxes in a row the window
# has the keyboard again.
prlimit --fsize=0 --pid "$editor"
PaintCell 5 5 1 000000
Press ctrl+shift+s
AnswerDialog '* - Save As' "$files/Other.ico"
ExpectBox '* - Save As' '*Other.ico already exists.*'
Press alt+y
ExpectError 'File too large*Unable to save Other.ico' '* - Other.ico'
cmp "$files/Other.ico" "$scratch/Drawn.ico" || Fail 'a failed save changed the file'
[[ $(find "$files" -type f ! -name '*.ico') == '' ]] || Fail 'a failed save left a file'
QuitUnsaved
grep -q "href=\"file://$files/Drawn.ico\"" "$scratch/data/recently-used.xbel" || Fail 'the desktop was not told'
[[ $(ls "$scratch/usr/bin") == $'KestrelIconEditor\nkestrel-icon' ]] || Fail 'something lies beside the program'
