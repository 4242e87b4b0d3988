#!/usr/bin/env bash
# The icon library's pictures are of one hand: forty colours, whole pixels, air at the edge, no gap.
set -euo pipefail
cd "$(dirname "$0")/../../resources/library"
awk '
function Fault(what) { print FILENAME ": " what > "/dev/stderr"; faults = 1 }
BEGIN {
    ramps = "101014 2E2E36 4C4C58 6E6E7C 9494A2 BABAC6 DEDEE6 FFFFFF 14284C 1F4E8C 3A7BC8 7DB4EE " \
        "0E3C40 17707A 2FA8AE 86DBD8 163A1C 2B6E2E 54A544 A2D86A 6A4A08 B8860E F0BE2C FFE68A " \
        "5A2A0C A9541A E88A34 FFC488 4E1018 9C1F2C D9434A F59A94 2E1A4C 5A3488 8E5CC4 C8A4EC " \
        "3A2418 6E4A30 A87C52 DEB88A"
    split(ramps, names, " ")
    for (i in names) known["#" names[i]] = 1
}
# The small picture of an icon is sorted before the large one.
FNR == 1 {
    row = 0
    side = FILENAME ~ /-16\.xpm$/ ? 16 : 32
    if (side == 32) ++number
    pattern = sprintf("^%02d-[a-z-]+(-16)?\\.xpm$", side == 32 ? number : number + 1)
    if (FILENAME !~ pattern) Fault("is not number " (side == 32 ? number : number + 1))
}
!/^"/ { next }
{ text = $0; sub(/^"/, "", text); sub(/",?$/, "", text) }
row == 0 { split(text, head, " "); colors = head[3]; if (text !~ "^" side " " side " [0-9]+ 1$") Fault("size") }
row >= 1 && row <= colors {
    split(substr(text, 2), words, " ")
    if (words[2] == "None") clear = substr(text, 1, 1)
    else if (!(words[2] in known)) Fault("colour " words[2])
}
row > colors {
    line = row - colors
    edge = line == 1 || line == side ? text : substr(text, 1, 1) substr(text, side)
    gsub("[" clear "]", "", edge)
    if (length(text) != side || edge != "") Fault("line " line)
}
{ ++row }
END { if (number < 96) { print number " pictures" > "/dev/stderr"; faults = 1 }; exit faults }
' $(printf '%s\n' *.xpm | LC_ALL=C sort)
