#!/usr/bin/env bash
# Sets up, builds and runs every test. SYNC_TEST_SANITIZE=0 skips the sanitizer pass.
set -euo pipefail
root="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"
cd "$root"
bash tools/setup.sh
export QT_QPA_PLATFORM=offscreen

bash tools/build.sh "$root/build"
(cd build && ctest --output-on-failure -j"$(nproc)")

if [ "${SYNC_TEST_SANITIZE:-1}" != 0 ]; then
    echo "== the same suite under AddressSanitizer and UndefinedBehaviorSanitizer =="
    export ASAN_OPTIONS="detect_leaks=1:halt_on_error=1"
    export LSAN_OPTIONS="suppressions=$root/tools/lsan.supp:print_suppressions=0"
    export UBSAN_OPTIONS="print_stacktrace=1:halt_on_error=1"
    bash tools/build.sh "$root/build-asan" -DSYNC_SANITIZE=ON
    (cd build-asan && ctest --output-on-failure -j"$(nproc)")
fi
