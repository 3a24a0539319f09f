#!/usr/bin/env bash
# SPDX-License-Identifier: AGPL-3.0-or-later
# Builds the core and every test area that links it alone with AddressSanitizer and
# UndefinedBehaviorSanitizer in ./build-asan, and runs those tests. Any report fails the run.
# Arguments go to ctest (e.g. -R Person).
set -euo pipefail
here=$(cd "$(dirname "$0")/.." && pwd)
build="$here/build-asan"
jobs=$(nproc 2>/dev/null || echo 2)

# The same compiler and build type as ./build, so that the objects left uninstrumented (the
# widgets) come out of ccache.
if [ ! -f "$build/build.ninja" ]; then
  cmake -S "$here" -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo \
    -DORBANTA_SANITIZE=ON -DORBANTA_BENCH=OFF
fi

source "$here/scripts/sanitizer-env.sh"
# The build runs the test programs once to list their tests, so the options hold there too.
cmake --build "$build" -j "$jobs" --target orbanta_core_tests

cd "$build"
export QT_QPA_PLATFORM=offscreen
# The widget areas aren't built here; CTest lists each of them as <target>_NOT_BUILT.
ctest --output-on-failure -j "$jobs" -E '_ui_NOT_BUILT$' "$@"
