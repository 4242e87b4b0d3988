# shellcheck shell=bash
# A desktop of one's own for a test: an X server with a window manager, a home and settings that
# nobody else sees, and a user's hands. Sourced by the tests of this folder.
#
# KESTREL_EDITOR  the program under test (default: the release build)
# LANG            the language of programs that are started (default: en_US.UTF-8)

set -euo pipefail
desktopFolder=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
# shellcheck source=tools/display.sh
source "$desktopFolder/../../tools/display.sh"

kPatience=20
started=()

# The screen is left for the one who looks into it.
Fail() {
    echo "FAILED: $*" >&2
    import -silent -window root "$scratch.png" && echo "screen: $scratch.png" >&2
    sed 's/^/program: /' "$scratch/editor.log" >&2
    exit 1
}

Kill() {
    kill -KILL "$1" 2>/dev/null || true
    wait "$1" 2>/dev/null || true
}

# Ends what the test started, and nothing else.
EndDesktop() {
    for process in "${started[@]}"; do Kill "$process"; done
    StopDisplay
    rm -rf "$scratch"
}

StartDesktop() {
    scratch=$(mktemp -d)
    trap EndDesktop EXIT
    # shellcheck disable=SC2034  # for the tests
    files=$scratch/files
    mkdir -m 700 "$scratch"/{files,bin,home,config,data,run}
    # The program may keep settings beside itself, so each test runs a copy.
    program=$scratch/bin/KestrelIconEditor
    cp "${KESTREL_EDITOR:-"$desktopFolder/../../build/bin/KestrelIconEditor"}" "$program"
    export HOME=$scratch/home XDG_CONFIG_HOME=$scratch/config XDG_DATA_HOME=$scratch/data
    export XDG_RUNTIME_DIR=$scratch/run XDG_CACHE_HOME=$scratch/home/.cache
    export LC_ALL=C.UTF-8 QT_QPA_PLATFORM=xcb NO_AT_BRIDGE=1
    unset LANG LC_MESSAGES LANGUAGE DBUS_SESSION_BUS_ADDRESS QT_SCALE_FACTOR QT_STYLE_OVERRIDE
    StartDisplay "$scratch" || Fail "no display"
}

# Start <command> [argument...]: runs it beside the test; its process id is in lastStarted.
# Interrupts would be ignored, as in a job of the background.
Start() {
    env --default-signal=INT -u LC_ALL LANG="${LANG-en_US.UTF-8}" "$@" >>"$scratch/editor.log" 2>&1 </dev/null &
    lastStarted=$!
    started+=("$lastStarted")
}

# StartEditor <title> [argument...]: waits for its window; its process id is in editor.
StartEditor() {
    Start "$program" "${@:2}"
    editor=$lastStarted
    WaitForWindow "$1"
}

# WaitForWindow <title pattern>: waits until such a window has the keyboard; its id is in window.
WaitForWindow() {
    WaitFor "$kPatience" HasKeyboard "$1" || Fail "no window \"$1\" came to the front"
}

# A window manager calls a window active a moment before keys go to it.
HasKeyboard() {
    window=$(xdotool getactivewindow 2>/dev/null) || return 1
    [[ $(xdotool getwindowfocus 2>/dev/null) == "$window" ]] || return 1
    # shellcheck disable=SC2053  # the right side is a pattern on purpose
    [[ $(xdotool getwindowname "$window" 2>/dev/null) == $1 ]]
}

Press() { xdotool key --clearmodifiers "$@"; }

# Drag <button> <x> <y> <x> <y>: from point to point of the window.
Drag() {
    xdotool mousemove --window "$window" "$2" "$3" mousedown "$1" \
        mousemove --window "$window" "$4" "$5" mouseup "$1"
}

# OpenMenu <letter>: by keyboard. The menu bar comes a moment after its window.
OpenMenu() { WaitFor "$kPatience" MenuOpens "$1" || Fail "Alt+$1 opens no menu"; }
MenuOpens() {
    Press "alt+$1"
    WaitFor 1 MenuIsOpen
}
MenuIsOpen() { [[ $(xdotool search --onlyvisible --class KestrelIconEditor 2>/dev/null | wc -l) -gt 1 ]]; }

# CellHas <column> <row> <RRGGBB>: what the screen shows of an icon's pixel.
CellHas() {
    shown=$(import -silent -window "$window" -crop "1x1+$((17 + 10 * $1))+$((74 + 10 * $2))" \
        -depth 8 rgb:- | od -An -tx1 | tr -d ' ')
    [[ $shown == "$3" ]]
}
ExpectCell() { WaitFor "$kPatience" CellHas "$@" || Fail "cell ($1, $2) shows $shown, not $3"; }

# PaintCell <column> <row> <button> <RRGGBB>: clicks until the cell shows the colour, since the grid
# ignores the mouse for a quarter of a second after Open.
PaintCell() { WaitFor "$kPatience" CellTakes "$@" || Fail "cell ($1, $2) cannot be painted $4"; }
CellTakes() {
    local x=$((17 + 10 * $1)) y=$((74 + 10 * $2))
    Drag "$3" "$x" "$y" "$x" "$y"
    WaitFor 2 CellHas "$1" "$2" "$4"
}

# ExpectBox <title> <text pattern>: a message box with this title and text is in front.
ExpectBox() {
    text=
    WaitFor "$kPatience" BoxSays "$@" || Fail "no box \"$1\" says \"$2\" but \"$text\""
}
# The text is read by marking it with the mouse as a user would. A box may bear the title of the
# dialog that it stands over.
BoxSays() {
    local width height
    HasKeyboard "$1" || return 1
    read -r width height < <(xwininfo -id "$window" | awk '/Width:|Height:/ {print $NF}' | xargs)
    [[ $height -lt 300 ]] || return 1
    Drag 1 63 14 $((width - 5)) $((height - 5))
    text=$(timeout 5 xclip -o -selection primary 2>/dev/null) || true
    # shellcheck disable=SC2053  # the right side is a pattern on purpose
    [[ $text == $2 ]]
}

# ExpectError <text pattern> <title>: an error says so, and the window of this title goes on.
ExpectError() {
    ExpectBox 'KestrelIconEditor - Error' "$1"
    Press Return
    WaitForWindow "$2"
}

# AnswerDialog <title> <path>: types the path into the file dialog in front and accepts it.
AnswerDialog() {
    WaitForWindow "$1"
    Press ctrl+a
    xdotool type --delay 5 -- "$2"
    Press Return
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

# WaitForEnd: the editor closed its window and left without an error.
WaitForEnd() {
    WaitFor "$kPatience" ProcessEnded "$editor" || Fail "the editor is still running"
    wait "$editor" || Fail "the editor ended with status $?"
}
ProcessEnded() { ! kill -0 "$1" 2>/dev/null; }

# ExpectMemory <kB>: the editor has never taken more.
ExpectMemory() {
    awk -v most="$1" '/VmHWM/ && $2 >= most {print; exit 1}' "/proc/$editor/status" ||
        Fail "the editor took more than $1 kB"
}
