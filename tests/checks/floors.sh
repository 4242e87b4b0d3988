#!/usr/bin/env bash
# An include goes down or stays on its floor, and Qt stays in the windows: floors.sh [repository].
# Prints file:line of every breach.
set -euo pipefail
cd "${1:-"$(dirname "$0")/../.."}"

mapfile -d '' -t sources < <(find src cli \( -name '*.cpp' -o -name '*.h' \) -print0 | sort -z)
if [[ ${#sources[@]} -eq 0 ]]; then
    echo "No C++ file found" >&2
    exit 1
fi

awk '
BEGIN {
    split("platform=0 i18n=1 document=2 editing=3 imaging=4 tools=4 app=5 cli=6", rows, " ")
    for (i in rows) { split(rows[i], row, "="); floor[row[1]] = row[2] }
    # What each room of the platform may stand on besides itself and the headers above them all.
    below["gdi"] = " "
    below["system"] = " "
    below["icons"] = " gdi system "
    below["dialogs"] = " gdi icons system "
    below["controls"] = " gdi "
    below["desktop"] = " gdi "
    below["qt"] = " gdi icons system dialogs controls desktop "
}

FNR == 1 { path = FILENAME; sub(/^src\//, "", path) }

# Only these know Qt; whoever includes their headers knows it too.
function isWindow(path) {
    return path ~ /^platform\/qt\// || path ~ /(^|\/)[Ff]rm[^\/]*$/ || path == "app/main.cpp"
}

function room(path, parts) {
    return split(path, parts, "/") > 2 && parts[1] == "platform" ? parts[2] : ""
}

function breach(why) {
    printf "%s:%d: %s: %s\n", FILENAME, FNR, target, why
    breaches++
}

function checkFloors(from, to, fromParts, toParts) {
    split(from, fromParts, "/")
    split(to, toParts, "/")
    if (!(fromParts[1] in floor)) { breach("the folder " fromParts[1] " has no floor"); return }
    if (!(toParts[1] in floor)) { breach("not a path from src/ or cli/"); return }
    if (floor[toParts[1]] > floor[fromParts[1]]) breach("climbs from " fromParts[1] " to " toParts[1])
}

function checkRooms(from, to) {
    if (from == to || to == "") return
    if (from == "") { breach("platform headers for all stand below " to); return }
    if (!(from in below)) { breach("the room platform/" from " has no place"); return }
    if (index(below[from], " " to " ") == 0) breach("platform/" from " does not stand on platform/" to)
}

/^[ \t]*#[ \t]*include[ \t]*</ {
    target = $0
    sub(/^[^<]*</, "", target)
    sub(/>.*/, "", target)
    if (target ~ /^(Q|q[a-z]+\.h$|private\/q)/ && !isWindow(path)) breach("Qt outside the windows")
}

/^[ \t]*#[ \t]*include[ \t]*"/ {
    target = $0
    sub(/^[^"]*"/, "", target)
    sub(/".*/, "", target)
    if (target ~ /\.moc$/ || target ~ /^resources\//) next
    checkFloors(path, target)
    if (path ~ /^platform\//) checkRooms(room(path), room(target))
    if (isWindow(target) && !isWindow(path)) breach("a window header outside the windows")
}

END { exit breaches > 0 }
' "${sources[@]}"
echo "${#sources[@]} files include downwards only"
