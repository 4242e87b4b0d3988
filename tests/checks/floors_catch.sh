#!/usr/bin/env bash
# The floor check itself: it passes a sound tree and names each planted breach.
set -euo pipefail
checks=$(cd "$(dirname "$0")" && pwd)
tree=$(mktemp -d)
trap 'rm -rf "$tree"' EXIT

# Put <file> <include>...: in cli/ or, without that, in src/.
Put() {
    local file=$tree/src/$1
    [[ $1 != cli/* ]] || file=$tree/$1
    mkdir -p "$(dirname "$file")"
    printf '#include %s\n' "${@:2}" >"$file"
}

# Expect <breach as file:line>...: the check's breaches are exactly these.
Expect() {
    local found expected
    found=$({ bash "$checks/floors.sh" "$tree" || true; } | sed -n 's/^\(src\/\)*\([^ ]*:[0-9]*\): .*/\2/p' | sort)
    expected=$(printf '%s\n' "$@" | sort)
    if [[ $found != "$expected" ]]; then
        printf 'expected:\n%s\nfound:\n%s\n' "$expected" "$found" >&2
        exit 1
    fi
}

Put editing/Editor.h '<queue>' '"document/Planes.h"' '"editing/Tool.h"' '"platform/gdi/Surface.h"'
Put app/FrmIcoEd.cpp '<QWidget>' '"app/FrmIcoEd.h"' '"platform/qt/Desktop.h"' '"FrmIcoEd.moc"'
Put app/main.cpp '<QtGlobal>' '"app/FrmIcoEd.h"'
Put platform/icons/IconFile.cpp '<png.h>' '"platform/Result.h"' '"platform/gdi/Surface.h"'
Put cli/main.cpp '<CLI/CLI.hpp>' '"cli/Input.h"' '"editing/Editor.h"' '"app/Settings.h"'
Expect ''

Put document/Planes.h '"i18n/Texts.h"' '"editing/Editor.h"'
Put editing/Tool.h '"document/Planes.h"' '"imaging/Filters.h"' '"Editor.h"'
Put imaging/Filters.h '"tools/Capture.h"' '"app/Main.h"'
Put tools/Capture.h '<QImage>' '"tools/frmZoom.h"'
Put app/Commands.cpp '"editing/Editor.h"' '<qglobal.h>' '"platform/qt/Desktop.h"'
Put platform/gdi/Blit.cpp '"platform/gdi/Blit.h"' '"platform/icons/IconFile.h"'
Put cli/Input.h '<QImage>' '"app/FrmIcoEd.h"' '"platform/qt/Desktop.h"'
Put app/Settings.h '"cli/Input.h"'
Put platform/system/Shell.cpp '"i18n/Texts.h"'
Put platform/controls/Menu.h '"platform/gdi/Surface.h"' '"platform/system/Shell.h"'
Expect document/Planes.h:2 editing/Tool.h:2 editing/Tool.h:3 imaging/Filters.h:2 \
    tools/Capture.h:1 tools/Capture.h:2 app/Commands.cpp:2 app/Commands.cpp:3 \
    platform/controls/Menu.h:2 platform/gdi/Blit.cpp:2 platform/system/Shell.cpp:1 \
    cli/Input.h:1 cli/Input.h:2 cli/Input.h:3 app/Settings.h:1
