#!/usr/bin/env bash
# Installs what is missing, builds Quieton and makes its Debian package in
# build/ (or $QUIETON_BUILD_DIR). Install it with
#   sudo apt install ./build/quieton_*.deb
set -euo pipefail
root="$(cd "$(dirname "$0")/.." && pwd)"
"$root/scripts/deps.sh"
"$root/scripts/build.sh"
build="${QUIETON_BUILD_DIR:-$root/build}"
(cd "$build" && cpack -G DEB >/dev/null)
ls "$build"/quieton_*.deb
