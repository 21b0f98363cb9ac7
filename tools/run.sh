#!/usr/bin/env bash
# Installs what is missing, builds Sonarium and starts it. Sonarium keeps its own files
# (settings, the library, the start-up trace) in the directory it starts in: ~/Sonarium.
source "$(dirname "${BASH_SOURCE[0]}")/common.sh"
install_missing "${BUILD_PACKAGES[@]}"
build -DSONARIUM_TESTS=OFF

user=${SUDO_USER:-$(id -un)}
home=$(getent passwd "$user" | cut -d: -f6)
data="$home/Sonarium"
if [ "$(id -u)" -eq 0 ] && [ -n "${SUDO_USER:-}" ]; then
    # Run the program as the user who asked for it, on their desktop.
    sudo -u "$user" mkdir -p "$data"
    cd "$data"
    exec sudo -u "$user" --preserve-env=DISPLAY,WAYLAND_DISPLAY,XAUTHORITY,XDG_RUNTIME_DIR,DBUS_SESSION_BUS_ADDRESS,QT_QPA_PLATFORM \
        "$SONARIUM_BUILD/sonarium" "$@"
fi
mkdir -p "$data"
cd "$data"
exec "$SONARIUM_BUILD/sonarium" "$@"
