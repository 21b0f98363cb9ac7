#!/usr/bin/env bash
# Draws the shipped skins anew with the generator in tools/skingen: the built-in look
# (assets/skins/Default, compiled into the program) and the second skin (assets/skins/Daylight).
# Run it after changing the artwork's code, look at the result, and commit the files.
source "$(dirname "${BASH_SOURCE[0]}")/common.sh"
install_missing "${BUILD_PACKAGES[@]}"
cmake -S "$SONARIUM_SRC" -B "$SONARIUM_BUILD" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo
cmake --build "$SONARIUM_BUILD" --target skingen
for theme in Default Daylight; do
    QT_QPA_PLATFORM=offscreen "$SONARIUM_BUILD/skingen" "$theme" "$SONARIUM_SRC/assets/skins/$theme"
done
echo "Skins written under $SONARIUM_SRC/assets/skins"
