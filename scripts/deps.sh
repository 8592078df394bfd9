#!/usr/bin/env bash
# Installs the Debian 12 packages Quieton needs to build, run and test, once:
# only what is missing is installed. `scripts/deps.sh fuzz` adds what the
# fuzzing campaigns need (clang and its sanitizer and libFuzzer runtimes).
set -euo pipefail

packages=(
    cmake ninja-build g++ pkg-config
    qt6-base-dev qt6-declarative-dev qt6-tools-dev qt6-l10n-tools libqt6svg6
    qml6-module-qtqml qml6-module-qtqml-workerscript qml6-module-qtqml-models
    qml6-module-qtquick qml6-module-qtquick-window qml6-module-qtquick-controls
    qml6-module-qtquick-templates qml6-module-qtquick-layouts qml6-module-qtquick-dialogs
    qml6-module-qt-labs-folderlistmodel qml6-module-qttest
    libqt6sql6-sqlite dbus-daemon dbus-bin python3-dbus python3-dbusmock python3-gi xdg-utils ofono
    xvfb xauth libgl1-mesa-dri fonts-dejavu-core
    appstream desktop-file-utils dpkg-dev file
    libebook1.2-dev evolution-data-server
)
[ "${1:-}" = fuzz ] && packages+=(clang-14 libclang-rt-14-dev util-linux)

missing=()
for package in "${packages[@]}"; do
    if ! dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q "install ok installed"; then
        missing+=("$package")
    fi
done
[ ${#missing[@]} -eq 0 ] && exit 0

echo "Installing: ${missing[*]}"
sudo=""
[ "$(id -u)" -ne 0 ] && sudo="sudo"
export DEBIAN_FRONTEND=noninteractive
$sudo apt-get update -qq
$sudo apt-get install -y --no-install-recommends "${missing[@]}"

# ofono is here only for the tests, which run their own ofonod on a private
# bus: a machine that did not have it keeps its system oFono service off, so
# that it never competes with ModemManager for the phone's modem.
if [[ " ${missing[*]} " == *" ofono "* ]] && [ -d /run/systemd/system ]; then
    $sudo systemctl disable --now ofono.service >/dev/null 2>&1 || true
fi
