# shellcheck shell=bash
# A private X display with a window manager, and the few questions one asks it from outside.
# Sourced by ./run, the desktop tests and the start-up measurement; bash.

displayTools=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
displayServer=
windowManager=

# WaitFor <seconds> <command> [argument...]: runs the command until it succeeds or the time is up.
WaitFor() {
    local deadline=$((SECONDS + $1))
    shift
    until "$@"; do
        [[ $SECONDS -lt $deadline ]] || return 1
        sleep 0.05
    done
}

# StartDisplay <scratch folder> [width x height]: starts an X server on the first free display
# number, at 24 bits, with a window manager, and points DISPLAY at it. Returns once windows are
# managed.
StartDisplay() {
    local scratch=$1
    Xvfb -displayfd 3 -screen 0 "${2:-1024x768}x24" -nolisten tcp -noreset -ac \
        3>"$scratch/display" >"$scratch/Xvfb.log" 2>&1 </dev/null &
    displayServer=$!
    if ! WaitFor 20 test -s "$scratch/display"; then
        cat "$scratch/Xvfb.log" >&2
        return 1
    fi
    DISPLAY=:$(<"$scratch/display")
    export DISPLAY
    unset WAYLAND_DISPLAY XAUTHORITY
    StartWindowManager "$scratch"
}

# openbox announces itself on the root window and only then looks for fonts, which takes seconds
# where none are cached; a window that asks to be mapped meanwhile never appears. It runs its
# start-up command when it is ready for windows.
StartWindowManager() {
    local scratch=$1
    openbox --sm-disable --config-file "$displayTools/openbox.xml" \
        --startup "touch ${scratch@Q}/managed" >"$scratch/openbox.log" 2>&1 </dev/null &
    windowManager=$!
    if ! WaitFor 60 test -e "$scratch/managed"; then
        cat "$scratch/openbox.log" >&2
        return 1
    fi
}

# Ends what StartDisplay started, and nothing else.
StopDisplay() {
    local process
    for process in $windowManager $displayServer; do
        kill "$process" 2>/dev/null || true
        wait "$process" 2>/dev/null || true
    done
    displayServer=
    windowManager=
}

# WindowTitled <pattern>: prints the id of a managed window whose whole title matches the shell
# pattern without regard to letter case; fails when there is none.
WindowTitled() {
    local id title
    for id in $(xprop -root -notype _NET_CLIENT_LIST 2>/dev/null | grep -o '0x[0-9a-f]*'); do
        title=$(xdotool getwindowname "$id" 2>/dev/null) || continue
        # shellcheck disable=SC2053  # the right side is a pattern on purpose
        if [[ ${title,,} == ${1,,} ]]; then
            echo "$id"
            return 0
        fi
    done
    return 1
}

IsWindowTitled() { WindowTitled "$1" >/dev/null; }

# Screenshot <file>: the whole screen once it has stopped changing (two equal pictures in a row).
Screenshot() {
    local before='' now
    for _ in {1..25}; do
        now=$(import -silent -window root -depth 8 rgb:- | sha256sum)
        [[ $now != "$before" ]] || break
        before=$now
        sleep 0.1
    done
    import -silent -window root "$1"
}
