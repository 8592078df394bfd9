#!/usr/bin/env bash
# Runs a command with a modem to call through: when neither ModemManager nor
# oFono runs on the system bus (or always, with --always), a bus of our own
# with tools/simulated-modem.py on it stands in for the system bus
# (DBUS_SYSTEM_BUS_ADDRESS). The simulator's log goes to $SIMULATED_MODEM_LOG
# (default: simulated-modem.log in the build folder). Bus and simulator stop
# with the command, whose exit code is this script's.
#   scripts/with-simulated-modem.sh [--always] COMMAND [ARGS...]
set -euo pipefail
root="$(cd "$(dirname "$0")/.." && pwd)"
build="${QUIETON_BUILD_DIR:-$root/build}"

always=false
if [ "${1:-}" = "--always" ]; then
    always=true
    shift
fi

# Whether ModemManager or oFono runs on the system bus.
telephony_running() {
    local name
    for name in org.freedesktop.ModemManager1 org.ofono; do
        if dbus-send --system --print-reply --reply-timeout=2000 --dest=org.freedesktop.DBus /org/freedesktop/DBus \
            org.freedesktop.DBus.NameHasOwner "string:$name" 2>/dev/null | grep -q "boolean true"; then
            return 0
        fi
    done
    return 1
}

if ! command -v dbus-daemon >/dev/null || ! command -v dbus-send >/dev/null; then
    exec "$@"
fi
if [ "$always" = false ] && telephony_running; then
    exec "$@"
fi

bus_info="$(dbus-daemon --session --fork --print-address=1 --print-pid=1)"
bus_address="$(sed -n 1p <<<"$bus_info")"
bus_pid="$(sed -n 2p <<<"$bus_info")"
mkdir -p "$build"
/usr/bin/python3 "$root/tools/simulated-modem.py" --bus "$bus_address" \
    >"${SIMULATED_MODEM_LOG:-$build/simulated-modem.log}" 2>&1 &
modem_pid=$!
stop_simulation() {
    kill "$modem_pid" 2>/dev/null || true
    kill "$bus_pid" 2>/dev/null || true
}
trap stop_simulation EXIT

for _ in $(seq 50); do
    if dbus-send --bus="$bus_address" --print-reply --dest=org.freedesktop.DBus /org/freedesktop/DBus \
        org.freedesktop.DBus.NameHasOwner string:org.freedesktop.ModemManager1 2>/dev/null | grep -q "boolean true"; then
        break
    fi
    sleep 0.1
done

if [ "$always" = false ]; then
    echo "No modem found: using the simulated modem on a private bus."
fi
export DBUS_SYSTEM_BUS_ADDRESS="$bus_address"
status=0
"$@" || status=$?
exit "$status"
