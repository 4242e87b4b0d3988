#!/usr/bin/env bash
# What one start leaves to the next: language, recent files and damaged settings, and the lock.
# shellcheck source=tests/desktop/desktop.sh
source "$(dirname "$0")/desktop.sh"
StartDesktop

registry=$XDG_CONFIG_HOME/KestrelIconEditor/registry.ini
settings=$scratch/bin/KestrelIconEditor.ini
mkdir "${registry%/*}"
head -c 3000 "$program" | tee "$registry" >"$settings"
convert -size 32x32 xc:'#c00000' "$files/Red.ico"

StartEditor '* - Red.ico' /open "$files/Red.ico"
OpenMenu v
Press Right Return # Language, Chinese
Press ctrl+n
WaitForWindow '* - 未命名'
Quit
for file in "$registry" "$settings"; do
    cmp "$file.damaged" <(head -c 3000 "$program") || Fail "${file##*/} is not kept"
done

StartEditor '* - 未命名'
OpenMenu v # the letter is the same
Press Right Down Return
WaitForWindow '* - Untitled'
OpenMenu f
Press f Return
WaitForWindow '* - Red.ico'

# A second start says so in the session's language and ends; the first goes on.
first=$editor
LANG=zh_CN.UTF-8 StartEditor '错误!'
ExpectBox '错误!' '请不要重复运行程序！'
Press Return
WaitForEnd
WaitForWindow '* - Red.ico'
PaintCell 5 5 1 000000
# The lock goes with the process, also when that is killed.
Kill "$first"
while IsWindowTitled '* - Red.ico'; do sleep 0.1; done
StartEditor 'KestrelIconEditor'
Press alt+n # nothing is restored
WaitForWindow '* - Untitled'
Quit
