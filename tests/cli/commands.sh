#!/usr/bin/env bash
# Commands, their values and order, gradients, seeds and the palette.
# shellcheck source=tests/cli/cli.sh
source "$(dirname "$0")/cli.sh"

# Commands that ImageMagick has, too, alone and in a row: on both planes, or on opaque pixels.
while read -r commands options; do
    Icon apply "$commands" holed.png out.png
    read -ra words <<<"$options"
    SamePixels "$commands" out.png holed.png "${words[@]}"
done <<'END'
Rotate-Left -rotate -90
mnuRotateOpts1 -rotate 90
mnurotateopts3 -flop
mnuRotateOpts4 -flip
reflect-left -crop 16x32+0+0 +repage ( +clone -flop ) +append
mnuMirrorOpts1 -crop 16x32+16+0 +repage ( +clone -flop ) +swap +append
mnuMirrorOpts2 -crop 32x16+0+0 +repage ( +clone -flip ) -append
reflect-bottom -crop 32x16+0+16 +repage ( +clone -flip ) +swap -append
mnuNegative -channel RGB -negate +channel
INVERT -channel RGB -negate +channel
gamma=200 -channel RGB -fx round(255*sqrt(u))/255 +channel
rotate-right,mnuMirrorOpts0 -rotate 90 -crop 16x32+0+0 +repage ( +clone -flop ) +append
END
# Each command has a line with a name and a key of its own.
Icon apply --help | grep -E '^  [a-z-]+ +mnu[A-Za-z0-9]+ +[a-z]' >commands
for column in 1 2; do
    count=$(awk "{ print tolower(\$$column) }" commands | sort -u | wc -l)
    [[ $count -eq 51 ]] || Fail "the help lists $count in column $column"
done

# 32 steps from the side that the angle names, the left one when left out. Nothing is transparent.
ExpectGradient() {
    local seen
    seen=$(Icon gradient --from '#Fa0040' --to 0,0,64 --format png "${@:3}" - |
        Magick png:- -alpha set -format "%[pixel:p{$1}] %[pixel:p{$2}]" info:)
    [[ $seen == 'srgba(250,0,64,1) srgba(125,0,64,1)' ]] || Fail "gradient ${*:3}: $seen"
}
ExpectGradient 0,9 16,9
ExpectGradient 9,0 9,16 --angle 90

# The same seed gives the same noise, another one another, and none a new one every time.
for seed in --seed=7 --seed=7 --seed=8 '' ''; do
    Icon apply ${seed:+"$seed"} mnuAddNoise opaque.png - | md5sum
done >sums
[[ $(sort -u sums | wc -l) -eq 4 && $(head -2 sums | sort -u | wc -l) -eq 1 ]] || Fail 'seeds'

# The palette, from the table of its colours in hexadecimal.
Icon palette own.pal
{
    printf 'JASC\r\n'
    # shellcheck disable=SC2046  # one argument for each number
    printf '\r\n%d' $(tr -s ' \n' '\n' <"$data/default_palette.txt" | sed 's/^/0x/')
} | cmp - own.pal || Fail 'the palette is another'
