#!/usr/bin/env bash
# SPDX-License-Identifier: AGPL-3.0-or-later
# Builds the core and every test area that links it alone with AddressSanitizer and
# UndefinedBehaviorSanitizer (clang) in ./build-san, and runs those tests. Any report fails the run.
# Arguments go to ctest (e.g. -R Person).
set -euo pipefail
here=$(cd "$(dirname "$0")/.." && pwd)
jobs=$(nproc 2>/dev/null || echo 2)

source "$here/scripts/sanitizer-env.sh"
configure_instrumented
# The build runs the test programs once to list their tests, so the options hold there too.
cmake --build "$instrumented_build" -j "$jobs" --target orbanta_core_tests

cd "$instrumented_build"
export QT_QPA_PLATFORM=offscreen
# The plain run sweeps 3000 random births; under the sanitizers, where a birth costs ten times
# as much, a fifth of them (the same seed, so the same first births).
export ORBANTA_SWEEP_BIRTHS=${ORBANTA_SWEEP_BIRTHS:-600}
# The widget areas aren't built here; CTest lists each of them as <target>_NOT_BUILT.
ctest --output-on-failure -j "$jobs" -E '_ui_NOT_BUILT$' "$@"
