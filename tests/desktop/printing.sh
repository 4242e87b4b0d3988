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
export PATH=$PATH:/usr/sbin
lpadmin -d A4

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
    WaitFor "$kPatience" test -s "$1" || Fail "$1 does not come"
    pdftoppm -r 300 -singlefile "$1" "$scratch/page"
    convert -size "$4" xc:white +antialias -draw "$(Squares "$2" "$3")" -depth 8 "$scratch/expected.ppm"
    cmp "$scratch/page.ppm" "$scratch/expected.ppm" || Fail "$1 shows other squares"
}
OpenDialog() {
    Press ctrl+p
    WaitForWindow 'Print'
}
# Print [key...]: presses these keys in the dialog and then Print.
Print() {
    OpenDialog
    Press "$@" Return
}
Back() { WaitForWindow '* - Icon.ico'; }
ExpectFailure() { ExpectError "$1*Unable to print Icon.ico" '* - Icon.ico'; }
NoTemporaryFile() { ! compgen -G "$windows/tmp*" >/dev/null || Fail "a temporary file is left"; }

convert -size 32x32 plasma:navy-orange -fill white -draw 'rectangle 8,8 23,9' -alpha set \
    -channel A -fx '(i+2*j)%7==3 || hypot(i-16,j-20)<5 ? 0 : 1' "$files/Icon.ico"
windows=$XDG_DATA_HOME/KestrelIconEditor/Windows
mkdir -p "$windows"
touch "$windows"/tmp{001,111}.ico # as a killed run leaves them
StartEditor '* - Icon.ico' /open "$files/Icon.ico"
NoTemporaryFile
OpenDialog
Press Escape
Back
OpenDialog
Press alt+o
IsOpened() { [[ $(xdotool getwindowgeometry "$window") =~ x(2[89]|3)[0-9]+$ ]]; }
WaitFor "$kPatience" IsOpened || Fail 'no options'
Press Tab Tab Tab Tab 3 Return
Back
ExpectPage "$arrived/1.pdf" 75 2329 2480x3509
Print alt+n L
Back
ExpectPage "$arrived/4.pdf" 75 2400 2550x3300
Print End # to a file
Back
ExpectPage "$HOME/print.pdf" 42 2395 2480x3509
rm "$HOME/print.pdf"
NoTemporaryFile

cupsdisable A4
Print alt+n A
ExpectBox 'KestrelIconEditor' 'The printer "A4" is stopped.*'
Press Return
Back
cupsenable A4
WaitFor "$kPatience" test -s "$arrived/5.pdf" || Fail 'the job that waited does not come'
cupsreject A4
Print alt+n A
ExpectFailure 'The printer accepts no jobs.'
OpenDialog
lpadmin -x A4
Press Return
ExpectFailure 'The printer does not exist any more.'
OpenDialog
kill -STOP "$printServer"
start=$SECONDS
Press Return
ExpectFailure 'The print server does not answer.'
OpenDialog # offers the file alone
[[ $((SECONDS - start)) -le 5 ]] || Fail 'a silent server holds up the editor'
Kill "$printServer"
prlimit --fsize=0 --pid "$editor"
Press Return
ExpectFailure 'File too large.'
[[ ! -e $HOME/print.pdf ]] || Fail 'a failed file is left'
Quit
