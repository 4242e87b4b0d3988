#!/usr/bin/env bash
# What cannot be done ends with 1, wrong usage with 2, and one line that says why, and leaves every
# file as it was.
# shellcheck source=tests/cli/cli.sh
source "$(dirname "$0")/cli.sh"
mkdir work folder
cd work
shopt -s dotglob
cp "$sample" in.ico
printf 'old' >old.ico
before=$(cksum ./*)

# Refused <part of the line> <argument>...: the exit code is 1, the message is one line, no file has
# come, gone or changed. Misused: the same with 2.
Refused() { Ends 1 "$@"; }
Misused() { Ends 2 "$@"; }
Ends() {
    local status=0
    Icon "${@:3}" 2>../message || status=$?
    [[ $status -eq $1 ]] || Fail "$2: exit code $status"
    shift
    [[ $(wc -l <../message) -eq 1 && $(<../message) == "kestrel-icon: "*"$1"* ]] ||
        Fail "$1: $(<../message)"
    [[ $(cksum ./*) == "$before" ]] || Fail "$1: a file has changed"
}
# Nothing may go there.
exec >../output

# How it is called.
Misused 'more: no such command' more
Misused 'OUT is required' convert in.ico
Misused 'several files want --into' convert in.ico old.ico out.ico
Misused '--in-place goes with neither' apply --in-place --into .. mnuNegative in.ico
Misused 'named beside --files-from' info --files-from in.ico in.ico
Misused '-0 tells about the list' info -0 in.ico
Misused 'FILE is required' convert --into ..
Misused '-j wants a number from 1 to' info -j 0 in.ico
Misused 'not expected: --more' info --more in.ico
Misused 'ico: the name ends in none' convert in.ico ico
Misused '--format' convert --format gif in.ico out.ico
Misused '--into' convert --format png --into '' in.ico old.ico
Misused 'mnuNone: no such command' apply mnuNegative,mnuNone in.ico out.ico
Misused 'COMMANDS: a name is missing' apply mnuNegative, in.ico out.ico
Misused 'takes no value' apply mnuImageOpts3= in.ico out.ico
for gamma in '' =0 =10000 =1.5; do
    Misused 'needs a value from 1 to 9999' apply "mnuGamma$gamma" in.ico out.ico
done
Misused '--seed' apply --seed 4294967296 mnuDiffuse in.ico out.ico
for color in 1,2 1,2,3,4 1,2,256 '#12345' '#12345g' '#+12345'; do
    Misused 'a colour as R,G,B' gradient --from "$color" --to 0,0,0 out.ico
done
for sizes in 0 16,16 257 "$(seq -s, 17)"; do
    Misused '--sizes wants at most 16' convert --sizes "$sizes" in.ico out.ico
done
Misused '--sizes is for .ico and .cur' convert --sizes 16 in.ico out.png
for hotspot in 3 3,4,5 16,0; do
    Misused '--hotspot wants X,Y, each from 0 to 15' convert --sizes 16 --hotspot "$hotspot" in.ico o.cur
done
Misused '--hotspot is for .cur' convert --hotspot 3,4 in.ico out.ico
for angle in 44 405; do
    Misused '0 to 360 in steps of 45' gradient --from 1,2,3 --to 0,0,0 --angle "$angle" out.ico
done

# What is read.
Refused "'': No such file or directory" apply mnuNegative '' old.ico
Refused '/dev/null: The file is empty' info /dev/null
Refused 'standard input: Bad file descriptor' info - <&-
Refused 'standard input: File too large' info - < <(head -c 40M /dev/zero)
Refused 'two\r\nlines\x1b[2J\u202e\\\xff: No such file' info $'two\r\nlines\e[2J\u202e\\\xff'
# Without its last rows a picture is not read at all.
Refused 'standard input: The image is damaged' convert - old.ico < <(head -c -300 ../opaque.png)

# Files that hold icons, but not those.
ln -s "$data/icons32.dll" "$data/frames.ani" ../
Refused 'icons32.dll: there is no icon 3; the last is 2' convert --icon 3 ../icons32.dll old.ico
Refused 'there is no image 2 in icon 2' apply --icon 2 --image 2 mnuNegative ../icons32.dll old.ico
for number in 0 1x 65537; do
    Misused '--icon wants a number' extract --icon "$number" ../icons32.dll
    Misused '--image wants a number' thumbnail --image "$number" ../icons32.dll out.png
done
Misused '--size wants a number from 1 to 1024' thumbnail --size 1025 in.ico out.png
head -c 12 ../frames.ani >../empty.ani
Refused 'empty.ani: The file contains no icons' info ../empty.ani
cp ../opaque.png ../large.png
truncate -s 33M ../large.png
Refused 'large.png: File too large' thumbnail ../large.png out.png
Refused 'ls: It is a program without icons' extract /bin/ls
Refused 'cli.sh: It is no icon' thumbnail "$tests/cli/cli.sh" out.png
# Before anything is written.
Misused 'folder/in.exe: its icons would be called as those of in.ico' extract in.ico ../folder/in.exe

# What is written.
Refused 'none/out.ico: No such file or directory' convert in.ico none/out.ico
Refused 'folder: Is a directory' palette ../folder
Refused '/dev/full: No space left on device' convert in.ico /dev/full
for written in --version 'info in.ico' 'palette -' 'convert in.ico -'; do
    # shellcheck disable=SC2086  # several words
    Refused 'standard output: No space left on device' $written >/dev/full
done
Refused 'standard output: Bad file descriptor' convert in.ico - >&-
(ulimit -f 1; Refused 'old.ico: File too large' convert in.ico old.ico)
# The reader of the pipe is gone before anything is written.
mkfifo ../pipe
cat ../pipe &
exec 3>../pipe
kill $!
wait $! || true
Refused 'standard output: Broken pipe' convert in.ico - >&3
[[ ! -s ../output ]] || Fail "written: $(<../output)"
