#!/usr/bin/env bash
# Many files in one run: names, order, what fails among them, what stops it, what is left then.
# shellcheck source=tests/cli/cli.sh
source "$(dirname "$0")/cli.sh"

# Ends <exit code> <last line of standard error> <argument>...
Ends() {
    local status=0
    Icon "${@:3}" >output 2>message || status=$?
    [[ $status -eq $1 && $(tail -n 1 message) == *"$2"* ]] || Fail "$2: $status $(<message)"
}
# Holds <folder> <name>...: all that is there.
Holds() {
    find "$1" -mindepth 1 -printf '%f\0' | sort -z >held
    cmp held <((($# > 1)) && printf '%s\0' "${@:2}" | sort -z) || Fail "$1: $(ls -A "$1")"
}

# Icons of two contents, each the other one's negative, and what is none.
cp "$sample" old.ico
Icon apply mnuImageOpts3 old.ico new.ico
mkdir in
for name in a b 'c d' $'e\nf\xff'; do cp old.ico "in/$name.ico"; done
Icon convert old.ico old.png

# Names of results; a list of any names, and one that names standard input as a file.
Icon convert --into out --format PNG in/*.ico - <old.ico
Holds out a.png b.png 'c d.png' $'e\nf\xff.png' icon.png
for picture in out/*; do cmp "$picture" old.png || Fail "$picture"; done
Icon convert --into same in/a.ico in/b.ico
Holds same a.ico b.ico
find in -name '[abce]*' -print0 | Icon thumbnail -0 --files-from - --into small --size 8
Holds small a.png b.png 'c d.png' $'e\nf\xff.png'
cp old.ico ./-
printf -- '-\n\nin/a.ico' | Icon info --files-from - >output
[[ $(grep -c : output) -eq 4 && $(head -1 output) == './-: ICO' ]] || Fail "a list: $(<output)"
Ends 0 '' info --files-from /dev/null
printf 'in/a.ico\0in/b.ico' >zeros
Ends 1 'zero byte' info --files-from zeros
Ends 2 'in/../in/b.ico: its result would be called as that of in/b.ico' \
    convert --into never --format png in/b.ico in/a.ico in/../in/b.ico
ln -s in/a.ico link.ico
Ends 2 'link.ico: it is the same file as in/a.ico' apply mnuImageOpts3 --in-place in/a.ico link.ico
[[ ! -e never && $(cksum <in/a.ico) == "$(cksum <old.ico)" ]] || Fail 'refused too late'

# What fails is told in its place and the others are done, whatever the number of jobs.
mkfifo pipe
: >empty.ico
cp "$data/icons32.dll" program.ico
cp "$data/several.ico" "$data/png-named.ico" .
cp old.ico kept.ico
chmod a-w kept.ico
files=(in/a.ico gone.ico in empty.ico pipe several.ico /dev/zero program.ico kept.ico in/b.ico)
for jobs in 1 2 7; do
    Ends 1 '5 of 10 files failed' info -j "$jobs" "${files[@]}"
    cat output message >"told$jobs"
done
for jobs in 2 7; do cmp told1 "told$jobs" || Fail "the order of $jobs jobs"; done
paste -sd' ' message | grep -q 'gone.*in: Is a d.*empty.*pipe: .*zero: It is a device.*5 of' ||
    Fail "$(<message)"
# In place a file keeps its name and permissions, and must be what its name says.
chmod 640 in/a.ico
Ends 1 '8 of 11 files failed' apply mnuImageOpts3 --in-place "${files[@]}" png-named.ico
for name in in/a in/b; do cmp new.ico $name.ico || Fail "$name is not replaced"; done
cmp kept.ico old.ico || Fail 'replaced without permission'
cmp program.ico "$data/icons32.dll" || Fail 'a program is replaced'
[[ $(stat -c %a in/a.ico) == 640 ]] || Fail 'other permissions'

# Without room for a result nothing is left of it, and those that fit are there.
(ulimit -f 1 && Ends 1 '1 of 2 files failed' convert --into full --format png opaque.png old.ico)
Holds full old.png

# Results that are newer stay; older and empty ones are made again, files of the run never replaced.
touch -d '1 minute ago' in/*.ico
mkdir skipped
echo mine >skipped/a.png
: >skipped/b.png
cp old.png 'skipped/c d.png'
touch -d '2 minutes ago' 'skipped/c d.png'
cp new.ico 'in/c d.ico'
touch -d '1 minute ago' 'in/c d.ico'
Icon convert --skip-existing --into skipped --format png in/[abc]*.ico
[[ $(<skipped/a.png) == mine ]] || Fail 'a newer result is replaced'
Icon convert new.ico new.png
for name in b 'c d'; do cmp "skipped/$name.png" new.png || Fail "$name is skipped"; done
Ends 1 'in/b.ico: it is one of the files to read' convert --into in in/b.ico

# Nobody reads on: told once. After SIGINT it says how far it came: two of a list that goes on.
mkfifo out.fifo names.fifo
head -n 1 out.fifo >first &
status=0
yes in/a.ico | head -n 3000 | Icon info --files-from - >out.fifo 2>message || status=$?
[[ $status -eq 1 && $(<message) == 'kestrel-icon: standard output: Broken pipe' ]] ||
    Fail "a closed pipe: $(<message)"
env --default-signal=INT "$program" info --files-from names.fifo >output 2>message &
exec 3>names.fifo
printf 'in/b.ico\nold.ico\n' >&3
until [[ $(grep -c bits output) -eq 2 ]]; do sleep 0.02; done
kill -INT $!
status=0
wait $! || status=$?
exec 3>&-
[[ $status -eq 130 && $(<message) == 'kestrel-icon: interrupted: 2 files done' ]] ||
    Fail "interrupted: $status $(<message)"

# Killed or interrupted at any moment: every file is the old or the new one, every result whole.
mkdir many still
for ((i = 0; i < 300; ++i)); do cp old.ico "many/$i.ico"; done
cp many/* still
for ((i = 0; i < 6; ++i)); do
    rm -rf made
    for words in 'convert --into made --format png still' 'apply mnuImageOpts3 --in-place many'; do
        # shellcheck disable=SC2086  # several words
        env --default-signal=INT "$program" $words/*.ico 2>message &
    done
    sleep "0.0$((1 + RANDOM % 5))"
    mapfile -t running < <(jobs -p)
    kill -$((i % 2 ? 9 : 2)) "${running[@]}" 2>&- || true
    wait 2>&-
    find many made -name '*.[ip][cn][og]' -exec md5sum {} + 2>&- | cut -c-32 | sort -u |
        grep -vxF -f <(md5sum old.ico new.ico old.png | cut -c-32) && Fail 'torn'
done
Icon apply mnuImageOpts3 --in-place many/*.ico
[[ $(find many -type f | wc -l) -eq 300 ]] || Fail "left: $(find many -name '.*')"

# On a terminal: no pictures unless that is forced, and a line tells how far a long run is.
OnTerminal() { script -qec "$(printf '%q ' "$program" "$@")" /dev/null </dev/null; }
OnTerminal convert old.ico - >output && Fail 'a picture is shown'
grep -q 'standard output is a terminal; --force' output || Fail "$(<output)"
[[ $(OnTerminal convert --force --format png old.ico - | head -c 4) == $'\x89PNG' ]] || Fail forced
for quiet in '' --quiet; do
    mkfifo "list$quiet.fifo"
    { echo old.ico; sleep 1.1; printf 'gone.ico\nold.ico\n'; } >"list$quiet.fifo" &
    script -qec "'$program' info $quiet --files-from list$quiet.fifo >/dev/null" /dev/null >"shown$quiet" &
done
wait
printf '%s\r\n' 'kestrel-icon: gone.ico: No such file or directory' \
    'kestrel-icon: 1 of 3 files failed' | cmp - shown--quiet || Fail "$(cat -A shown--quiet)"
grep -q $'\r\e\[K[23] files, 1 failed\r\e\[K' shown || Fail "$(cat -A shown)"
