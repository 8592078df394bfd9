#!/usr/bin/env bash
# Installs what is missing, builds Quieton and makes its Debian package in
# build/ (or $QUIETON_BUILD_DIR). Install it with
#   sudo apt install ./build/quieton_*.deb
set -euo pipefail
root="$(cd "$(dirname "$0")/.." && pwd)"
"$root/scripts/deps.sh"
build="${QUIETON_BUILD_DIR:-$root/build}"
# The installed files name the binary by its place under the prefix.
cmake -S "$root" -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo -DCMAKE_INSTALL_PREFIX=/usr >/dev/null
cmake --build "$build" --parallel "$(nproc)" --target quieton
(cd "$build" && cpack -G DEB >/dev/null)
ls "$build"/quieton_*.deb
