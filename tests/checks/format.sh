#!/usr/bin/env bash
# Every C++ file of the repository is laid out as .clang-format says.
set -euo pipefail
cd "$(dirname "$0")/../.."

# Tracked files and new ones alike; a tree without git is searched.
ListSources() {
    git -c safe.directory='*' ls-files -z -co --exclude-standard -- '*.cpp' '*.h' 2>/dev/null ||
        find . -path ./build -prune -o \( -name '*.cpp' -o -name '*.h' \) -print0
}

mapfile -d '' -t listed < <(ListSources)
sources=()
for file in "${listed[@]}"; do
    [[ ! -f $file ]] || sources+=("$file")
done
if [[ ${#sources[@]} -eq 0 ]]; then
    echo "No C++ file found" >&2
    exit 1
fi
printf '%s\0' "${sources[@]}" | xargs -0 -n 16 -P "$(nproc)" clang-format --dry-run -Werror
echo "${#sources[@]} files are laid out as agreed"
