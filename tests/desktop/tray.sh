#!/usr/bin/env bash
# The tray of an X display, and hosts of the session bus: the window goes there and comes back.
# shellcheck source=tests/desktop/desktop.sh
source "$(dirname "$0")/desktop.sh"
hosts=${KESTREL_BUILD:-"$desktopFolder/../../build"}/bin

StartDesktop

# StartHost <program>: what it prints is in host.log; its process id is in host.
StartHost() {
    "$hosts/$1" >"$scratch/host.log" 2>&1 &
    host=$!
    started+=("$host")
    WaitFor "$kPatience" test -s "$scratch/host.log" || Fail "$1 does not start"
}
# Expect <listed|unlisted|hidden>: where the editor's window is.
Expect() { WaitFor "$kPatience" Is "$1" || Fail "the window is not $1"; }
Is() {
    local state
    state=$(xprop -id "$window" _NET_WM_STATE 2>/dev/null) || return 1
    case $state in
        *'not found'*) [[ $1 == hidden ]] ;;
        *_SKIP_TASKBAR*) [[ $1 == unlisted ]] ;;
        *_HIDDEN*) [[ $1 == minimised ]] ;;
        *) [[ $1 == listed ]] ;;
    esac
}
# The falcon has many colours.
HasPicture() { [[ $(import -silent -window root -crop 22x22+0+0 -format %k info:) -gt 20 ]]; }
Minimise() { xdotool windowminimize "$window"; }

# Without a tray the window is an ordinary one.
StartEditor '* - Untitled'
sleep 1.3
Minimise
Expect minimised
xdotool windowactivate "$window"
Expect listed

# An X tray that comes later; what clicks do is seen by what the next finds.
StartHost x_tray_host
Minimise
Expect hidden
WaitFor "$kPatience" HasPicture || Fail "the icon has no picture"
xdotool mousemove 12 12 click 1
sleep 0.3
Is hidden || Fail "a single click restores the window"
xdotool mousemove 12 12 click --repeat 2 --delay 60 1
Expect listed
Minimise
Expect hidden
xdotool mousemove 12 12 click 3
WaitFor "$kPatience" MenuIsOpen || Fail "the icon has no menu"
xdotool key Down Return
Expect listed
Quit
StartEditor '* - Untitled'
Expect unlisted
# A window that was away for a capture is still off the list.
Press ctrl+q
WaitFor "$kPatience" xdotool search --onlyvisible --name 'Capture Image' >/dev/null ||
    Fail "no picking window"
Press Escape
WaitForWindow '* - Untitled'
Expect unlisted
Kill "$host"
Expect listed
Quit

# The session bus: its hosts know one activation; texts are those of the bus.
dbus-daemon --session --nofork --address="unix:path=$scratch/run/bus" 2>/dev/null &
started+=("$!")
export DBUS_SESSION_BUS_ADDRESS=unix:path=$scratch/run/bus
WaitFor "$kPatience" test -S "$scratch/run/bus" || Fail "no session bus"
Item() { dbus-send --session --print-reply --dest="$(tail -n 1 "$scratch/host.log")" "$@"; }
# MenuId <label>: the number of the menu's item, from lines of number, "label", label.
MenuId() {
    Item /MenuBar com.canonical.dbusmenu.GetGroupProperties array:int32:1,2,3,4 array:string:label |
        awk -v label="\"$1\"" '/int32/ {id = $2} index($0, label) {print id}'
}
Registered() { [[ $(tail -n 1 "$scratch/host.log") == :* ]]; }
StartHost status_notifier_host
convert -size 32x32 xc:'#c00000' "$files/Red.ico"
LANG=zh_CN.UTF-8 StartEditor '* - Red.ico' /open "$files/Red.ico"
Expect unlisted
WaitFor "$kPatience" Registered || Fail "the icon did not register"
Item /StatusNotifierItem org.freedesktop.DBus.Properties.Get \
    string:org.kde.StatusNotifierItem string:ToolTip | grep -q '"KestrelIconEditor - Red.ico"' ||
    Fail "the tooltip is not the title"
Minimise
Expect hidden
Item /StatusNotifierItem org.kde.StatusNotifierItem.Activate int32:1 int32:1 >/dev/null
Expect listed
Minimise
Expect hidden
Item /MenuBar com.canonical.dbusmenu.Event "int32:$(MenuId 还原窗口)" string:clicked \
    variant:string: uint32:0 >/dev/null
Expect listed
Minimise
Expect hidden
Kill "$host"
Expect listed
Quit
