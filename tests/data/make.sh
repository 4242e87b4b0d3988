#!/bin/sh
# Makes the icon files of this folder and their witnesses anew, in the folder it is run from:
#     mkdir /tmp/icons && cd /tmp/icons && sh <this file> && diff -r . <this folder>
# Needs icotool (icoutils 0.32.3), ImageMagick 6.9.11 (other versions may pack PNGs otherwise) and this project's make_library, which MAKE_LIBRARY may name.
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

# u16 <number>..., u32 <number>...: the lowest byte first.
# shellcheck disable=SC2059  # the format is made of the bytes
u16() { for n; do printf "\\$(printf %o $((n & 255)))\\$(printf %o $((n >> 8 & 255)))"; done; }
u32() { for n; do u16 $((n & 65535)) $((n >> 16)); done; }
zeros() { head -c "$1" /dev/zero; }

# The image of an icon file that has one, filled up to units of 16 bytes, and how many these are.
image() {
    tail -c +23 "$1"
    zeros $(((22 - $(wc -c <"$1")) & 15))
}
units() { image "$1" | wc -c | awk '{ print $1 / 16 }'; }

# A program of 16 bits: header for DOS, header, from byte 128 on the table of resources (two icons
# and the group "ICON"), from 192 on the icons and the group, all in units of 16 bytes.
{
    printf MZ && zeros 58 && u32 64
    printf NE && zeros 34 && u16 64 144 && zeros 14 && printf '\2' && zeros 9
    first=12 second=$((12 + $(units bits4.ico)))
    group=$((second + $(units bits24.ico)))
    u16 4
    u16 32771 2 0 0 && u16 $first $((second - first)) 0 32769 0 0 $second $((group - second)) 0 32770 0 0
    u16 32782 1 0 0 && u16 $group 3 0 56 0 0
    u16 0 && printf '\4ICON' && zeros 3
    image bits4.ico && image bits24.ico
    u16 0 1 2 && tail -c +7 bits4.ico | head -c 12 && u16 1
    tail -c +7 bits24.ico | head -c 12 && u16 2 && zeros 14
} >icons16.icl

# An animation of two frames and three steps: the second, the first, the second.
chunk() { printf %s "$1" && u32 "$(wc -c <"$work/chunk")" && cat "$work/chunk"; }
{
    printf 'RIFF\0\0\0\0ACON'
    u32 36 2 3 0 0 0 0 10 3 >"$work/chunk" && chunk anih
    {
        printf fram
        for file in bits4.ico bits8.ico; do cp $file "$work/chunk" && chunk icon; done
    } >"$work/list" && cp "$work/list" "$work/chunk" && chunk LIST
    u32 1 0 1 >"$work/chunk" && chunk 'seq '
} >frames.ani
"${MAKE_LIBRARY:-make_library}" icons32.dll "$(dirname "$0")"/*.xpm

for file in *.ico *.cur; do witness "$file"; done
cp bits4-0.pam icons16-0.pam
cp bits24-0.pam icons16-1.pam
for n in 0 1 2; do cp bits$((8 - 4 * (n & 1)))-0.pam frames-$n.pam; done
n=0
for picture in 01-disc 01-disc-16 02-ramp; do
    convert "$(dirname "$0")/$picture.xpm" -alpha set -type TrueColorAlpha -depth 8 pam:icons32-$n.pam
    n=$((n + 1))
done
