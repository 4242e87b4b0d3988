#!/usr/bin/env bash
# What reaches a printer or a file is the icon, square by square. Printers that take nothing, and a
# print server that is silent or gone, are told of and keep nobody waiting.
# shellcheck source=tests/desktop/desktop.sh
source "$(dirname "$0")/desktop.sh"
# shellcheck source=tests/desktop/hosts/cups.sh
source "$desktopFolder/hosts/cups.sh"
StartDesktop
StartPrintServer
AddPrinter A4 595 842
AddPrinter Letter 612 792
lpoptions -d A4 >/dev/null

# Squares <left and top> <width>: prints what draws the icon, from there and as wide.
Squares() {
    convert "$files/Icon.ico" -depth 8 txt:- | awk -v at="$1" -v width="$2" -F '[,: ()]+' '
        function Edge(pixel) { return at + sprintf("%.0f", width * pixel / 32) }
        /^[0-9]/ && $6 == 255 {
            print "fill rgb(" $3 "," $4 "," $5 ") rectangle", Edge($1) "," Edge($2), \
                Edge($1 + 1) - 1 "," Edge($2 + 1) - 1
        }'
}

# ExpectPage <pdf> <left and top> <width> <size>: in dots of 1/300 inch.
ExpectPage() {
    pdftoppm -r 300 -singlefile "$1" "$scratch/page"
    convert -size "$4" xc:white +antialias -draw "$(Squares "$2" "$3")" -depth 8 "$scratch/expected.ppm"
    cmp "$scratch/page.ppm" "$scratch/expected.ppm" || Fail "$1 shows other squares"
}

# Print [key...]: opens the dialog, presses these keys and then Print.
Print() {
    Press ctrl+p
    WaitForWindow 'Print'
    [[ $# -eq 0 ]] || Press "$@"
    Press Return
}
OpenOptions() {
    Press ctrl+p
    WaitForWindow 'Print'
    Press alt+o
    WaitFor "$kPatience" IsOpened || Fail 'no options'
}
IsOpened() { [[ $(xdotool getwindowgeometry "$window") =~ x(2[89]|3)[0-9]+$ ]]; }
Back() { WaitForWindow '* - Icon.ico'; }
ExpectJob() { WaitFor "$kPatience" HasArrived "$1" || Fail "job $1 does not arrive"; }

# Opaque and transparent pixels, white ones among them, in all four corners.
convert -size 32x32 plasma:navy-orange -fill white -draw 'rectangle 8,8 23,9' -alpha set \
    -channel A -fx '(i+2*j)%7==3 || hypot(i-16,j-20)<5 ? 0 : 1' "$files/Icon.ico"
# What a killed run left.
mkdir -p "$XDG_DATA_HOME/KestrelIconEditor/Windows"
cd "$XDG_DATA_HOME/KestrelIconEditor/Windows"
NoTemporaryFile() { ! compgen -G 'tmp*' >/dev/null || Fail "$(ls) is left"; }
touch tmp001.ico tmp111.ico
StartEditor '* - Icon.ico' /open "$files/Icon.ico"
NoTemporaryFile

Press ctrl+p
WaitForWindow 'Print'
NoTemporaryFile
Press Escape
Back
OpenOptions
Press Tab Tab Tab Tab 3 Return
Back
for job in 1 2 3; do ExpectJob "$job"; done
ExpectPage "$arrived/1.pdf" 75 2329 2480x3509
Print alt+n L
Back
ExpectJob 4
ExpectPage "$arrived/4.pdf" 75 2400 2550x3300
NoTemporaryFile
Print End # to a file; it is asked for as the dialog names it
Back
WaitFor "$kPatience" test -s "$HOME/print.pdf" || Fail 'no file'
ExpectPage "$HOME/print.pdf" 42 2395 2480x3509
rm "$HOME/print.pdf"

# Jobs of a stopped printer wait; one that accepts none, or is gone, takes none.
export PATH=$PATH:/usr/sbin
cupsdisable A4
Print alt+n A
ExpectBox 'KestrelIconEditor' 'The printer "A4" is stopped.*'
Press Return
Back
cupsenable A4
ExpectJob 5
cupsreject A4
Print
ExpectError 'The printer accepts no jobs.*Unable to print Icon.ico' '* - Icon.ico'
OpenOptions
lpadmin -x A4
Press Return
ExpectError 'The printer does not exist any more.*Unable to print Icon.ico' '* - Icon.ico'

# A server that falls silent, or ends, while the dialog is open; without one there is the file alone.
OpenOptions
kill -STOP "$printServer"
start=$SECONDS
Press Return
ExpectError 'The print server does not answer.*' '* - Icon.ico'
Print
Back
WaitFor "$kPatience" test -s "$HOME/print.pdf" || Fail 'no file without the server'
[[ $((SECONDS - start)) -le 6 ]] || Fail 'a silent server holds up the editor'
rm "$HOME/print.pdf"
Kill "$printServer"
Press ctrl+p
WaitForWindow 'Print'
prlimit --fsize=0 --pid "$editor"
Press Return
ExpectError 'File too large.*Unable to print Icon.ico' '* - Icon.ico'
[[ ! -e $HOME/print.pdf ]] || Fail 'a failed file is left'
NoTemporaryFile
[[ $(lpstat -W all -o 2>/dev/null) == '' ]] || Fail 'more jobs'
Quit
