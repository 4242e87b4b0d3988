#!/usr/bin/env bash
# The recipes of the manual, run as they are written, and what comes of them.
# shellcheck source=tests/cli/cli.sh
source "$(dirname "$0")/cli.sh"
manual=$tests/../share/man/kestrel-icon.1
PATH=$(dirname "$program"):$PATH

# What the recipes speak of.
mkdir -p pictures programs/one programs/two share/one share/two
cp opaque.png holed.png pictures
cp "$data/icons32.dll" programs/one/setup.dll
cp "$data/icons32.dll" programs/two/setup.DLL
cp "$data/bits1.ico" 'share/one/first icon.ico'
cp "$data/bits24.ico" share/two/second.ico
cp "$data/bits24.ico" share/two/third.ICO
echo : >nodes

sed -n '/^\.SH RECIPES/,/^\.SH EXIT/p' "$manual" | sed -n '/^\.nf/,/^\.fi/p' |
    sed 's/\\-/-/g; s/\\e/\\/g' | csplit -qz -f recipe - '/^\.nf/' '{*}'
for recipe in recipe*; do
    sed -i '/^\.[nf][fi]$/d' "$recipe"
    HOME=$PWD bash -e "$recipe" >told 2>&1 || Fail "$(<"$recipe")"$'\n'"$(<told)"
done

SamePixels 'each icon of its own file' 'ico:icons/holed.ico[2]' holed.png
# The widths of the images in a file.
while IFS=: read -r file widths; do
    [[ $(Icon info "$file" | sed 's/^[0-9]*: //; s/ x.*//' | paste -sd' ') == "$widths" ]] ||
        Fail "$file: $(Icon info "$file")"
done <<'END'
icons/holed.ico:16 24 32 48 256
programs/one/icons/setup-1.ico:32 16
programs/two/icons/setup-2.ico:32
sheet.png:640
share/one/.thumbnails/first icon.png:32
share/two/.thumbnails/third.png:32
results/1/first icon.png:32
results/1/second.png:32
END
