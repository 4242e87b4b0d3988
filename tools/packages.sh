# shellcheck shell=bash
# The Debian packages that the commands of this repository stand on, and how they get there.
# Sourced by ./run and ./test; bash.

# To build and run the program, with or without a display.
kRunPackages=(
  g++ cmake ninja-build qt6-base-dev libpng-dev libcups2-dev libexpected-dev libxcb1-dev libxcb-shm0-dev libcli11-dev
  qt6-translations-l10n
  xvfb openbox x11-utils xdotool imagemagick fonts-dejavu-core fonts-noto-cjk
)

# To check it: a second compiler with its tools, the test libraries, and what drives a desktop.
# shellcheck disable=SC2034  # used by the scripts that source this
kTestPackages=(
  "${kRunPackages[@]}"
  clang clang-format clang-tidy libclang-rt-14-dev libgtest-dev libbenchmark-dev
  xclip icoutils x11-apps x11-xserver-utils cups-daemon cups-client poppler-utils
  desktop-file-utils shared-mime-info appstream dbus-bin dbus-daemon zsh fish parallel
)

# RequirePackages <package>...: installs those that are missing. Asks dpkg once and touches the
# network only when something is missing; on a system without dpkg it trusts what is there.
RequirePackages() {
    command -v dpkg-query >/dev/null || return 0
    local installed missing=() package
    installed=" $(dpkg-query -W -f='${db:Status-Status}=${Package} ' "$@" 2>/dev/null) " || true
    for package in "$@"; do
        [[ $installed == *" installed=$package "* ]] || missing+=("$package")
    done
    [[ ${#missing[@]} -gt 0 ]] || return 0

    local asRoot=()
    if [[ $(id -u) -ne 0 ]]; then
        if ! command -v sudo >/dev/null; then
            echo "Missing packages, and neither root nor sudo to install them: ${missing[*]}" >&2
            return 1
        fi
        asRoot=(sudo)
    fi
    echo "Installing missing packages: ${missing[*]}"
    QuietlyDo "${asRoot[@]}" env DEBIAN_FRONTEND=noninteractive \
        apt-get -o DPkg::Lock::Timeout=300 update &&
        QuietlyDo "${asRoot[@]}" env DEBIAN_FRONTEND=noninteractive \
            apt-get -o DPkg::Lock::Timeout=300 install -y --no-install-recommends "${missing[@]}"
}

# QuietlyDo <command> [argument...]: the command's output appears only when it fails.
QuietlyDo() {
    local output status=0
    output=$(mktemp) || return 1
    "$@" >"$output" 2>&1 </dev/null || status=$?
    if [[ $status -ne 0 ]]; then
        cat "$output" >&2
        echo "FAILED ($status): $*" >&2
    fi
    rm -f "$output"
    return "$status"
}
