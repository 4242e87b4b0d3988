#!/usr/bin/env bash
# An include goes down or stays on its floor, and Qt stays where windows and the desktop are.
# Prints file:line of every breach.
set -euo pipefail
cd "$(dirname "$0")/../.."

# Each folder with its floor; the innermost folder that is listed counts.
floors='platform=0 i18n=0 formats=1 services=1 settings=1 document=2 editing=3 imaging=3 tools=3
commands=4 desktop=4 windows=5 app=6'
knowsQt='desktop windows app/main.cpp'
# The second program, which stands beside the floors.
cliStandsOn='cli imaging document formats services platform'

mapfile -d '' -t sources < <(find src cli \( -name '*.cpp' -o -name '*.h' \) -print0 | sort -z)
[[ ${#sources[@]} -gt 0 ]] || { echo "No C++ file found" >&2; exit 1; }

awk -v floors="$floors" -v knowsQt="$knowsQt" -v cliStandsOn="$cliStandsOn" '
BEGIN {
    count = split(floors, rows)
    for (i = 1; i <= count; i++) { split(rows[i], row, "="); floor[row[1]] = row[2] }
    count = split(knowsQt, rows)
    for (i = 1; i <= count; i++) qt[rows[i]]
    count = split(cliStandsOn, rows)
    for (i = 1; i <= count; i++) below["cli", rows[i]]
}

function folderOf(path) { sub(/\/.*/, "", path); return path }

function breach(why) {
    printf "%s:%d: %s: %s\n", FILENAME, FNR, target, why
    breaches++
}

FNR == 1 { path = FILENAME; sub(/^src\//, "", path); from = folderOf(path) }

/^[ \t]*#[ \t]*include[ \t]*</ {
    target = $0
    gsub(/^[^<]*<|>.*/, "", target)
    if (target ~ /^(Q|q[a-z]+\.h$|private\/q)/ && !(from in qt) && !(path in qt)) breach("Qt is not known here")
}

/^[ \t]*#[ \t]*include[ \t]*"/ {
    target = $0
    gsub(/^[^"]*"|".*/, "", target)
    if (target ~ /\.moc$/ || target ~ /^resources\//) next
    to = folderOf(target)
    if (from == "cli") {
        if (!((from, to) in below)) breach("cli does not stand on " to)
    } else if (!(from in floor) || !(to in floor)) {
        breach("a folder without a floor")
    } else if (floor[to] > floor[from]) {
        breach("climbs from " from " to " to)
    }
}

END { exit breaches > 0 }
' "${sources[@]}"
echo "${#sources[@]} files include downwards only"
