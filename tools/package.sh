#!/usr/bin/env bash
# Installs what is missing, builds Sonarium and makes its Debian package in the build tree,
# sonarium_<version>_<architecture>.deb, which `apt install ./<file>` installs with what it needs.
source "$(dirname "${BASH_SOURCE[0]}")/common.sh"
install_missing "${BUILD_PACKAGES[@]}" "${PACKAGE_PACKAGES[@]}"
build -DSONARIUM_TESTS=OFF
cd "$SONARIUM_BUILD"
rm -f sonarium_*.deb
cpack -G DEB
echo "Package: $(ls "$SONARIUM_BUILD"/sonarium_*.deb)"
