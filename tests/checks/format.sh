#!/usr/bin/env bash
# Every C++ file of the repository is laid out as .clang-format says.
set -euo pipefail
cd "$(dirname "$0")/../.."
mapfile -d '' -t sources < <(find . -path ./build -prune -o -name '*.cpp' -print0 -o -name '*.h' -print0)
[[ ${#sources[@]} -gt 0 ]] || { echo "No C++ file found" >&2; exit 1; }
printf '%s\0' "${sources[@]}" | xargs -0 -n 16 -P "$(nproc)" clang-format --dry-run -Werror
echo "${#sources[@]} files are laid out as agreed"
