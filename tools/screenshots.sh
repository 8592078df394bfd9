#!/usr/bin/env bash
# Renders every screen scene to screenshots/<look>/*.png under a virtual X display.
#   tools/screenshots.sh [SCENE.qml...]   (default: all of tools/screenshots/scenes)
# The look is light, or dark with QUIETON_COLOR_SCHEME=dark; QUIETON_TEXT_SCALE=3.1
# shows the largest text size, LANGUAGE=de a translation and
# QUIETON_SCREEN_SIZE=720x360 a phone in landscape (the default is 360x720).
set -euo pipefail
root="$(cd "$(dirname "$0")/.." && pwd)"
"$root/scripts/deps.sh"
"$root/scripts/build.sh"
build="${QUIETON_BUILD_DIR:-$root/build}"
scenes=("$@")
[ ${#scenes[@]} -eq 0 ] && scenes=("$root"/tools/screenshots/scenes/*.qml)
out="$root/screenshots/${QUIETON_COLOR_SCHEME:-light}"
mkdir -p "$out"
# Scenes that place calls reach the simulated modem, never a real one.
SIMULATED_MODEM_LOG="$out/simulated-modem.log" QT_QPA_PLATFORM=xcb \
    "$root/scripts/with-simulated-modem.sh" --always xvfb-run -a -s "-screen 0 1280x1024x24" \
        "$build/quieton-screenshots" "$out" "${scenes[@]}"
