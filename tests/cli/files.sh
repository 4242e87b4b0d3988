#!/usr/bin/env bash
# Reading and writing: each kind of input and output against other programs.
# shellcheck source=tests/cli/cli.sh
source "$(dirname "$0")/cli.sh"

# Icons of 32 x 32 stay as they are, whatever their depth.
for icon in "$sample" "$data"/bits1.ico "$data"/bits24.ico; do
    Icon convert "$icon" own.PNG
    icotool -x -o other.png "$icon"
    SamePixels "$icon as icotool reads it" own.PNG other.png
    SamePixels "$icon as ImageMagick reads it" own.PNG "ico:$icon"
    [[ $(identify-im6.q16 -format '%m %w %h' own.PNG) == 'PNG 32 32' ]] || Fail "$icon: no PNG"
done
Icon convert "$sample" again.Ico
cmp "$sample" again.Ico || Fail 'an icon of our own is rewritten otherwise'

# A PNG comes back from an icon file, as others read it.
Icon convert holed.png holed.ico
icotool -x -o back.png holed.ico
SamePixels 'PNG to icon, for icotool' back.png holed.png
SamePixels 'PNG to icon, for ImageMagick' ico:holed.ico holed.png

# Pictures whose pixels are repeated lose the repetition: 16 x 16 and 48 x 48 icons by the reader,
# PNGs by either way of fitting. A small PNG stands at the top left.
Magick opaque.png -crop 16x16+4+4 +repage PNG24:small.png
icotool -c -o small.ico small.png
Icon convert small.ico out.png
SamePixels 'a 16 x 16 icon' out.png small.png -sample 32x32
for side in 96 2048; do
    Magick holed.png -sample ${side}x$side PNG32:large.png
    Icon convert large.png out.png
    SamePixels "a PNG of $side x $side" out.png holed.png
done
[[ $(Icon info large.png) == '1: 2048 x 2048, 32 bits, PNG' ]] || Fail 'info: a photograph'
Magick holed.png -crop 32x16+0+0 +repage -sample 128x64 PNG32:wide.png
Icon convert --keep-aspect wide.png out.png
SamePixels 'in proportion' out.png holed.png -crop 32x16+0+0 +repage -background none -extent 32x32
Icon convert wide.png out.png
SamePixels 'out of proportion' out.png holed.png -crop 32x16+0+0 +repage -sample '32x32!'
Icon convert small.png out.png
SamePixels 'a 16 x 16 PNG' out.png small.png -background none -extent 32x32

# Standard input and output, pipes and what is no file.
Icon convert - - <"$sample" | cmp - "$sample" || Fail 'not through pipes'
Icon convert "$sample" /dev/stdout | cmp - "$sample" || Fail 'not to /dev/stdout'
Icon convert "$sample" /dev/stdout >stdout.ico
cmp "$sample" stdout.ico || Fail 'not to a file as standard output'
Icon convert <(cat holed.png) holed2.ico
cmp holed.ico holed2.ico || Fail 'not from a pipe by its name'
mkfifo fifo
cat fifo >piped.png &
Icon convert --format png "$sample" fifo
wait $!
SamePixels 'a named pipe' piped.png "$sample"
[[ -p fifo ]] || Fail 'the pipe was replaced'
cp "$sample" info
Icon convert info -- -dash.ico
cmp "$sample" ./-dash.ico || Fail 'odd names'
# Names are taken to the letter.
cp "$sample" case.ico
Icon convert opaque.png CASE.ICO
cmp "$sample" case.ico || Fail 'another file was replaced'
cp "$sample" twice.ico
Icon convert opaque.png twice.ico >>twice.ico
cmp twice.ico CASE.ICO || Fail 'standard output is the same file: not replaced'
# Links are followed and permissions kept.
chmod 640 case.ico
ln -s case.ico link.ico
Icon convert opaque.png link.ico
[[ -L link.ico && $(stat -c %a case.ico) == 640 ]] && cmp case.ico CASE.ICO || Fail 'the link'

# The images that icotool lists, line by line.
for icon in "$data"/*.ico "$data"/*.cur; do
    if [[ $(head -c 4 "$icon" | od -An -tx1) == ' 89 50 4e 47' ]]; then continue; fi
    Icon info "$icon" | sed -E 's/ bits?,.*//; s/[:x,]//g' | xargs -n4 >own.list
    icotool -l "$icon" | sed -E 's/[^=]*=([0-9]+)/\1 /g' | cut -d' ' -f1-4 | xargs -n4 >other.list
    cmp own.list other.list || Fail "info of $icon"
done
[[ $(Icon info "$data/several.ico" | sed -n 4p) == '4: 256 x 256, 8 bits, PNG' ]] || Fail 'info: PNG'
cp "$data/several.ico" damaged.ico
printf '\377\377\377\377' | dd of=damaged.ico bs=1 seek=18 conv=notrunc status=none
cmp <(Icon info damaged.ico) <(Icon info "$data/several.ico" | tail -n +2) || Fail 'info: numbers'
[[ $(Icon info - <"$data/bits1.ico") == '1: 32 x 32, 1 bit, uncompressed' ]] || Fail 'info: bit'
[[ $(Icon info holed.png) == '1: 32 x 32, 32 bits, PNG' ]] || Fail 'info: a PNG by itself'
