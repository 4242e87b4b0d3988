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

# Programs, libraries and animations: every icon as a file, every image as a PNG, as icotool and
# ImageMagick read them, against what other programs decoded.
Icon extract --into icons "$data"/icons32.dll "$data"/icons16.icl "$data"/frames.ani
Icon extract --into images --png "$data"/icons32.dll "$data"/icons16.icl "$data"/frames.ani "$data"/several.ico
while read -r icon image witness; do
    icotool -x -i "$image" -o image.png "icons/$icon.ico"
    SamePixels "$icon.ico, $image" image.png "$data/$witness.pam"
    SamePixels "$icon.ico, $image, for ImageMagick" "ico:icons/$icon.ico[$((image - 1))]" "$data/$witness.pam"
    SamePixels "$icon-$image.png" "images/$icon-$image.png" "$data/$witness.pam"
done <<'END'
icons32-1 1 icons32-0
icons32-1 2 icons32-1
icons16-1 1 icons16-0
icons16-1 2 icons16-1
frames-3 1 frames-2
END
extracted=(icons/* images/*)
[[ ${#extracted[@]} -eq 18 ]] || Fail "extracted: ${extracted[*]}"
# Byte for byte; wrestool adds zeros at the end.
wrestool -x -t14 -n1 "$data/icons32.dll" | head -c 1078 | cmp - icons/icons32-1.ico || Fail 'bytes'
tail -c "$(wc -c <images/several-1-4.png)" "$data/several.ico" | cmp - images/several-1-4.png ||
    Fail 'a PNG is as it was stored'
# Of several icons and images the first and the best, or those that are named.
# The number of an icon does not depend on whether those before it can be read.
cp "$data/icons32.dll" gap.dll
for image in 4094 4108; do printf 9 | dd of=gap.dll bs=1 seek=$image conv=notrunc status=none; done
[[ $(Icon info gap.dll | head -2) == $'gap.dll: PE, 1 icon\nicon 2, name 2' ]] || Fail 'info: a gap'
for choice in '' --icon=2; do
    Icon convert ${choice:+"$choice"} - second.png <gap.dll
    SamePixels "the second icon $choice" second.png "$data/icons32-2.pam"
done
if Icon extract gap.dll 2>message; then Fail 'the missing icon is not told'; fi
[[ $(<message) == *'no image of icon 1 can be read' && -f gap-2.ico ]] || Fail "$(<message)"
Icon convert --image 1 "$data/several.ico" image.ico
SamePixels 'the first image' ico:image.ico "$data/several-0.pam" -sample 32x32
Icon convert --image 1 "$data/several.ico" image.png
SamePixels 'the first image in its own size' image.png "$data/several-0.pam"
Icon extract --icon 2 --png --icon 3 "$data/frames.ani"
[[ $(echo frames-*) == 'frames-2-1.png frames-3-1.png' ]] || Fail "chosen: $(echo frames-*)"

# No result replaces a file that is to be read; the other files are read all the same.
cp "$data/icons32.dll" old.dll
cp "$sample" old-1.ico
if Icon extract old.dll /bin/true old-1.ico 2>message; then Fail 'what fails is not told'; fi
grep -q '^kestrel-icon: old-1.ico: it is one' message || Fail "$(<message)"
for icon in old-1 old-1-1; do cmp "$sample" $icon.ico || Fail "$icon.ico is replaced"; done

# What is told of them, also as JSON, of which the names need care.
[[ $(cd "$data" && Icon info icons16.icl several.ico | head -5 | sed -n '1p;2p;5p' | paste -sd,) == \
    'icons16.icl: NE, 1 icon,icon 1, name ICON,several.ico: ICO' ]] || Fail 'info: sources'
cp "$data/icons16.icl" $'odd "\\\n\e\xff\xed\xa0\x80\xc3\xa4'
Icon info --json odd* "$data/png-named.ico" >told.json || Fail 'info: JSON'
python3 - told.json <<'END' || Fail "info: $(<told.json)"
import json, sys
first, second = map(json.loads, open(sys.argv[1], encoding='utf-8'))
assert first['file'].startswith('odd "\\\n\x1b\ufffd') and first['file'].endswith('\u00e4')
def images(icon): return [tuple(image.values()) for image in icon['images']]
(icon,), (picture,) = first['icons'], second['icons']
assert (first['kind'], icon['name'], icon['number']) == ('NE', 'ICON', 1)
assert images(icon) == [(1, 16, 16, 4, 'none'), (2, 32, 32, 24, 'none')]
assert (second['kind'], picture['name'], images(picture)) == ('PNG', '1', [(1, 16, 16, 4, 'PNG')])
END

# Thumbnails: the smallest image that is large enough as it is or made smaller, else the largest.
# Alpha stays.
Magick -size 16x16 gradient:'#20C04000'-'#6010E0FF' -depth 8 PNG32:shaded.png
Magick holed.png -sample 64x64 PNG32:twice.png
icotool -c -o shaded.ico twice.png shaded.png
while read -r size picture; do
    Icon thumbnail --size "$size" shaded.ico out.png
    SamePixels "thumbnail of $size" out.png "$picture"
done <<'END'
128 twice.png
64 twice.png
32 holed.png
16 shaded.png
END
