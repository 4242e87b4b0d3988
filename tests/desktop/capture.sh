#!/usr/bin/env bash
# A square of the screen becomes the icon, pixel for pixel, wherever it lies and whatever the scale.
# shellcheck source=tests/desktop/desktop.sh
source "$(dirname "$0")/desktop.sh"
StartDesktop

IsPicking() { xdotool search --onlyvisible --name 'KestrelIconEditor - Capture' >/dev/null 2>&1; }
IsOver() { ! IsPicking; }
# Freeze <x> <y>: begins a capture with the pointer there.
Freeze() {
    Press ctrl+q
    WaitFor "$kPatience" IsPicking || Fail 'the screen is not frozen'
    # The pointer is held a moment after.
    sleep 0.1
    xdotool mousemove "$1" "$2"
    sleep 0.1
}
# Captures <x> <y> <button> <x> <y> <picture>: a click at the first point makes the square of the
# picture that begins at the second the icon.
Captures() {
    Freeze "$1" "$2"
    xdotool click "$3"
    WaitFor "$kPatience" IsOver || Fail "button $3 takes nothing"
    WaitForWindow '* - Icon.ico'
    convert "$6" -crop "32x32+$4+$5" +repage -alpha on "$scratch/square.png"
    WaitFor 3 SavesSquare || Fail "($1, $2) does not give the square at ($4, $5)"
}
SavesSquare() {
    Press ctrl+s
    sleep 0.05
    convert "$files/Icon.ico" "$scratch/icon.png"
    compare -metric AE "$scratch/icon.png" "$scratch/square.png" null: 2>/dev/null
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
Captures 500 300 2 500 300 "$wall"
Captures 625 400 3 625 400 "$wall"
Captures 1023 599 1 992 568 "$wall"
Captures 0 767 1 0 736 "$wall"

# A program that repaints late is half below the place.
Start "$KESTREL_BUILD/bin/slow_window" 300 200 216 300 80
sleep 0.3
convert "$wall" -fill '#ff8800' -draw 'rectangle 300,200 515,499' "$scratch/slow.png"
Captures 500 300 1 500 300 "$scratch/slow.png"
Kill "$lastStarted"
Quit

# On a scaled desktop pixels stay pixels, and of the frozen screen all is as it was but frame and
# loupe. A run that is killed gives the pointer back.
QT_SCALE_FACTOR=1.5 StartEditor '* - Icon.ico' /open "$files/Icon.ico"
Captures 501 301 1 501 301 "$wall"
Freeze 1023 767
[[ $(xdotool getmouselocation) == 'x:992 y:736 '* ]] || Fail 'the pointer is not confined'
xdotool mousemove 3 700
sleep 0.1
import -silent -window root -crop 1000x250+0+0 +repage "$scratch/frozen.png"
convert "$wall" -crop 1000x250+0+0 +repage "$scratch/before.png"
compare -metric AE "$scratch/frozen.png" "$scratch/before.png" null: 2>/dev/null ||
    Fail 'the frozen screen is another one'
Kill "$editor"
xdotool mousemove 1023 767
[[ $(xdotool getmouselocation) == 'x:1023 y:767 '* ]] || Fail 'the pointer is still held'
