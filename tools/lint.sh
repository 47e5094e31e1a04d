#!/usr/bin/env bash
# lint.sh BUILD_DIR: cppcheck and clang-tidy over our own sources; any finding fails, and so does
# a linter that doesn't run to its end. Needs the compile_commands.json of a configured build.
# A finding that is wrong is silenced where it stands, with a comment saying why
# (// NOLINT(check) or // cppcheck-suppress id).
set -euo pipefail
root="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"
build="${1:-$root/build}"
cd "$root"
folders=(plugin roi sync generator web util dialogs save host visa instrument)
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
if [ ! -f "$build/compile_commands.json" ]; then
    echo "lint: $build/compile_commands.json missing; configure a build first" >&2
    exit 1
fi
mapfile -t sources < <(git ls-files "${folders[@]}" | grep -E '\.cpp$')
if [ "${#sources[@]}" -eq 0 ]; then
    echo "lint: no sources to check in ${folders[*]}" >&2
    exit 1
fi
out="$build/clang-tidy.log"
# A warning leaves clang-tidy's status at 0, so any other status (a compiler error, a crash, a
# tool that can't start: xargs reports 123 to 127) fails the check even with no finding printed.
status=0
printf '%s\n' "${sources[@]}" \
    | xargs -P "$(nproc)" -n 4 clang-tidy -p "$build" --quiet > "$out" 2>&1 || status=$?
if grep -E '(warning|error):' "$out"; then
    echo "clang-tidy: findings above (full output in $out)"
    exit 1
fi
if [ "$status" -ne 0 ]; then
    tail -n 20 "$out" >&2
    echo "clang-tidy: did not run to its end (status $status; full output in $out)" >&2
    exit 1
fi
echo "lint: clean (${#sources[@]} files)"
