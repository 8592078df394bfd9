#!/usr/bin/env bash
# Renders every screen scene to screenshots/*.png under a virtual X display.
#   tools/screenshots.sh [SCENE.qml...]   (default: all of tools/screenshots/scenes)
set -euo pipefail
root="$(cd "$(dirname "$0")/.." && pwd)"
"$root/scripts/deps.sh"
"$root/scripts/build.sh"
build="${QUIETON_BUILD_DIR:-$root/build}"
scenes=("$@")
[ ${#scenes[@]} -eq 0 ] && scenes=("$root"/tools/screenshots/scenes/*.qml)
mkdir -p "$root/screenshots"
# Scenes that place calls reach the simulated modem, never a real one.
SIMULATED_MODEM_LOG="$root/screenshots/simulated-modem.log" QT_QPA_PLATFORM=xcb \
    "$root/scripts/with-simulated-modem.sh" --always xvfb-run -a -s "-screen 0 1280x1024x24" \
        "$build/quieton-screenshots" "$root/screenshots" "${scenes[@]}"
