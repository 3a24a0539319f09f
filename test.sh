#!/usr/bin/env bash
# SPDX-License-Identifier: AGPL-3.0-or-later
# Installs what is missing, builds, and runs every test through CTest.
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
"$here/scripts/deps.sh"
"$here/scripts/build.sh"
cd "$here/build"
export QT_QPA_PLATFORM=offscreen
ctest --output-on-failure -j "$(nproc 2>/dev/null || echo 2)" "$@"
