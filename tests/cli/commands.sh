#!/usr/bin/env bash
# What the commands, the gradient and the palette make of their input.
# shellcheck source=tests/cli/cli.sh
source "$(dirname "$0")/cli.sh"

# Apply <commands> <picture> [option]...: leaves the result in out.png.
Apply() { Icon apply "${@:3}" "$1" "$2" out.png; }

# Commands that ImageMagick has, too: on both planes, or on opaque pixels.
while read -r key options; do
    Apply "$key" holed.png
    read -ra words <<<"$options"
    SamePixels "$key" out.png holed.png "${words[@]}"
done <<'END'
mnuRotateOpts0 -rotate -90
mnuRotateOpts1 -rotate 90
mnuRotateOpts3 -flop
mnuRotateOpts4 -flip
mnuMirrorOpts0 -crop 16x32+0+0 +repage ( +clone -flop ) +append
mnuMirrorOpts1 -crop 16x32+16+0 +repage ( +clone -flop ) +swap +append
mnuMirrorOpts2 -crop 32x16+0+0 +repage ( +clone -flip ) -append
mnuMirrorOpts3 -crop 32x16+0+16 +repage ( +clone -flip ) +swap -append
mnuNegative -channel RGB -negate +channel
mnuImageOpts3 -channel RGB -negate +channel
END

# 0.222 R + 0.707 G + 0.071 B of 240, 32, 16, rounded; and rings darkened by 64, 32, 16 and 8.
Magick -size 32x32 'xc:rgb(240,32,16)' PNG24:plain.png
Apply mnuImageOpts2 plain.png
[[ $(Levels out.png 1x1+5+5) == '77 77 77' ]] || Fail 'grayscale is weighed otherwise'
Apply mnuImageOpts1 plain.png
[[ $(Levels out.png 5x1+0+9) == '176 0 0 208 0 0 224 16 0 232 24 8 240 32 16' ]] ||
    Fail 'the rings are darkened otherwise'

# Every filter runs and leaves the mask alone.
keys=$(Icon apply --help | grep -o 'mnu[A-Za-z0-9]*' | grep -v Opts | sort -u)
[[ $(wc -w <<<"$keys") -eq 40 ]] || Fail 'not 40 filters'
for key in $keys; do
    command=$key
    [[ $key != mnuGamma ]] || command=mnuGamma=150
    Apply "$command" holed.png
    cmp <(Magick out.png -alpha extract gray:-) <(Magick holed.png -alpha extract gray:-) ||
        Fail "$key changes the mask"
done

# In the order given: turned first, the left half is what was the bottom.
Apply mnuRotateOpts1,mnuMirrorOpts0 holed.png
SamePixels 'the order is another' out.png holed.png -rotate 90 \
    -crop 16x32+0+0 +repage '(' +clone -flop ')' +append

# Over 32 columns black turns into white by 255 / 32 a step, halves to the even neighbour. Gamma 2
# then takes the root.
Icon gradient --from 0,0,0 --to 255,255,255 ramp.ico
expected=$(awk 'BEGIN {for (x = 0; x < 32; ++x) {v = sprintf("%.0f", x * 255 / 32); print v, v, v}}' | xargs)
[[ $(Levels ramp.ico 32x1+0+13) == "$expected" ]] || Fail 'the gradient has other columns'
Apply mnuGamma=200 ramp.ico
expected=$(awk 'BEGIN {for (x = 0; x < 32; ++x) {
    v = sprintf("%.0f", 255 * sqrt(sprintf("%.0f", x * 255 / 32) / 255)); print v, v, v}}' | xargs)
[[ $(Levels out.png 32x1+0+13) == "$expected" ]] || Fail 'gamma 2 is no root'
Apply mnuGamma=100 ramp.ico
SamePixels 'gamma 1 changes colours' out.png ramp.ico

# Each quarter of a turn has the start colour on its own side; nothing is transparent.
while read -r angle corner; do
    Icon gradient --from 250,0,0 --to 0,0,250 --angle "$angle" --format png - >angle.png
    [[ $(Levels angle.png "1x1+$corner") == '250 0 0' ]] || Fail "angle $angle"
    [[ $(Magick angle.png -alpha extract -format '%[fx:minima]' info:) == 1 ]] || Fail 'transparent'
done <<'END'
0 0+16
90 16+0
180 31+16
270 16+31
360 0+16
END
# Along the diagonal the corner shares its neighbour's step, the first of 64.
Icon gradient --from 0,64,0 --to 64,0,128 --angle 225 corner.png
[[ $(Levels corner.png 1x1+31+31) == '1 63 2' && $(Levels corner.png 1x1+0+0) == '62 2 124' ]] ||
    Fail 'the diagonal has other steps'

# The same seed gives the same noise, another one another, and none a new one every time.
for key in mnuDiffuse mnuDiffuseMore mnuAddNoise; do
    for run in '--seed=7' '--seed=7' '--seed=8' '' ''; do
        # shellcheck disable=SC2086  # no word for no seed
        Icon apply $run "$key" opaque.png - | md5sum
    done >sums
    [[ $(sort -u sums | wc -l) -eq 4 && $(head -2 sums | sort -u | wc -l) -eq 1 ]] ||
        Fail "$key: seeds"
done

# The palette, from the table of its colours in hexadecimal.
Icon palette own.pal
{
    printf 'JASC\r\n'
    # shellcheck disable=SC2046  # one argument for each number
    printf '\r\n%d' $(tr -s ' \n' '\n' <"$data/default_palette.txt" | sed 's/^/0x/')
} | cmp - own.pal || Fail 'the palette is another'
