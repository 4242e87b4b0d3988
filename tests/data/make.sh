#!/bin/sh
# Makes the icon files of this folder and their witnesses anew, in the folder it is run from:
#     mkdir /tmp/icons && cd /tmp/icons && sh <this file> && diff -r . <this folder>
# Needs icotool (icoutils 0.32.3) and ImageMagick 6.9.11; other versions may pack PNGs otherwise.
set -eu

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
# By its full name: other programs are called convert too.
convert() { convert-im6.q16 "$@"; }

# picture <name> <width> <height> [<convert options>]: a slanted ramp from green to violet with a
# red disc, a white stroke and a transparent corner, as a PNG without dates.
picture() {
    name=$1 w=$2 h=$3
    shift 3
    convert -size "${w}x${h}" gradient:'#20C040'-'#6010E0' -distort SRT 30 \
        -fill '#F02010' -draw "circle $((w / 3)),$((h / 3)) $((w / 3)),$((h / 8))" \
        -stroke white -strokewidth 2 -fill none -draw "line 0,$((h - 1)) $((w - 1)),0" \
        -alpha set -region "$((w / 3))x$((h / 3))+$((w / 2))+$((h / 2))" \
        -channel A -evaluate set 0 +channel +region -strip -depth 8 "$@" \
        -define png:exclude-chunks=date,time "$work/$name.png"
}

# witness <file>: its images as ImageMagick decodes them, and those that it wrote itself as icotool
# does; of large ones the middle 32 x 32.
witness() {
    case $1 in *.cur) kind=cur ;; png-named.ico) kind=png ;; *) kind=ico ;; esac
    for image in $(identify-im6.q16 -format '%s\n' "$kind:$1"); do
        crop='' shown="$kind:$1[$image]"
        case $1-$image in several.ico-3 | magick.ico-2) crop='-crop 32x32+112+112 +repage' ;; esac
        if [ "$1" = magick.ico ]; then
            icotool -x -i $((image + 1)) -o "$work/shown.png" "$1"
            shown=$work/shown.png
        fi
        # shellcheck disable=SC2086  # the crop is several words
        convert "$shown" $crop -alpha set -type TrueColorAlpha -depth 8 "pam:${1%.*}-$image.pam"
    done
}

picture 24 24 24
picture 32 32 32
picture mono 32 32 -monochrome
picture 16 16 16 +dither -colors 12
picture 48 48 48 +dither -colors 200
picture wide 127 64 +dither -colors 12
picture big 256 256 +dither -colors 14 -define png:color-type=3 -define png:bit-depth=8
picture bigrgba 256 256 +dither -colors 14 -define png:color-type=6

icotool -c -b 1 -o bits1.ico "$work/mono.png"
icotool -c -b 4 -o bits4.ico "$work/16.png"
icotool -c -b 8 -o bits8.ico "$work/48.png"
icotool -c -b 24 -o bits24.ico "$work/32.png"
icotool -c -b 32 -o bits32.ico "$work/24.png"
icotool -c -b 4 -o wide.ico "$work/wide.png"
icotool -c --cursor --hotspot-x=3 --hotspot-y=5 -b 24 -o pointer.cur "$work/24.png"
icotool -c -o several.ico -b 4 "$work/16.png" -b 8 "$work/48.png" -b 32 "$work/32.png" \
    -r "$work/big.png"

# PNGs of every type. The palette with transparency is left to ImageMagick: asked for a palette it
# drops the transparency.
picture kind0 16 16 -alpha off -monochrome -define png:color-type=0 -define png:bit-depth=1
picture kind1 48 48 -alpha off -colorspace Gray -define png:color-type=0
picture kind2 32 32 -alpha off -define png:color-type=2
picture kind3 16 16 +dither -colors 12
picture kind4 24 24 -depth 16 -define png:color-type=6 -define png:bit-depth=16
picture kind5 24 24 -colorspace Gray -define png:color-type=4
picture kind6 24 24 -channel A -fx 'i/w' +channel -interlace PNG -define png:color-type=6
picture kind7 16 16 -background magenta -alpha background -define png:color-type=2
for kind in 0 1 2 3 4 5 6 7; do set -- "$@" -r "$work/kind$kind.png"; done
icotool -c -o png-kinds.ico "$@"
cp "$work/kind3.png" png-named.ico

convert "$work/16.png" "$work/48.png" "$work/bigrgba.png" magick.ico

for file in *.ico *.cur; do witness "$file"; done
