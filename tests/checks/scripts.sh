#!/usr/bin/env bash
# Scripts parse, and the desktop's files are what the desktop accepts.
set -euo pipefail
cd "$(dirname "$0")/../.."

for script in run test .ci/run $(find tools tests bench help packaging -name '*.sh'); do
    bash -n "$script"
done

desktop-file-validate share/*.desktop
complaints=$(appstreamcli validate --no-net --no-color share/metainfo/*.in) || { echo "$complaints" >&2; exit 1; }

# The MIME database's own tool reads the package; it prints nothing when all is well.
data=$(mktemp -d)
trap 'rm -rf "$data"' EXIT
install -D -t "$data/mime/packages" share/mime/*.xml
complaints=$(XDG_DATA_HOME=$data update-mime-database "$data/mime" 2>&1)
[[ -z $complaints ]] || { echo "$complaints" >&2; exit 1; }
