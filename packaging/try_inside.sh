#!/usr/bin/env bash
# The part of try.sh that runs in the bare Debian.
set -euo pipefail
cd /packages
export DEBIAN_FRONTEND=noninteractive
Apt() { apt-get -qq -o Dpkg::Use-Pty=0 "$@" >/packages/apt.log 2>&1 || { cat /packages/apt.log; exit 1; }; }
Files() { find / -xdev \( -path /proc -o -path /dev -o -path /packages -o -path /tmp -o -path /root -o -path /home \) -prune -o -print | sort; }

Apt update
# What a desktop brings, and what tries it; the packages' own dependencies are not among it.
Apt install --no-install-recommends procps xvfb openbox xdotool imagemagick dex desktop-file-utils \
    shared-mime-info hicolor-icon-theme gtk-update-icon-cache
useradd -m someone
Files >before.txt
# Other packages that are only recommended have remains of their own.
Apt install --no-install-recommends ./*.deb
dpkg -s kestrel-icon kestrel-icon-editor | grep -E '^(Package|Status|Version)'

export HOME=/home/someone XDG_RUNTIME_DIR=/tmp/run
install -d -o someone -m 700 /tmp/run
AsUser() { setpriv --reuid someone --regid someone --clear-groups "$@"; }
kestrel-icon convert /usr/share/icons/hicolor/32x32/apps/kestrel-icon-editor.png /tmp/kestrel.ico
kestrel-icon info /tmp/kestrel.ico

Xvfb -displayfd 3 -screen 0 1024x768x24 -nolisten tcp -noreset 3>display 2>/dev/null &
server=$!
for _ in {1..100}; do [[ -s display ]] && break; sleep 0.1; done
DISPLAY=:$(<display)
export DISPLAY
openbox --sm-disable --startup 'touch /packages/managed' 2>/dev/null &
manager=$!
for _ in {1..300}; do [[ -e managed ]] && break; sleep 0.1; done
# The program is the desktop entry's, its folder is not.
cd /
AsUser dex /usr/share/applications/KestrelIconEditor.desktop
for _ in {1..300}; do
    window=$(xdotool search --onlyvisible --name '^KestrelIconEditor - ' | head -1) && [[ $window ]] && break
    sleep 0.1
done
sleep 1
import -silent -window root /packages/screen.png
xdotool windowactivate --sync "$window" key alt+F4
for _ in {1..100}; do pgrep -x KestrelIconEdit >/dev/null || break; sleep 0.1; done
! pgrep -x KestrelIconEdit || { echo 'the editor goes on' >&2; exit 1; }
echo "started from its desktop entry; settings: $(find /home/someone -name '*.ini' -printf '%p ')"
! find /usr -name 'KestrelIconEditor.ini' | grep . || exit 1
kill "$manager" "$server"

cd /packages
Apt purge kestrel-icon kestrel-icon-editor
Apt autoremove --purge -o APT::AutoRemove::RecommendsImportant=false -o APT::AutoRemove::SuggestsImportant=false
Files >after.txt
left=$(comm -13 before.txt after.txt | grep -vE '^/var/(cache|lib/apt|lib/dpkg|log)(/|$)' || true)
gone=$(comm -23 before.txt after.txt | grep -vE '^/var/(cache|lib/apt|lib/dpkg|log)(/|$)' || true)
echo "files before: $(wc -l <before.txt), after: $(wc -l <after.txt)"
echo "left: ${left:-nothing}"
echo "gone: ${gone:-nothing}"
[[ -z $left && -z $gone ]]
