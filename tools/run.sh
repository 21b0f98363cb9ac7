#!/usr/bin/env bash
# Installs what is missing, builds Sonarium and starts it. Sonarium keeps its own files
# (settings, the library, the start-up trace) in ~/Sonarium, or in the folder SONARIUM_HOME names.
source "$(dirname "${BASH_SOURCE[0]}")/common.sh"
install_missing "${BUILD_PACKAGES[@]}"
build -DSONARIUM_TESTS=OFF

if [ "$(id -u)" -eq 0 ] && [ -n "${SUDO_USER:-}" ]; then
    # Run the program as the user who asked for it, on their desktop, with their home folder.
    exec sudo -u "$SUDO_USER" -H --preserve-env=DISPLAY,WAYLAND_DISPLAY,XAUTHORITY,XDG_RUNTIME_DIR,DBUS_SESSION_BUS_ADDRESS,QT_QPA_PLATFORM,SONARIUM_HOME,SONARIUM_AUDIO,SONARIUM_CD_IMAGES \
        "$SONARIUM_BUILD/bin/sonarium" "$@"
fi
exec "$SONARIUM_BUILD/bin/sonarium" "$@"
