#!/usr/bin/env bash
# SPDX-License-Identifier: AGPL-3.0-or-later
# Installs the Debian packages that building, testing and running Orbanta need, if any is missing.
set -euo pipefail

PACKAGES=(
  build-essential cmake ninja-build ccache pkg-config
  qt6-base-dev libqt6sql6-sqlite qt6-svg-dev libgl-dev
  libswe-dev swe-basic-data
  libgtest-dev libgmock-dev libbenchmark-dev
  libzip-dev libsqlite3-dev sqlite3
  tzdata fonts-freefont-ttf fonts-dejavu-core
  poppler-utils xdg-utils
  clang libclang-rt-dev llvm   # libFuzzer and symbolized sanitizer reports
)

missing=()
for p in "${PACKAGES[@]}"; do
  if ! dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q 'install ok installed'; then
    missing+=("$p")
  fi
done

if [ ${#missing[@]} -gt 0 ]; then
  echo "Installing: ${missing[*]}"
  SUDO=""
  if [ "$(id -u)" -ne 0 ]; then SUDO="sudo"; fi
  export DEBIAN_FRONTEND=noninteractive
  $SUDO apt-get update -qq
  $SUDO apt-get install -y -qq --no-install-recommends "${missing[@]}"
fi
