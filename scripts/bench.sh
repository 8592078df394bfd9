#!/usr/bin/env bash
# Installs what is missing, builds, and runs every benchmark in build/bench/.
set -euo pipefail
root="$(cd "$(dirname "$0")/.." && pwd)"
"$root/scripts/deps.sh"
"$root/scripts/build.sh"
build="${QUIETON_BUILD_DIR:-$root/build}"
status=0
for program in "$build"/bench/*; do
    [ -x "$program" ] || continue
    echo "== $(basename "$program")"
    QT_QPA_PLATFORM=offscreen "$program" || status=1
done
exit $status
