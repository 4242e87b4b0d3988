#!/usr/bin/env bash
# A second start on the same display says so in the session's language and ends; the first goes on.
# shellcheck source=tests/desktop/desktop.sh
source "$(dirname "$0")/desktop.sh"
StartDesktop

StartEditor
first=$editor
WaitForWindow 'KestrelIconEditor - Untitled'
while IFS='|' read -r sessionLocale title text; do
    StartEditor
    ExpectBox "$title" "$text"
    Press Return
    WaitForEnd
    WaitForWindow 'KestrelIconEditor - Untitled'
done <<'LANGUAGES'
en_US.UTF-8|error!|Program is running !
zh_CN.UTF-8|错误!|请不要重复运行程序！
LANGUAGES

sessionLocale=en_US.UTF-8
editor=$first
WaitForWindow 'KestrelIconEditor - Untitled'
PaintCell 5 5 1 000000
QuitUnsaved

# The lock goes with the process, also when that is killed.
StartEditor
WaitForWindow 'KestrelIconEditor - Untitled'
kill -KILL "$editor"
WaitForNoWindow 'KestrelIconEditor - Untitled'
StartEditor
WaitForWindow 'KestrelIconEditor - Untitled'
Quit
