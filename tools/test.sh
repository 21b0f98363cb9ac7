#!/usr/bin/env bash
# Installs what is missing, builds Sonarium with its tests and runs them all.
source "$(dirname "${BASH_SOURCE[0]}")/common.sh"
install_missing "${BUILD_PACKAGES[@]}" "${TEST_PACKAGES[@]}"
build -DSONARIUM_TESTS=ON
cd "$SONARIUM_BUILD"
ctest --output-on-failure -j"$(nproc)" --timeout 600
echo "Screenshots of the windows: $SONARIUM_BUILD/screenshots"
