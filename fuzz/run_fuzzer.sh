#!/usr/bin/env bash
# Runs one fuzz target for a fixed time over its seeds and kept regressions. New inputs go to a
# work corpus in the build folder, never into the source tree; a crash input is left beside it
# as crash-* and fails the run.
# Usage: run_fuzzer.sh BINARY NAME SECONDS SOURCE_FUZZ_DIR WORK_DIR
set -euo pipefail
binary="$1" name="$2" seconds="$3" src="$4" work="$5"
mkdir -p "$work/$name" "$src/regressions/$name"
exec "$binary" -max_total_time="$seconds" -timeout=10 -rss_limit_mb=2048 -max_len=65536 \
  -print_final_stats=1 -artifact_prefix="$work/$name-" \
  "$work/$name" "$src/corpus/$name" "$src/regressions/$name"
