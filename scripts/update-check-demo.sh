#!/usr/bin/env bash
# Runs the app against a store lookup service on this machine, to watch the
# update check end to end. The lookup host is a build-time constant, so the
# app is built a second time in build-update-demo/ with the host pointed at
# 127.0.0.1.
#   scripts/update-check-demo.sh [newer|same|dead] [app arguments...]
#     newer (default): the store announces 99.0 -> the update alert shows
#     same:            the store announces this version -> nothing shows
#     dead:            nothing listens -> the error lines, the app carries on
set -euo pipefail
root="$(cd "$(dirname "$0")/.." && pwd)"
mode="${1:-newer}"
[ $# -gt 0 ] && shift
port="${QUIETON_DEMO_PORT:-18471}"
build="${QUIETON_DEMO_BUILD_DIR:-$root/build-update-demo}"
"$root/scripts/deps.sh"
cmake -S "$root" -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo \
    -DQUIETON_STORE_LOOKUP_SCHEME=http -DQUIETON_STORE_LOOKUP_HOST="127.0.0.1:$port" >/dev/null
cmake --build "$build" --parallel "${QUIETON_BUILD_JOBS:-$(nproc)}" --target quieton

store="$(mktemp -d)"
home="$(mktemp -d)"
server=""
cleanup() {
    [ -n "$server" ] && kill "$server" 2>/dev/null || true
    rm -rf "$store" "$home"
}
trap cleanup EXIT

version="$(sed -n 's/^project(quieton VERSION \([0-9.]*\).*/\1/p' "$root/CMakeLists.txt")"
case "$mode" in
    newer) announced="99.0" ;;
    same) announced="$version" ;;
    dead) announced="" ;;
    *) echo "unknown mode: $mode (newer, same or dead)" >&2; exit 2 ;;
esac
if [ -n "$announced" ]; then
    mkdir -p "$store/br"
    printf '{"resultCount": 1, "results": [{"version": "%s", "trackViewUrl": "https://store.quieton.app/br/app/quieton-private-calls/id6470000000?uo=4"}]}\n' \
        "$announced" > "$store/br/lookup"
    /usr/bin/python3 -m http.server "$port" --bind 127.0.0.1 --directory "$store" >/dev/null 2>&1 &
    server=$!
    sleep 0.5
fi

# A home of its own, past onboarding, so the main window comes up at once.
mkdir -p "$home/config/quieton"
echo '{"hasCompletedFirstLaunch": true}' > "$home/config/quieton/quieton.json"
if [ -z "${DISPLAY:-}" ] && [ -z "${WAYLAND_DISPLAY:-}" ] && [ -z "${QT_QPA_PLATFORM:-}" ]; then
    echo "No display found: running offscreen."
    export QT_QPA_PLATFORM=offscreen
fi
XDG_CONFIG_HOME="$home/config" XDG_DATA_HOME="$home/data" "$build/quieton" "$@"
