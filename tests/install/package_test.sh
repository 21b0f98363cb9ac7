#!/usr/bin/env bash
# Makes the Debian package from the build and checks its control data and contents: the
# libraries it links as dependencies, and the program, its data and its desktop files under /usr.
set -euo pipefail
build=$1
out=$(mktemp -d)
trap 'rm -rf "$out"' EXIT
fail() { echo "FAIL: $*" >&2; exit 1; }

(cd "$build" && cpack -G DEB -B "$out" > "$out/cpack.log") || { cat "$out/cpack.log"; fail "cpack failed"; }
deb=$(ls "$out"/sonarium_*_*.deb)
info=$(dpkg-deb -I "$deb")
echo "$info" | grep -E '^ (Package|Version|Architecture|Depends|Recommends):'
depends=$(echo "$info" | sed -n 's/^ Depends: //p')
for lib in libqt6widgets6 libqt6gui6 libqt6core6 libqt6dbus6 libqt6printsupport6 libmpg123-0 libmp3lame0 \
           libsoundtouch1 libpulse0 libasound2 libsqlite3-0 libsndfile1 libcdio19 libcdio-paranoia2 \
           libcdio-cdda2 qt6-qpa-plugins xdg-utils; do
    echo "$depends" | grep -q "\b$lib\b" || fail "Depends lacks $lib: $depends"
done
echo "$info" | grep -q '^ Package: sonarium$' || fail "the package is not named sonarium"

contents=$(dpkg-deb -c "$deb")
for f in ./usr/bin/sonarium ./usr/share/applications/sonarium.desktop ./usr/share/sonarium/help/index.html \
         ./usr/share/sonarium/skins/Default/Buttons.bmp ./usr/share/sonarium/zipdeck/Daylight/Panel.bmp \
         ./usr/share/sonarium/Bladeenc ./usr/share/metainfo/org.sonarium.Sonarium.metainfo.xml \
         ./usr/share/icons/hicolor/48x48/apps/sonarium.png; do
    echo "$contents" | grep -q " $f\$" || fail "the package lacks $f"
done
echo "$contents" | grep -q '^-rwxr-xr-x root/root .* \./usr/bin/sonarium$' || fail "the program is not root's executable"
echo "$contents" | grep -v ' \./usr/' | grep -qv ' \./$' && fail "files outside /usr: $(echo "$contents" | grep -v ' \./usr/')"
# Stripped: the debugging sections of a RelWithDebInfo build stay out of the package.
dpkg-deb -x "$deb" "$out/root"
file -b "$out/root/usr/bin/sonarium" | grep -q ', stripped' || fail "the program is not stripped"
echo "package $(basename "$deb") checked"
