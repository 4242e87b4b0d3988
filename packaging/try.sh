#!/usr/bin/env bash
# Tries the packages as a user gets them: packaging/try.sh [folder of the packages]. As root, with
# debootstrap and lintian: both are judged, installed by apt in a bare Debian 12, started from the
# desktop entry on a display, and removed again; what they leave is told.
set -euo pipefail
cd "$(dirname "$0")/.."
packages=$(realpath "${1:-build/packages}")
mirror=${MIRROR:-http://deb.debian.org/debian}
bare=$(mktemp -d)
trap '[[ -e $bare/packages/screen.png ]] && cp "$bare/packages/screen.png" build/; rm -rf "$bare"' EXIT

lintian --allow-root --fail-on error "$packages"/*.deb

debootstrap --variant=minbase bookworm "$bare" "$mirror" >/dev/null
cp /etc/resolv.conf "$bare/etc/"
chmod 755 "$bare"
mkdir "$bare/packages"
cp "$packages"/*.deb "$bare/packages/"
cp packaging/try_inside.sh "$bare/packages/"
# shellcheck disable=SC2016  # for the shell that is started
unshare --mount --pid --fork bash -c '
    mount -t proc proc "$1/proc"
    exec env -i PATH="$PATH" LANG=C.UTF-8 chroot "$1" bash /packages/try_inside.sh' bash "$bare"
