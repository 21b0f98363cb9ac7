# Shared by run.sh and test.sh: installs what is missing from Debian's packages, then builds.
set -euo pipefail

SONARIUM_SRC=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
SONARIUM_BUILD=${SONARIUM_BUILD:-$SONARIUM_SRC/build}

# What building and running need.
BUILD_PACKAGES=(cmake ninja-build g++ pkg-config qt6-base-dev libgl-dev libegl-dev
                libmpg123-dev libsoundtouch-dev libpulse-dev libasound2-dev libsqlite3-dev
                libmp3lame-dev libsndfile1-dev libcdio-dev libcdio-paranoia-dev lame
                libgtest-dev fonts-dejavu-core xdg-utils)
# What making the Debian package needs beyond that: the shared libraries' packages and ELF files.
PACKAGE_PACKAGES=(dpkg-dev file)
# What the tests and benchmarks need beyond that: reference tools, fixtures' encoder, fuzzing,
# the package and the desktop's validators.
TEST_PACKAGES=(xvfb xauth mpg123 lame cd-paranoia id3v2 clang libclang-rt-14-dev dbus playerctl sqlite3
               clang-format enscript "${PACKAGE_PACKAGES[@]}" desktop-file-utils appstream)

as_root() {
    if [ "$(id -u)" -eq 0 ]; then "$@"; else sudo "$@"; fi
}

install_missing() {
    local missing=()
    for p in "$@"; do
        dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || missing+=("$p")
    done
    if [ ${#missing[@]} -gt 0 ]; then
        echo "Installing: ${missing[*]}"
        as_root apt-get update -qq
        as_root env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${missing[@]}"
    fi
}

build() {
    cmake -S "$SONARIUM_SRC" -B "$SONARIUM_BUILD" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo "$@"
    cmake --build "$SONARIUM_BUILD" -j"$(nproc)"
}
