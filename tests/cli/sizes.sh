#!/usr/bin/env bash
# Icons and cursors of several sizes, as icotool, ImageMagick and this program's own reader see
# them, against exact averages of areas.
# shellcheck source=tests/cli/cli.sh
source "$(dirname "$0")/cli.sh"

# SameImages <file> <kind> <side of each image>...: the images are those in area/SIDE, for all.
SameImages() {
    local file=$1 kind=$2 number=0 side
    rm -rf read && mkdir read
    icotool -x -o read "$file"
    Icon extract --png --into read "$file"
    for side in "${@:3}"; do
        number=$((number + 1))
        for seen in read/*_"${number}"_* read/*-1-"$number".png "$kind:${file}[$((number - 1))]"; do
            Pixels "$seen" | cmp - "area/$side" || Fail "$file: $side, $seen"
        done
    done
}

# Areas <picture> <width> <height> <side>...
Areas() {
    rm -rf area && mkdir area
    Magick "$1" -depth 8 rgba:pixels
    for side in "${@:4}"; do python3 "$tests/cli/area.py" "$2" "$3" "$side" <pixels >"area/$side"; done
}

# Half transparent in all degrees, no square, larger and smaller than what it becomes; also where a
# whole multiple repeats pixels.
Magick opaque.png -resize 40x25! \( -size 40x25 gradient:white-black \) -alpha off \
    -compose copy_opacity -composite PNG32:shaded.png
sides=(16 7 40 48 80)
Areas shaded.png 40 25 "${sides[@]}"
Icon convert --sizes 16,7,40,48,80 shaded.png out.ico
SameImages out.ico ico "${sides[@]}"
# All pixels of what is larger than an icon's image can be, also interlaced.
Magick shaded.png -sample 2000x1250! -interlace PNG PNG32:large.png
Icon convert --sizes 16,7,40,48,80 large.png large.ico
cmp out.ico large.ico || Fail 'a large PNG'
Icon convert --sizes 16,7,40,48,80 --hotspot 8,15 shaded.png out.cur
SameImages out.cur cur "${sides[@]}"
[[ $(icotool -l out.cur | sed -E 's/.*x=([0-9]+).*y=/\1,/' | paste -sd' ') == \
    '8,15 3,6 20,37 24,45 40,75' ]] || Fail "hotspots: $(icotool -l out.cur)"

# Each size of the image that serves it best, of all files: the smallest that is large enough.
for color in red:10 lime:32 blue:60; do
    Magick -size "${color#*:}x${color#*:}" "xc:${color%:*}" PNG32:"${color%:*}.png"
done
icotool -c -o two.ico red.png blue.png
Icon convert --sizes 256,8,24,10,48,32 lime.png two.ico best.ico
Icon extract --png best.ico
for number in 1:blue 2:red 3:lime 4:red 5:blue 6:lime; do
    [[ $(Magick "best-1-${number%:*}.png" -scale 1x1! txt:-) == *" ${number#*:}" ]] ||
        Fail "best source: $number"
done
[[ $(Icon info best.ico | head -1) == '1: 256 x 256, 32 bits, PNG' ]] || Fail '256 as PNG'
# What is wholly or nearly transparent stays so; old readers go by the mask.
Magick -size 8x8 xc:'rgba(200,10,20,0.2)' -region 8x4+0+0 -alpha transparent +region PNG32:faint.png
Areas faint.png 8 8 8
Icon convert --sizes 8 faint.png faint.ico
SameImages faint.ico ico 8
[[ $(tail -c 32 faint.ico | od -An -tx1 -w4 -v | sort -u) == ' ff 00 00 00' ]] || Fail 'mask'

# Without sizes a cursor is an icon of the editor with another head, and keeps its hotspot.
Icon convert --hotspot 3,30 holed.png own.cur
Icon convert holed.png own.ico
cmp <(tail -c +15 own.cur) <(tail -c +15 own.ico) || Fail 'a cursor of 32 x 32'
Icon apply invert own.cur - --format cur | Icon convert --sizes 16,8 - twice.cur
[[ $(icotool -l twice.cur | grep -c 'x=1 .*y=15$\|x=0 .*y=7$') -eq 2 ]] || Fail 'hotspot kept'
