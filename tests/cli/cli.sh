# shellcheck shell=bash disable=SC2034
# What the tests of this folder share: the program, a scratch folder to stand in, and comparisons.
# Sourced by them.
set -euo pipefail
tests=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
data=$tests/data
sample=$tests/../samples/kestrel.ico
program=${KESTREL_ICON:-$tests/../build/bin/kestrel-icon}
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
cd "$scratch"

Fail() {
    echo "FAILED: $*" >&2
    exit 1
}

Icon() { "$program" "$@"; }
# By its full name: other programs are called convert too.
Magick() { convert-im6.q16 "$@"; }

# Pixels <picture> [ImageMagick option]...: red, green, blue and alpha; the transparent are black.
Pixels() { Magick "$@" -alpha set -background black -alpha background -depth 8 rgba:-; }

# SamePixels <what> <picture> <picture> [option for the second]...
SamePixels() {
    local what=$1 first=$2
    shift 2
    cmp <(Pixels "$first") <(Pixels "$@") || Fail "$what"
}

# An opaque picture in which no two halves are alike, and one with a transparent corner.
Magick -size 32x32 gradient:'#20C040'-'#6010E0' -distort SRT 30 -fill '#F02010' \
    -draw 'circle 10,8 10,3' -strip -define png:exclude-chunks=date,time -depth 8 PNG24:opaque.png
Magick opaque.png -alpha set -region 10x10+16+2 -channel A -evaluate set 0 +channel +region \
    PNG32:holed.png
