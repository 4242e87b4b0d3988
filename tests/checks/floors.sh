#!/usr/bin/env bash
# An include goes down or stays on its floor, and Qt stays where windows and the desktop are.
# Prints file:line of every breach.
set -euo pipefail
cd "$(dirname "$0")/../.."

mapfile -d '' -t sources < <(find src cli \( -name '*.cpp' -o -name '*.h' \) -print0 | sort -z)
awk '
BEGIN {
    split("platform 0 i18n 0 formats 1 services 1 settings 1 document 2 editing 3 imaging 3 tools 3 " \
          "commands 4 desktop 4 windows 5 app 6", words)
    for (i = 1; i in words; i += 2) floor[words[i]] = words[i + 1]
    split("desktop windows app/main.cpp", words)
    for (i in words) knowsQt[words[i]]
    # The second program, which stands beside the floors.
    split("cli imaging document formats services platform", words)
    for (i in words) cliStandsOn[words[i]]
}

function folderOf(path) { sub(/\/.*/, "", path); return path }

function breach(why) {
    printf "%s:%d: %s: %s\n", FILENAME, FNR, target, why
    breaches++
}

FNR == 1 { path = FILENAME; sub(/^src\//, "", path); from = folderOf(path); files++ }

/^[ \t]*#[ \t]*include[ \t]*[<"]/ {
    target = $0
    gsub(/^[^<"]*[<"]|[>"].*/, "", target)
    to = folderOf(target)
    if ($0 ~ /include[ \t]*</) {
        if (target ~ /^(Q|q[a-z]+\.h$|private\/q)/ && !(from in knowsQt) && !(path in knowsQt))
            breach("Qt is not known here")
    } else if (target ~ /\.moc$/ || target ~ /^resources\//) {
        next
    } else if (from == "cli") {
        if (!(to in cliStandsOn)) breach("cli does not stand on " to)
    } else if (!(from in floor) || !(to in floor)) {
        breach("a folder without a floor")
    } else if (floor[to] > floor[from]) {
        breach("climbs from " from " to " to)
    }
}

END {
    print files + 0 " files include downwards only" (breaches ? ", but for these" : "")
    exit breaches > 0 || files == 0
}
' "${sources[@]}" </dev/null
