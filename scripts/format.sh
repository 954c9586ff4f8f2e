#!/usr/bin/env bash
# Formats all C++ sources, or with --check only says which ones differ.
set -euo pipefail
cd "$(dirname "$0")/.."

# Version 14, because releases differ in what they do with the same settings.
formatter=$(command -v clang-format-14 || command -v clang-format) || {
    echo "format.sh: clang-format is missing; scripts/deps.sh --clang installs it" >&2
    exit 1
}

case ${1:-} in
    "") action=(-i) ;;
    --check) action=(--dry-run --Werror) ;;
    *) echo "usage: scripts/format.sh [--check]"; [[ $1 == --help || $1 == -h ]]; exit ;;
esac

folders=()
for folder in src apps examples tests bench; do
    [[ -d $folder ]] && folders+=("$folder")
done
find "${folders[@]}" \( -name '*.cpp' -o -name '*.hpp' -o -name '*.ipp' \) -print0 | xargs -0 -r "$formatter" "${action[@]}"
