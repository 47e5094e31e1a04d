#!/usr/bin/env bash
# Builds the libFuzzer targets (clang, -DSYNC_FUZZ=ON, in build-fuzz/) and runs each one: first
# over its kept regression inputs, which must all pass, then fuzzing for SECONDS (default 60)
# from its seed corpus. New inputs go to a scratch copy under build-fuzz/, never into fuzz/corpus.
# Two targets run at a time. Exits non-zero on any crash and prints the reproducer's path.
#
#   bash tools/fuzz.sh          # about 60 s per target
#   bash tools/fuzz.sh 3600     # an hour per target
#   SYNC_FUZZ_TARGETS="fuzz_scenario" bash tools/fuzz.sh 600
set -u

ROOT="$(cd "$(dirname "$0")/.." && pwd)"
SECONDS_EACH="${1:-60}"
BUILD="${SYNC_FUZZ_BUILD:-$ROOT/build-fuzz}"
TARGETS="${SYNC_FUZZ_TARGETS:-fuzz_visa_reply fuzz_visa_session fuzz_sim_request fuzz_text_helpers fuzz_scenario fuzz_custom_info fuzz_camera_names fuzz_save_lists fuzz_display_list fuzz_input_steps fuzz_settings_file}"
JOBS="${SYNC_FUZZ_PARALLEL:-2}"

if ! [[ "$SECONDS_EACH" =~ ^[0-9]+$ ]] || [ "$SECONDS_EACH" -lt 1 ]; then
    echo "usage: $0 [SECONDS per target]" >&2
    exit 2
fi

echo "== fuzz: configuring and building in $BUILD"
mkdir -p "$BUILD"
if ! cmake -S "$ROOT" -B "$BUILD" -DCMAKE_C_COMPILER=clang -DCMAKE_CXX_COMPILER=clang++ \
        -DSYNC_FUZZ=ON >"$BUILD/configure.log" 2>&1; then
    cat "$BUILD/configure.log" >&2
    echo "fuzz: configuring failed" >&2
    exit 1
fi
# shellcheck disable=SC2086
if ! cmake --build "$BUILD" -j2 --target $TARGETS; then
    echo "fuzz: build failed" >&2
    exit 1
fi

RUN="$BUILD/run"
rm -rf "$RUN"
mkdir -p "$RUN"

# Sanitizer reports end the run; leaks count as crashes, but for the ones inside Qt that
# fuzz/lsan.supp names. Their stacks reach through Qt only with slow unwinding, which costs
# speed, so only the targets that go through such a leak get it.
# The options are our own, not inherited: a caller's ASAN_OPTIONS may well switch leaks off.
export LSAN_OPTIONS="suppressions=$ROOT/fuzz/lsan.supp:print_suppressions=0"
SLOW_UNWIND_TARGETS="fuzz_scenario fuzz_input_steps fuzz_settings_file"
export UBSAN_OPTIONS="print_stacktrace=1:halt_on_error=1"

# Runs one target; writes its verdict to $RUN/<target>.result.
run_target() {
    local target="$1"
    local binary="$BUILD/fuzz/$target"
    local log="$RUN/$target.log"
    local regressions="$ROOT/fuzz/regressions/$target"
    local artifacts="$RUN/$target-artifacts/"
    mkdir -p "$artifacts"
    local asan="detect_leaks=1"
    case " $SLOW_UNWIND_TARGETS " in
        *" $target "*) asan="$asan:fast_unwind_on_malloc=0" ;;
    esac
    export ASAN_OPTIONS="$asan"

    local inputs=()
    if [ -d "$regressions" ]; then
        while IFS= read -r -d '' file; do inputs+=("$file"); done \
            < <(find "$regressions" -type f ! -name '.*' -print0 | sort -z)
    fi
    if [ "${#inputs[@]}" -gt 0 ]; then
        if ! "$binary" -artifact_prefix="$artifacts" "${inputs[@]}" >"$log.regressions" 2>&1; then
            tail -n 60 "$log.regressions"
            echo "FAIL $target: a regression input crashes (log: $log.regressions)" >"$RUN/$target.result"
            return
        fi
    fi

    local corpus="$RUN/$target-corpus"
    mkdir -p "$corpus"
    cp -r "$ROOT/fuzz/corpus/$target/." "$corpus/" 2>/dev/null
    local dict=()
    [ -f "$ROOT/fuzz/$target.dict" ] && dict=(-dict="$ROOT/fuzz/$target.dict")
    if "$binary" "${dict[@]}" -max_total_time="$SECONDS_EACH" -timeout=10 -rss_limit_mb=2048 \
            -max_len=8192 -print_final_stats=1 -artifact_prefix="$artifacts" \
            "$corpus" >"$log" 2>&1; then
        local stats
        stats="$(grep -E '^stat::number_of_executed_units' "$log" | awk '{print $2}')"
        echo "ok   $target: ${#inputs[@]} regression inputs, ${stats:-?} runs in ${SECONDS_EACH} s" \
            >"$RUN/$target.result"
    else
        tail -n 60 "$log"
        local found
        found="$(find "$artifacts" -type f | head -n 1)"
        echo "FAIL $target: reproducer ${found:-none written} (log: $log)" >"$RUN/$target.result"
    fi
}

echo "== fuzz: $SECONDS_EACH s per target, $JOBS at a time"
running=0
for target in $TARGETS; do
    run_target "$target" &
    running=$((running + 1))
    if [ "$running" -ge "$JOBS" ]; then
        wait -n
        running=$((running - 1))
    fi
done
wait

status=0
for target in $TARGETS; do
    if [ -f "$RUN/$target.result" ]; then
        cat "$RUN/$target.result"
        grep -q '^FAIL' "$RUN/$target.result" && status=1
    else
        echo "FAIL $target: no result"
        status=1
    fi
done
if [ "$status" -ne 0 ]; then
    echo "fuzz: a target crashed; reproduce with: $BUILD/fuzz/<target> <reproducer>" >&2
    echo "fuzz: keep the input in fuzz/regressions/<target>/ once fixed" >&2
fi
exit "$status"
