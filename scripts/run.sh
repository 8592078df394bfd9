#!/usr/bin/env bash
# Installs what is missing, builds, registers Quieton as the handler of
# quieton: links for this user, and launches it. Arguments go to the app.
set -euo pipefail
root="$(cd "$(dirname "$0")/.." && pwd)"
"$root/scripts/deps.sh"
"$root/scripts/build.sh"
build="${QUIETON_BUILD_DIR:-$root/build}"
app="$build/quieton"

applications="${XDG_DATA_HOME:-$HOME/.local/share}/applications"
mkdir -p "$applications"
id=app.quieton.Quieton
sed -e "s|@QUIETON_EXEC@|$app|" -e "s|@QUIETON_BUNDLE_ID@|$id|" "$root/data/quieton.desktop.in" > "$applications/$id.desktop"
services="${XDG_DATA_HOME:-$HOME/.local/share}/dbus-1/services"
mkdir -p "$services"
sed -e "s|@QUIETON_EXEC@|$app|" -e "s|@QUIETON_BUNDLE_ID@|$id|" "$root/data/quieton.service.in" > "$services/$id.service"
if command -v xdg-mime >/dev/null; then
    xdg-mime default "$id.desktop" x-scheme-handler/quieton 2>/dev/null || true
fi

if [ -z "${DISPLAY:-}" ] && [ -z "${WAYLAND_DISPLAY:-}" ] && [ -z "${QT_QPA_PLATFORM:-}" ]; then
    echo "No display found: running offscreen."
    export QT_QPA_PLATFORM=offscreen
fi
# Without a modem on the system bus, calls go to the simulated modem.
exec "$root/scripts/with-simulated-modem.sh" "$app" "$@"
