# shellcheck shell=bash
# A desktop of one's own for a test: an X server with a window manager, a home and settings that
# nobody else sees, and a user's hands. Sourced by the tests of this folder.
#
# KESTREL_EDITOR  the program under test (default: the release build)
# sessionLocale   what LANG says to programs that are started (default: en_US.UTF-8)
#
# Points are pixels of the editor's client area; cells are icon pixels.

set -euo pipefail
desktopFolder=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
# shellcheck source=tools/display.sh
source "$desktopFolder/../../tools/display.sh"

kPatience=20
kGridLeft=12
kGridTop=69
kCellSize=10

sessionLocale=en_US.UTF-8
editor=
started=()
# Left standing after a failure, for the one who looks into it.
evidence=${KESTREL_EVIDENCE-}

Fail() {
    set +e # Whatever can still be told is told.
    echo "FAILED: $*" >&2
    if [[ -n $displayServer ]]; then
        evidence=${evidence:-$(mktemp -d)}
        import -silent -window root "$evidence/failure.png" && echo "screen: $evidence/failure.png" >&2
        xprop -root -notype _NET_CLIENT_LIST | grep -o '0x[0-9a-f]*' |
            xargs -rn1 xdotool getwindowname | sed 's/^/window: /' >&2
    fi
    sed 's/^/program: /' "$scratch/editor.log" >&2
    exit 1
}

# Ends what the test started, and nothing else.
EndDesktop() {
    local status=$? process
    trap - EXIT
    for process in "${started[@]}"; do
        kill -KILL "$process" 2>/dev/null || true
        wait "$process" 2>/dev/null || true
    done
    StopDisplay
    rm -rf "$scratch"
    exit "$status"
}

StartDesktop() {
    scratch=$(mktemp -d)
    chmod 755 "$scratch"
    trap EndDesktop EXIT
    trap 'exit 130' INT
    trap 'exit 143' TERM
    files=$scratch/files
    mkdir -p "$files" "$scratch/bin" "$scratch/home" "$scratch/config" "$scratch/data" "$scratch/run"
    chmod 700 "$scratch/run"
    # The program may keep settings beside itself, so each test runs a copy.
    cp "${KESTREL_EDITOR:-"$desktopFolder/../../build/bin/KestrelIconEditor"}" \
        "$scratch/bin/KestrelIconEditor"
    export HOME=$scratch/home XDG_CONFIG_HOME=$scratch/config XDG_DATA_HOME=$scratch/data
    export XDG_RUNTIME_DIR=$scratch/run XDG_CACHE_HOME=$scratch/home/.cache
    export LC_ALL=C.UTF-8 QT_QPA_PLATFORM=xcb NO_AT_BRIDGE=1
    unset LANG LC_MESSAGES LANGUAGE DBUS_SESSION_BUS_ADDRESS QT_SCALE_FACTOR QT_STYLE_OVERRIDE
    StartDisplay "$scratch" || Fail "no display"
}

# Start <command> [argument...]: runs it beside the test; its process id is in lastStarted.
Start() {
    env -u LC_ALL LANG="$sessionLocale" "$@" >>"$scratch/editor.log" 2>&1 </dev/null &
    lastStarted=$!
    started+=("$lastStarted")
}

# StartEditor [argument...]: its process id is in editor.
StartEditor() {
    Start "$scratch/bin/KestrelIconEditor" "$@"
    editor=$lastStarted
}

ProcessEnded() { ! kill -0 "$1" 2>/dev/null; }

# WaitForEnd: the editor closed its window and left; Fails when it ended with an error.
WaitForEnd() {
    local status=0
    WaitFor "$kPatience" ProcessEnded "$editor" || Fail "the editor is still running"
    wait "$editor" || status=$?
    [[ $status -eq 0 ]] || Fail "the editor ended with status $status"
}

# WaitForWindow <title pattern>: waits until such a window has the keyboard; its id is in window.
WaitForWindow() {
    WaitFor "$kPatience" HasKeyboard "$1" || Fail "no window \"$1\" came to the front"
}

# A window manager calls a window active a moment before keys go to it.
HasKeyboard() {
    local title
    window=$(xdotool getactivewindow 2>/dev/null) &&
        [[ $(xdotool getwindowfocus 2>/dev/null) == "$window" ]] &&
        title=$(xdotool getwindowname "$window" 2>/dev/null) || return 1
    # shellcheck disable=SC2053  # the right side is a pattern on purpose
    [[ ${title,,} == ${1,,} ]]
}

# A file dialog and the box that complains about a name in it bear the same title, but not the same
# height.
HasDialog() { HasKeyboard "$1" && [[ $(WindowHeight) -gt 300 ]]; }
HasBox() { HasKeyboard "$1" && [[ $(WindowHeight) -lt 300 ]]; }
WindowHeight() { xwininfo -id "$window" 2>/dev/null | awk '/Height:/ {print $NF}'; }

IsNotTitled() { ! IsWindowTitled "$1"; }
WaitForNoWindow() { WaitFor "$kPatience" IsNotTitled "$1" || Fail "the window \"$1\" stays"; }

Press() { xdotool key --clearmodifiers "$@"; }
Type() { xdotool type --delay 5 -- "$1"; }

# OpenMenu <letter>: opens a menu of the bar by keyboard. The menu bar comes a moment after its
# window.
OpenMenu() {
    local deadline=$((SECONDS + kPatience)) _
    while [[ $SECONDS -lt $deadline ]]; do
        Press "alt+$1"
        for _ in {1..10}; do
            MenuIsOpen && return 0
            sleep 0.05
        done
    done
    Fail "Alt+$1 opens no menu"
}

MenuIsOpen() { [[ $(xdotool search --onlyvisible --class KestrelIconEditor 2>/dev/null | wc -l) -gt 1 ]]; }

# Sets pointX and pointY to the screen point of a client point of the current window.
ToScreen() {
    local left top
    read -r left top < <(xwininfo -id "$window" | awk '/Absolute/ {printf "%s ", $NF}') || true
    pointX=$((left + $1))
    pointY=$((top + $2))
}

# Click <x> <y> [button]
Click() {
    ToScreen "$1" "$2"
    xdotool mousemove "$pointX" "$pointY" click "${3:-1}"
}

# The client point in the middle of a cell: sets cellX and cellY.
CellPoint() {
    cellX=$((kGridLeft + kCellSize * $1 + kCellSize / 2))
    cellY=$((kGridTop + kCellSize * $2 + kCellSize / 2))
}

# The colour of the grid's cell on the screen, as RRGGBB.
CellColor() {
    CellPoint "$1" "$2"
    import -silent -window "$window" -crop "1x1+$cellX+$cellY" -depth 8 rgb:- | od -An -tx1 | tr -d ' \n'
}

CellHas() { [[ $(CellColor "$1" "$2") == "$3" ]]; }

# ExpectCell <column> <row> <RRGGBB>: waits until the cell shows the colour.
ExpectCell() {
    WaitFor "$kPatience" CellHas "$1" "$2" "$3" ||
        Fail "cell ($1, $2) shows $(CellColor "$1" "$2"), not $3"
}

# PaintCell <column> <row> <button> <RRGGBB>: clicks until the cell shows the colour, since the grid
# ignores the mouse for a quarter of a second after Open.
PaintCell() { WaitFor "$kPatience" CellTakes "$@" || Fail "cell ($1, $2) cannot be painted $4"; }
CellTakes() {
    CellPoint "$1" "$2"
    Click "$cellX" "$cellY" "$3"
    WaitFor 2 CellHas "$1" "$2" "$4"
}

# DragCells <button> <RRGGBB> <column> <row>...: one stroke through these cells, each of which shows
# the colour before the pointer goes on.
DragCells() {
    local button=$1 color=$2
    shift 2
    CellPoint "$1" "$2"
    ToScreen "$cellX" "$cellY"
    xdotool mousemove "$pointX" "$pointY" mousedown "$button"
    while [[ $# -gt 0 ]]; do
        CellPoint "$1" "$2"
        ToScreen "$cellX" "$cellY"
        xdotool mousemove "$pointX" "$pointY"
        ExpectCell "$1" "$2" "$color"
        shift 2
    done
    xdotool mouseup "$button"
}

# The text of the message box in front, read by marking it with the mouse as a user would.
BoxText() {
    local width height text
    read -r width height < <(xwininfo -id "$window" | awk '/Width:|Height:/ {printf "%s ", $NF}')
    ToScreen 0 0
    xdotool mousemove $((pointX + 63)) $((pointY + 14)) mousedown 1 \
        mousemove $((pointX + width / 2)) $((pointY + height / 2)) \
        mousemove $((pointX + width - 5)) $((pointY + height - 5)) mouseup 1
    text=$(timeout 5 xclip -o -selection primary 2>/dev/null) || return 1
    printf '%s' "$text"
}

# ExpectBox <title> <text pattern>: a message box with this title and text is in front.
ExpectBox() {
    WaitFor "$kPatience" HasBox "$1" || Fail "no box \"$1\" came to the front"
    WaitFor "$kPatience" BoxSays "$2" || Fail "the box \"$1\" says \"$(BoxText)\", not \"$2\""
}
# shellcheck disable=SC2053  # the right side is a pattern on purpose
BoxSays() { [[ $(BoxText) == $1 ]]; }

# AnswerDialog <title> <path>: types the path into the file dialog in front and accepts it.
AnswerDialog() {
    WaitFor "$kPatience" HasDialog "$1" || Fail "no dialog \"$1\" came to the front"
    Press ctrl+a
    Type "$2"
    Press Return
    WaitForNoWindow "$1"
}

# Quit: closes the editor with its own shortcut; nothing is left to be saved.
Quit() {
    Press alt+F4
    WaitForEnd
}

# QuitUnsaved: the same with changes, which are given up.
QuitUnsaved() {
    Press alt+F4
    ExpectBox 'KestrelIconEditor' 'Save changes to current icon?'
    Press alt+n
    WaitForEnd
}

# ExpectError <text pattern> <window>: an error says so, and that window goes on.
ExpectError() {
    ExpectBox 'KestrelIconEditor - Error' "$1"
    Press Return
    WaitForWindow "KestrelIconEditor - $2"
}
