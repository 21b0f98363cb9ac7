#!/usr/bin/env bash
# Draws the shipped skins and the icon anew with the generator in tools/skingen: the built-in look
# (assets/skins/Default, compiled into the program) and the second skin (assets/skins/Daylight),
# the Zipdeck mini player's skin in the same two palettes (assets/zipdeck/<theme>), and the
# program's icon at every hicolor size (assets/icons/hicolor/<N>x<N>/apps/sonarium.png).
# A directory given as the only argument receives the preview pictures of all of them.
# Run it after changing the artwork's code, look at the result, and commit the files.
source "$(dirname "${BASH_SOURCE[0]}")/common.sh"
install_missing "${BUILD_PACKAGES[@]}"
cmake -S "$SONARIUM_SRC" -B "$SONARIUM_BUILD" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo
cmake --build "$SONARIUM_BUILD" --target skingen
preview=${1:-}
for theme in Default Daylight; do
    QT_QPA_PLATFORM=offscreen "$SONARIUM_BUILD/skingen" "$theme" "$SONARIUM_SRC/assets/skins/$theme" ${preview:+"$preview"}
    QT_QPA_PLATFORM=offscreen "$SONARIUM_BUILD/skingen" zipdeck "$theme" "$SONARIUM_SRC/assets/zipdeck/$theme" \
        ${preview:+"$preview"}
done
QT_QPA_PLATFORM=offscreen "$SONARIUM_BUILD/skingen" icon "$SONARIUM_SRC/assets/icons" ${preview:+"$preview"}
echo "Skins written under $SONARIUM_SRC/assets/skins and $SONARIUM_SRC/assets/zipdeck, icons under $SONARIUM_SRC/assets/icons"
