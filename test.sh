#!/usr/bin/env bash
# SPDX-License-Identifier: AGPL-3.0-or-later
# Installs what is missing, builds, and runs every test through CTest; then builds the core and
# its tests with the sanitizers and runs them (scripts/sanitize.sh), and runs each fuzz target
# for a short while (scripts/fuzz.sh). ORBANTA_SKIP_SANITIZE=1 and ORBANTA_SKIP_FUZZ=1 leave
# those two out of a quick local run. Arguments go to the first CTest run.
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
step() { echo "== $1 ($SECONDS s so far)"; }

step "dependencies"
"$here/scripts/deps.sh"
step "build"
"$here/scripts/build.sh"
step "tests"
(
  cd "$here/build"
  export QT_QPA_PLATFORM=offscreen
  ctest --output-on-failure -j "$(nproc 2>/dev/null || echo 2)" "$@"
)
if [ "${ORBANTA_SKIP_SANITIZE:-0}" != 1 ]; then
  step "sanitizers"
  "$here/scripts/sanitize.sh"
fi
if [ "${ORBANTA_SKIP_FUZZ:-0}" != 1 ]; then
  step "fuzzing"
  "$here/scripts/fuzz.sh"
fi
step "done"
