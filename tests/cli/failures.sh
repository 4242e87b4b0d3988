#!/usr/bin/env bash
# What cannot be done ends with 1 and one line that says why, and leaves every file as it was.
# shellcheck source=tests/cli/cli.sh
source "$(dirname "$0")/cli.sh"
mkdir work folder
cd work
cp "$sample" in.ico
cp ../opaque.png in.png
printf 'old' >old.ico

# Told <part of the line>: `status` is 1, the message is one line, no file has come, gone or changed.
Told() {
    [[ $status -eq 1 ]] || Fail "$1: exit code $status"
    [[ $(wc -l <../message) -eq 1 && $(<../message) == "kestrel-icon: "*"$1"* ]] ||
        Fail "$1: $(<../message)"
    cmp <(printf '%s\n' in.ico in.png old.ico) <(ls -A) || Fail "$1: files come or go"
    [[ $(<old.ico) == old ]] && cmp "$sample" in.ico || Fail "$1: a file has changed"
}

# Refused <part of the line> <argument>...: nothing goes to standard output either.
Refused() {
    status=0
    Icon "${@:2}" >../output 2>../message || status=$?
    Told "$1"
    [[ ! -s ../output ]] || Fail "$1: something was written"
}

# How it is called.
Refused 'A subcommand is required'
Refused 'frobnicate: no such command' frobnicate
Refused 'IN is required' convert
Refused 'OUT is required' convert in.ico
Refused 'not expected: more' convert in.ico out.ico more
Refused 'not expected: --more' info --more in.ico
Refused 'out.gif: the name ends in neither' convert in.ico out.gif
Refused 'ico: the name ends in neither' convert in.ico ico
Refused '--format' convert --format gif in.ico out.ico
Refused 'mnuNone: no such command' apply mnuNegative,mnuNone in.ico out.ico
Refused 'COMMANDS: a key is missing' apply mnuNegative, in.ico out.ico
Refused 'COMMANDS: a key is missing' apply =5 in.ico out.ico
Refused 'mnunegative: no such command' apply mnunegative in.ico out.ico
Refused 'mnuRotateOpts2: no such command' apply mnuRotateOpts2 in.ico out.ico
Refused 'takes no value' apply mnuBlur=2 in.ico out.ico
Refused 'takes no value' apply mnuImageOpts3= in.ico out.ico
for gamma in mnuGamma mnuGamma= mnuGamma=0 mnuGamma=10000 mnuGamma=-5 mnuGamma=1.5 mnuGamma=9x; do
    Refused 'needs a value from 1 to 9999' apply "$gamma" in.ico out.ico
done
for seed in -1 4294967296 x ''; do
    Refused '--seed' apply --seed "$seed" mnuDiffuse in.ico out.ico
done
for color in 1,2 1,2,3,4 1,2,256 1,2,-1 red 1,2, ''; do
    Refused 'a colour as R,G,B' gradient --from "$color" --to 0,0,0 out.ico
done
for angle in 44 361 405 -45 x; do
    Refused '0 to 360 in steps of 45' gradient --from 1,2,3 --to 0,0,0 "--angle=$angle" out.ico
done
Refused '--to is required' gradient --from 1,2,3 out.ico

# What is read.
Refused 'none.ico: No such file or directory' apply mnuNegative none.ico old.ico
Refused "'': No such file or directory" info ''
Refused 'folder: Is a directory' convert ../folder old.ico
Refused 'folder: Is a directory' info ../folder
Refused 'standard input: no icon or PNG' convert - old.ico </dev/null
Refused 'standard input: Is a directory' info - <../folder
Refused 'standard input: Bad file descriptor' info - <&-
Refused 'standard input: File too large' info - < <(head -c 40M /dev/zero)
Refused 'two  lines: No such file' info $'two\r\nlines'
head -c 4000 /dev/urandom | sed '1s/^/x/' >../noise
for action in info 'apply mnuEmboss' convert; do
    # shellcheck disable=SC2086  # the action is one word or two
    [[ $action == info ]] && Refused 'no icon or PNG' info ../noise ||
        Refused 'no icon or PNG' $action ../noise old.ico
done

# Every beginning of a good file is read or refused, and never more; whole it is read.
for file in in.ico in.png; do
    size=$(stat -c %s $file)
    for ((length = 0; length < size; length += length < 80 ? 1 : 97)); do
        head -c "$length" $file >../cut
        status=0
        Icon convert ../cut - >../output 2>../message || status=$?
        [[ $status -ne 0 ]] || [[ $(stat -c %s ../output) -eq 3262 ]] || Fail "$length bytes: partly"
        [[ $status -eq 0 && ! -s ../message ]] || Told 'cut: no icon or PNG'
        # Without the last row of colours no image is whole.
        [[ $status -eq 1 || $length -ge $((size * 9 / 10)) || $file == in.ico && $length -ge 3134 ]] ||
            Fail "$length bytes of $file are read"
    done
done

# What is written.
Refused 'none/out.ico: No such file or directory' convert in.ico none/out.ico
Refused 'folder: Is a directory' palette ../folder
mkdir ../folder/out.ico
Refused 'out.ico: Is a directory' convert in.ico ../folder/out.ico
chmod 400 old.ico
Refused 'old.ico: Permission denied' convert in.ico old.ico
chmod 600 old.ico
for written in 'convert in.ico' 'apply mnuNegative in.ico' palette 'gradient --from 0,0,0 --to 9,9,9'; do
    # shellcheck disable=SC2086  # several words
    Refused '/dev/full: No space left on device' $written /dev/full
    status=0
    # shellcheck disable=SC2086
    Icon $written - >/dev/full 2>../message || status=$?
    Told 'standard output: No space left on device'
    # The reader of the pipe is gone before anything is written.
    # shellcheck disable=SC2086
    {
        sleep 0.3
        Icon $written - 2>../message && echo 0 >../status || echo $? >../status
    } | true
    status=$(<../status)
    Told 'standard output: Broken pipe'
    status=0
    # shellcheck disable=SC2086
    Icon $written - >&- 2>../message || status=$?
    Told 'standard output: Bad file descriptor'
    # A file that would grow too large.
    status=0
    # shellcheck disable=SC2086
    (ulimit -f 1; Icon $written old.ico 2>../message) || status=$?
    Told 'old.ico: File too large'
done
for told in --help --version 'apply --help' "info in.ico"; do
    status=0
    # shellcheck disable=SC2086
    Icon $told >/dev/full 2>../message || status=$?
    Told 'No space left on device'
done
