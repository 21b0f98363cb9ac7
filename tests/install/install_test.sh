#!/usr/bin/env bash
# Installs the built program into a temporary prefix and checks what a desktop needs of it:
# every file in its place, the help page's pictures beside it, the desktop entry and the
# AppStream file valid and naming each other, the program and its icon.
set -euo pipefail
build=$1
prefix=$(mktemp -d)
trap 'rm -rf "$prefix"' EXIT
fail() { echo "FAIL: $*" >&2; exit 1; }

cmake --install "$build" --prefix "$prefix" > /dev/null
cd "$prefix"
data=share/sonarium
for f in bin/sonarium share/applications/sonarium.desktop share/metainfo/org.sonarium.Sonarium.metainfo.xml \
         $data/help/index.html $data/Bladeenc \
         $data/skins/{Default,Daylight}/{PanelDatabase.bmp,Buttons.bmp,Panels.bmp,Colors.txt} \
         $data/zipdeck/{Default,Daylight}/{Panel.bmp,Buttons.bmp,CoOrds.txt,vu.txt}; do
    [ -f "$f" ] || fail "$f is not installed"
done
[ -x bin/sonarium ] && [ -x $data/Bladeenc ] || fail "the programs are not executable"
for size in 16 22 24 32 48 64 128 256 512; do
    icon=share/icons/hicolor/${size}x${size}/apps/sonarium.png
    [ -f "$icon" ] || fail "$icon is not installed"
    file -b "$icon" | grep -q "PNG image data, $size x $size, 8-bit/color RGBA" || fail "$icon: $(file -b "$icon")"
done
# Every picture and link of the help page is a file beside it.
for ref in $(grep -o '\(src\|href\)="[^"#:]*"' $data/help/index.html | sed 's/.*="\(.*\)"/\1/'); do
    [ -f "$data/help/$ref" ] || fail "the help page refers to $ref, which is not installed"
done

desktop-file-validate share/applications/sonarium.desktop
appstreamcli validate --no-net share/metainfo/org.sonarium.Sonarium.metainfo.xml
entry=share/applications/sonarium.desktop
grep -qx 'Exec=sonarium %f' $entry || fail "the entry does not start the program with a file"
grep -qx 'Icon=sonarium' $entry || fail "the entry does not name the installed icon"
grep -q '<launchable type="desktop-id">sonarium.desktop</launchable>' share/metainfo/*.xml ||
    fail "the AppStream file does not launch the desktop entry"
echo "installed and valid under $prefix"
