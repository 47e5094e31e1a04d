#!/usr/bin/env bash
# Sets up, builds and runs every test: the suite, the linters, the suite again under
# AddressSanitizer + UndefinedBehaviorSanitizer, and each fuzz target for a bounded time.
#   SYNC_TEST_SANITIZE=0   skips the sanitizer pass
#   SYNC_TEST_LINT=0       skips cppcheck and clang-tidy
#   SYNC_TEST_FUZZ_SECONDS seconds per fuzz target (default 30; 0 skips fuzzing)
set -euo pipefail
root="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"
cd "$root"
started=$SECONDS
stage() { echo "== $1 (at $((SECONDS - started)) s)"; }
bash tools/setup.sh
export QT_QPA_PLATFORM=offscreen

stage "build and test"
bash tools/build.sh "$root/build"
(cd build && ctest --output-on-failure -j"$(nproc)")

if [ "${SYNC_TEST_LINT:-1}" != 0 ]; then
    stage "lint"
    bash tools/lint.sh "$root/build"
fi

if [ "${SYNC_TEST_SANITIZE:-1}" != 0 ]; then
    stage "the same suite under AddressSanitizer and UndefinedBehaviorSanitizer"
    (
        export ASAN_OPTIONS="detect_leaks=1:halt_on_error=1"
        export LSAN_OPTIONS="suppressions=$root/tools/lsan.supp:print_suppressions=0"
        export UBSAN_OPTIONS="print_stacktrace=1:halt_on_error=1"
        bash tools/build.sh "$root/build-asan" -DSYNC_SANITIZE=ON
        cd build-asan && ctest --output-on-failure -j"$(nproc)"
    )
fi

fuzz_seconds="${SYNC_TEST_FUZZ_SECONDS:-30}"
if [ "$fuzz_seconds" != 0 ]; then
    stage "fuzzing"
    # Three at a time: one target (the VISA session) mostly waits on its sockets.
    SYNC_FUZZ_PARALLEL="${SYNC_FUZZ_PARALLEL:-3}" bash tools/fuzz.sh "$fuzz_seconds"
fi
echo "== all tests passed in $((SECONDS - started)) s"
