#!/usr/bin/env bash
# SPDX-License-Identifier: AGPL-3.0-or-later
# Builds the fuzz targets of fuzz/targets.def with clang and libFuzzer in ./build-san (the folder
# of the sanitizer step, whose instrumented core they link) and runs each for
# ORBANTA_FUZZ_SECONDS (default 10) over its committed seeds. Any crash, sanitizer report, failed
# check or hang fails the run and leaves the input in build-san/artifacts/.
# Arguments name the targets to run (default: all).
set -euo pipefail
here=$(cd "$(dirname "$0")/.." && pwd)
jobs=$(nproc 2>/dev/null || echo 2)
seconds=${ORBANTA_FUZZ_SECONDS:-10}

source "$here/scripts/sanitizer-env.sh"
configure_instrumented
build="$instrumented_build"
cmake --build "$build" -j "$jobs" --target orbanta_fuzzers

if [ $# -gt 0 ]; then targets=("$@"); else mapfile -t targets <"$build/fuzz/targets.txt"; fi
failed=()
for t in "${targets[@]}"; do
  [ -n "$t" ] || continue
  # New inputs go to a scratch folder; the committed seeds are only read.
  work="$build/corpus/$t"
  artifacts="$build/artifacts/$t/"
  mkdir -p "$work" "$artifacts"
  options=(-max_total_time="$seconds" -timeout=10 -rss_limit_mb=2048 -print_final_stats=1
           -artifact_prefix="$artifacts")
  if [ -f "$here/fuzz/dict/$t.dict" ]; then options+=(-dict="$here/fuzz/dict/$t.dict"); fi
  echo "== fuzz_$t for ${seconds}s"
  if ! "$build/fuzz/fuzz_$t" "${options[@]}" "$work" "$here/fuzz/corpus/$t" >"$build/fuzz_$t.log" 2>&1; then
    tail -n 60 "$build/fuzz_$t.log"
    echo "fuzz_$t failed; the input is in $artifacts. Once fixed, copy it to fuzz/regressions/$t/"
    echo "so that tests/fuzz_regressions runs it from then on."
    failed+=("$t")
  else
    grep -E '^(stat::number_of_executed_units|stat::new_units_added)' "$build/fuzz_$t.log" | tr '\n' ' '
    echo
  fi
done
if [ ${#failed[@]} -gt 0 ]; then
  echo "Fuzz targets that failed: ${failed[*]}"
  exit 1
fi
