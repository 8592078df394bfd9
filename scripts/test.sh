#!/usr/bin/env bash
# Installs what is missing, builds, and runs the whole test suite offscreen.
set -euo pipefail
root="$(cd "$(dirname "$0")/.." && pwd)"
"$root/scripts/deps.sh"
"$root/scripts/build.sh"
build="${QUIETON_BUILD_DIR:-$root/build}"
cd "$build"
QT_QPA_PLATFORM=offscreen ctest --output-on-failure --timeout 300 -j "$(nproc)"
