#!/usr/bin/env bash
# What PNG files that unpack to a great deal take: peak memory and time of kestrel-icon, then of the
# editor, which opens each of them and is then offered it on the clipboard, on a display of its own:
# png_bombs.sh [build folder]
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
bin=$(realpath "${1:-$root/build}")/bin
export KESTREL_EDITOR=${KESTREL_EDITOR:-$bin/KestrelIconEditor}
# shellcheck source=tests/desktop/desktop.sh
source "$root/tests/desktop/desktop.sh"
StartDesktop
bombs=$scratch/bombs
mkdir "$bombs"

echo 'kestrel-icon info and convert, processor time'
"$bin/png_bombs" "$bombs" "${KESTREL_ICON:-$bin/kestrel-icon}"

Opened() { HasKeyboard '* - *.*' || HasKeyboard '* - Error'; }
Answered() { HasKeyboard '* - Paste' || HasKeyboard '* - Error'; }

# Both, of the editor that runs: peak memory, and processor time since its start.
Cost() {
    awk '/VmHWM/ {printf "%5.1f MB ", $2 / 1024}' "/proc/$editor/status"
    awk '{printf "%4d ms", ($14 + $15) * 10}' "/proc/$editor/stat"
}

echo 'editor, opening and pasting, processor time with its start; until the paste is answered'
for bomb in "$bombs"/*; do
    Start "$program" /open "$bomb"
    editor=$lastStarted
    WaitFor "$kPatience" Opened || Fail "$bomb is not opened"
    printf '%-32s | %s |' "${bomb##*/}" "$(Cost)"
    Kill "$editor"
    kind=image/png
    [[ $bomb == *.png ]] || kind=image/x-icon
    Start xclip -quiet -selection clipboard -t "$kind" -i "$bomb"
    owner=$lastStarted
    StartEditor '* - Untitled'
    sleep 1
    start=$(date +%s%N)
    Press ctrl+v
    if WaitFor 10 Answered; then
        answered="$((($(date +%s%N) - start) / 1000000)) ms"
    else
        answered='no answer'
    fi
    echo " $(Cost) | $answered"
    Kill "$editor"
    Kill "$owner"
done
