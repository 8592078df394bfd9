#!/usr/bin/env bash
# Configures and builds Quieton in build/ (or $QUIETON_BUILD_DIR).
set -euo pipefail
root="$(cd "$(dirname "$0")/.." && pwd)"
build="${QUIETON_BUILD_DIR:-$root/build}"
cmake -S "$root" -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo >/dev/null
cmake --build "$build" --parallel "$(nproc)"
