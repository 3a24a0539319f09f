#!/usr/bin/env bash
# SPDX-License-Identifier: AGPL-3.0-or-later
# Installs what is missing, builds, and starts Orbanta. Arguments go to the program:
#   ./run.sh chart --date 15/08/1980 --time 14.35 --lat 28:38N --lon 77:12E --gmt +05.30
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
"$here/scripts/deps.sh" >&2
"$here/scripts/build.sh" >&2
exec "$here/build/orbanta" "$@"
