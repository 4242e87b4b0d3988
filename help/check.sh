#!/usr/bin/env bash
# Both help pages have the same anchors, no dead link, the program's own captions, every command and
# every window.
set -euo pipefail
cd "$(dirname "$0")"
export LC_ALL=C.UTF-8
tables=(../src/commands/{CommandTable,CommandTable_MenuBar,ModLanguage}.cpp ../src/i18n/{Captions.h,ClassicMenu.cpp} ../src/editing/ToolTable.cpp)
pictures='(0[1-9]|[123][0-9]|40|tool-(0[1-9]|1[0-2])|well-0[1-5]|zoom(-0[12])?|capture|filters/(original|mnu[A-Za-z0-9]+)|page)'
# Made in both languages; each page shows all of its own.
windows=(about coladj fit gamma icons shades states window)
fault=0
Fault() { echo "help/$*" >&2; fault=1; }

Page() { tr '\n' ' ' <"$1/index.html"; }
Anchors() { Page "$1" | grep -oP '<a name="\K[^"]*' || true; }
# Captions of the commands that are shown in the menus.
Commands() {
    grep -oP '^    \{"mnu\w*", "\w*", \w+, \K\{"[^"]+", "[^"]+"\}' ../src/commands/CommandTable_MenuBar.cpp |
        Column "$1"
}
# Pairs {"English", "Chinese"}; the first column for ENG, the second for CHS.
Captions() {
    cat "${tables[@]}" | tr '\n' ' ' | grep -oP '\{"[^"]*",\s*"[^"]*"\}' | Column "$1"
}
Column() {
    awk -F'"' -v column="$([[ $1 == ENG ]] && echo 2 || echo 4)" '{print $column}' | sed 's/&//; s/ *$//'
}

[[ -n $(Anchors ENG) ]] || Fault 'ENG: no anchors'
[[ $(Anchors ENG) == "$(Anchors CHS)" ]] || Fault 'CHS: anchors differ from ENG'
for page in ENG CHS; do
    anchors=$(Anchors $page) captions=$(Captions $page)
    marked=$(Page $page | grep -oP '<b class="cmd">\K.*?(?=</b>)' | sort -u)
    grep -q 'class="cmd"' $page/index.html || Fault "$page: no caption marked"
    while IFS= read -r name; do
        Fault "$page: anchor $name twice"
    done < <(sort <<<"$anchors" | uniq -d)
    while IFS= read -r link; do
        grep -qxF -- "$link" <<<"$anchors" || Fault "$page: no anchor for #$link"
    done < <(Page $page | grep -oP 'href="#\K[^"]*')
    while IFS= read -r file; do
        [[ -f $page/$file ]] || Fault "$page: no file $file"
    done < <(Page $page | grep -oP 'href="\K[^"#:]+(?=")')
    window=$(IFS='|'; echo "(${windows[*]})")
    for name in "${windows[@]}"; do
        grep -q "pictures/$name-$page.png" $page/index.html || Fault "$page: no picture of $name"
    done
    while IFS= read -r image; do
        [[ $image =~ src=\"\.\./pictures/($pictures|$window-$page)\.png\" ]] || Fault "$page: $image"
    done < <(Page $page | grep -oP '<img[^>]*>')
    while IFS= read -r caption; do
        [[ -z $caption ]] || Fault "$page: no caption \"$caption\""
    done < <(comm -23 <(echo "$marked") <(echo "$captions" | sort -u))
    while IFS= read -r command; do
        Fault "$page: nothing about the command \"$command\""
    done < <(comm -13 <(echo "$marked") <(Commands $page | sort -u))
done
exit $fault
