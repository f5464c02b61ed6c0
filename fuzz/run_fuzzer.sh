#!/usr/bin/env bash
# Runs one fuzz target over its seeds and kept regressions: a fixed number of inputs from a fixed
# seed, so that a run of the suite is repeatable, with SECONDS as an upper bound. Long runs with
# fresh seeds are for a developer's machine (set WM_FUZZ_SEED=0 and raise the bounds); what they
# find goes into regressions/. New inputs go to a work corpus in the build folder, never into the
# source tree; a crash input is left beside it as crash-* and fails the run.
# Usage: run_fuzzer.sh BINARY NAME SECONDS RUNS SOURCE_FUZZ_DIR WORK_DIR
set -euo pipefail
binary="$1" name="$2" seconds="$3" runs="$4" src="$5" work="$6"
mkdir -p "$work/$name" "$src/regressions/$name"
exec "$binary" -seed="${WM_FUZZ_SEED:-1}" -runs="$runs" -max_total_time="$seconds" -timeout=10 -rss_limit_mb=2048 -max_len=65536 \
  -print_final_stats=1 -artifact_prefix="$work/$name-" \
  "$work/$name" "$src/corpus/$name" "$src/regressions/$name"
