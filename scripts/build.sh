#!/usr/bin/env bash
# SPDX-License-Identifier: AGPL-3.0-or-later
# Configures (once) and builds Orbanta in ./build.
set -euo pipefail
here=$(cd "$(dirname "$0")/.." && pwd)
build="$here/build"
jobs=$(nproc 2>/dev/null || echo 2)
if [ ! -f "$build/build.ninja" ]; then
  cmake -S "$here" -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo "$@"
fi
cmake --build "$build" -j "$jobs"
