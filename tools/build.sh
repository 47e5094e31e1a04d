#!/usr/bin/env bash
# build.sh DIR [cmake options...]: configures and builds everything into DIR.
set -euo pipefail
root="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"
dir="$1"; shift
mkdir -p "$dir"
cmake -S "$root" -B "$dir" -G "Unix Makefiles" "$@" > "$dir/configure.log" 2>&1 \
    || { cat "$dir/configure.log"; exit 1; }
cmake --build "$dir" -j"$(nproc)"
