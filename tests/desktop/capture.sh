#!/usr/bin/env bash
# A square of the screen becomes the icon, pixel for pixel, wherever it lies and whatever the scale.
# shellcheck source=tests/desktop/desktop.sh
source "$(dirname "$0")/desktop.sh"
StartDesktop
picking='KestrelIconEditor - Capture Image'

IsPicking() { xdotool search --onlyvisible --name "$picking" >/dev/null 2>&1; }
IsOver() { ! IsPicking; }
Freeze() {
    Press ctrl+q
    WaitFor "$kPatience" IsPicking || Fail 'the screen is not frozen'
    # The pointer is held a moment after.
    sleep 0.1
}
EndsWith() {
    xdotool "$@"
    WaitFor "$kPatience" IsOver || Fail "$* does not end it"
    WaitForWindow '* - Icon.ico'
}

# Holds <x> <y> <picture>: once saved, the icon is the square of the picture that begins there.
Holds() {
    Press ctrl+s
    sleep 0.05
    convert "$files/Icon.ico" "$scratch/icon.png"
    convert "$3" -crop "32x32+$1+$2" +repage -alpha on "$scratch/square.png"
    [[ $(compare -metric AE "$scratch/icon.png" "$scratch/square.png" null: 2>&1) == 0 ]]
}
ExpectSquare() { WaitFor 3 Holds "$@" || Fail "the icon is not the square at ($1, $2)"; }
# Take <x> <y> <button>
Take() {
    Freeze
    xdotool mousemove "$1" "$2"
    sleep 0.05
    EndsWith click "$3"
}

wall=$scratch/wall.png
convert -size 1024x768 xc:'#405060' +noise Random "PNG24:$wall"
# It says that it failed although it did not.
display -window root "$wall" || true
xrandr --setmonitor left 640/170x768/204+0+0 screen --setmonitor right 384/100x500/130+640+100 none \
    >/dev/null 2>&1 || Fail 'no second monitor'
convert -size 32x32 xc:none -fill red -draw 'point 3,3' "$files/Icon.ico"
StartEditor '* - Icon.ico' /open "$files/Icon.ico"

# Beneath the editor's own window, across both monitors, and in their corners.
Take 500 300 2
ExpectSquare 500 300 "$wall"
Take 625 400 3
ExpectSquare 625 400 "$wall"
Take 1023 599 1
ExpectSquare 992 568 "$wall"
Freeze
xdotool mousemove 0 767
sleep 0.1
[[ $(xdotool getmouselocation) == 'x:0 y:736 '* ]] || Fail 'the pointer goes where no square begins'
import -silent -window root "$scratch/picking.png"
EndsWith key Right Right Left Return
ExpectSquare 1 736 "$wall"
# Of the frozen screen all is as it was but frame and loupe.
convert "$scratch/picking.png" -crop 700x480+300+0 "$scratch/left.png"
convert "$wall" -crop 700x480+300+0 "$scratch/right.png"
compare -metric AE "$scratch/left.png" "$scratch/right.png" null: 2>/dev/null ||
    Fail 'the frozen screen is another one'
[[ $(convert "$scratch/picking.png" -crop 1x1+10+734 -depth 8 rgb:- | od -An -tx1) == ' ff ff ff' ]] ||
    Fail 'no frame around the square'

# Leaving changes nothing, and what was undone can be done again.
Press ctrl+z
ExpectSquare 992 568 "$wall"
Freeze
EndsWith key Escape
Press ctrl+y
ExpectSquare 1 736 "$wall"

# A program that repaints late is half below the place.
Start "$KESTREL_BUILD/bin/slow_window" 300 200 216 300 80
sleep 0.3
convert "$wall" -fill '#ff8800' -draw 'rectangle 300,200 515,499' "$scratch/slow.png"
Take 500 300 1
ExpectSquare 500 300 "$scratch/slow.png"
Kill "$lastStarted"
Quit

# On a scaled desktop pixels stay pixels. A run that is killed gives pointer and keys back.
QT_SCALE_FACTOR=1.5 StartEditor '* - Icon.ico' /open "$files/Icon.ico"
Take 501 301 1
ExpectSquare 501 301 "$wall"
Freeze
Kill "$editor"
xdotool mousemove 1023 767
[[ $(xdotool getmouselocation) == 'x:1023 y:767 '* ]] || Fail 'the pointer is still held'
