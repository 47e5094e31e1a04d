#!/usr/bin/env bash
# lint.sh BUILD_DIR: cppcheck and clang-tidy over our own sources; any finding fails.
# Needs the compile_commands.json of a configured build. A finding that is wrong is silenced
# where it stands, with a comment saying why (// NOLINT(check) or // cppcheck-suppress id).
set -euo pipefail
root="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"
build="${1:-$root/build}"
cd "$root"
folders=(plugin sync generator web util host visa instrument)
for f in "${folders[@]}"; do
    if [ ! -d "$f" ]; then
        echo "lint: $f/ is listed but does not exist" >&2
        exit 1
    fi
done

echo "== cppcheck =="
cppcheck --quiet --error-exitcode=1 --enable=warning,performance,portability --inline-suppr \
    --std=c++17 --language=c++ -I . --suppress=missingIncludeSystem --suppress=unknownMacro \
    "${folders[@]}"

echo "== clang-tidy =="
mapfile -t sources < <(git ls-files "${folders[@]}" | grep -E '\.cpp$')
out="$build/clang-tidy.log"
printf '%s\n' "${sources[@]}" \
    | xargs -P "$(nproc)" -n 4 clang-tidy -p "$build" --quiet > "$out" 2>/dev/null || true
if grep -E '(warning|error):' "$out"; then
    echo "clang-tidy: findings above (full output in $out)"
    exit 1
fi
echo "lint: clean (${#sources[@]} files)"
