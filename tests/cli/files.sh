#!/usr/bin/env bash
# Reading and writing: each kind of input and output against other programs.
# shellcheck source=tests/cli/cli.sh
source "$(dirname "$0")/cli.sh"

# Icons of 32 x 32 stay as they are, whatever their depth.
for icon in "$sample" "$data"/bits1.ico "$data"/bits24.ico; do
    Icon convert "$icon" own.PNG
    icotool -x -o other.png "$icon"
    SamePixels "$icon as icotool reads it" png:own.PNG other.png
    SamePixels "$icon as ImageMagick reads it" own.PNG "ico:$icon"
done
Icon convert "$sample" again.Ico
cmp "$sample" again.Ico || Fail 'an icon of our own is rewritten otherwise'

# A PNG comes back from an icon file, as others read it.
Icon convert holed.png holed.ico
icotool -x -o back.png holed.ico
SamePixels 'PNG to icon, for icotool' back.png holed.png
SamePixels 'PNG to icon, for ImageMagick' ico:holed.ico holed.png

# Pictures whose pixels are repeated lose the repetition: an icon by the reader, large PNGs by either
# way of fitting. A small PNG stands at the top left.
Magick opaque.png -crop 16x16+4+4 +repage PNG24:small.png
Magick holed.png -crop 32x16+0+0 +repage PNG32:half.png
Magick half.png -sample 2048x1024 PNG32:wide.png
icotool -c -o small.ico small.png
while read -r name options; do
    read -ra words <<<"$options"
    # shellcheck disable=SC2086  # a name with an option before it
    Icon convert ${name/:/ } out.png
    SamePixels "$name" out.png "${words[@]}"
done <<'END'
small.ico small.png -sample 32x32
small.png small.png -background none -extent 32x32
wide.png half.png -sample 32x32!
--keep-aspect:wide.png half.png -background none -extent 32x32
END

# Standard input and output, pipes and what is no file.
Icon convert - - <again.Ico | cmp - "$sample" || Fail 'not through pipes'
Icon convert "$sample" /dev/stdout >stdout.ico
cmp "$sample" stdout.ico || Fail 'not to a file as standard output'
Icon convert <(cat holed.png) holed2.ico
cmp holed.ico holed2.ico || Fail 'not from a pipe by its name'
mkfifo fifo
cat fifo >piped.png &
Icon convert --format png "$sample" fifo
wait $!
SamePixels 'a named pipe' piped.png "$sample"
# Names are taken to the letter, also one without an ending and one like an option.
cp "$sample" info
Icon convert info -- -dash.ico
Icon convert opaque.png -- -DASH.ICO
cmp "$sample" ./-dash.ico || Fail 'odd names'
# A file is replaced even if it is standard output, too.
cp "$sample" twice.ico
# shellcheck disable=SC2094  # on purpose
Icon convert opaque.png twice.ico >>twice.ico
cmp twice.ico ./-DASH.ICO || Fail 'standard output is the same file: not replaced'

# The images that icotool lists, line by line.
for icon in "$data"/*.ico "$data"/*.cur; do
    [[ $icon != */png-named.ico ]] || continue
    Icon info "$icon" | sed -E 's/ bits?,.*//; s/[:x,]//g' | xargs -n4 >own.list
    icotool -l "$icon" | sed -E 's/[^=]*=([0-9]+)/\1 /g' | cut -d' ' -f1-4 | xargs -n4 >other.list
    cmp own.list other.list || Fail "info of $icon"
done
# The numbers of a file whose first image cannot be found, and the words.
cp "$data/several.ico" damaged.ico
printf '\377\377\377\377' | dd of=damaged.ico bs=1 seek=18 conv=notrunc status=none
Icon info damaged.ico >damaged.list
Icon info "$data/several.ico" | tail -n +2 | cmp - damaged.list || Fail 'info: numbers'
[[ $(tail -1 damaged.list) == '4: 256 x 256, 8 bits, PNG' ]] || Fail 'info: PNG'
[[ $(Icon info - <"$data/bits1.ico") == '1: 32 x 32, 1 bit, uncompressed' ]] || Fail 'info: bit'
[[ $(Icon info wide.png) == '1: 2048 x 1024, 32 bits, PNG' ]] || Fail 'info: a photograph'
