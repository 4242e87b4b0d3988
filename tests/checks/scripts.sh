#!/usr/bin/env bash
# Scripts parse, and the desktop's files are what the desktop accepts.
set -euo pipefail
cd "$(dirname "$0")/../.."

for script in run test .ci/run $(find tools tests bench help -name '*.sh'); do
    bash -n "$script"
done

for entry in share/*.desktop; do
    desktop-file-validate "$entry"
done

# The MIME database's own tool reads the package; it prints nothing when all is well.
data=$(mktemp -d)
trap 'rm -rf "$data"' EXIT
mkdir -p "$data/mime/packages"
cp share/mime/*.xml "$data/mime/packages"
complaints=$(XDG_DATA_HOME=$data update-mime-database "$data/mime" 2>&1)
if [[ -n $complaints ]]; then
    echo "$complaints" >&2
    exit 1
fi
