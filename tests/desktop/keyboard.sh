#!/usr/bin/env bash
# A figure is drawn by keyboard alone, in both languages, also where the keyboard has other letters.
# shellcheck source=tests/desktop/desktop.sh
source "$(dirname "$0")/desktop.sh"
StartDesktop

# Keys by their place, so that the layout does not matter.
declare -rA kKeyOf=([M]=58 [B]=56 [L]=46 [U]=30 [S]=39)
Letter() { Press "${kKeyOf[$1]}"; }
# Times <count> <key>
Times() { xdotool key --repeat "$1" "$2"; }
# Hold <count> <key> <count> <key>: drags with the left button.
Hold() {
    xdotool keydown space
    Times "$1" "$2"
    Times "$3" "$4"
    xdotool keyup space
}

# A red frame, a blue line across it, and two red pixels that are moved there.
expected=$scratch/expected.png
convert xpm:- -background none -extent 32x32 "$expected" <<'XPM'
/* XPM */
static char *figure[] = {"8 8 3 1", "r c #ff0000", "b c #0000ff", ". c None",
"rrrrrrrr",
"rb...r.r",
"r.b..r.r",
"r..b...r",
"r...b..r",
"r....b.r",
"r.....br",
"rrrrrrrr"};
XPM

for language in 'en_US us' 'zh_CN ru,us'; do
    read -r locale layout <<<"$language"
    convert -size 32x32 xc:none "$files/$locale.ico"
    LANG=$locale.UTF-8 StartEditor "* - $locale.ico" /open "$files/$locale.ico"
    setxkbmap "$layout"
    # The last row of the palette: red for the left button, blue for the right one.
    Times 3 Tab
    Press Next
    Times 9 Right
    Press space
    Times 3 Right
    Press shift+Return
    Press Escape
    Letter U
    Hold 7 Right 7 Down
    Letter L
    Press Left Up
    xdotool keydown shift
    Hold 5 Left 5 Up
    xdotool keyup shift
    Letter B
    Times 3 Right
    Press Down space
    # With the one below it is selected and moved.
    Press Down space
    Letter M
    Hold 1 Right 1 Up
    Press Up Right Escape
    Press "ctrl+${kKeyOf[S]}"
    Quit
    convert "$files/$locale.ico" "$scratch/drawn.png"
    compare -metric AE "$scratch/drawn.png" "$expected" null: 2>/dev/null || Fail "another figure in $locale"
done
