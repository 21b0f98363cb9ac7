#!/usr/bin/env bash
# Builds and runs the tests once more under the sanitizers, each kind in a build tree of its own:
# the unit, integration and fuzz tests under AddressSanitizer and UndefinedBehaviorSanitizer, and
# the threaded tests (the player's runs, the queue played through it, the sound path, the converters) under
# ThreadSanitizer. Any report fails the run.
source "$(dirname "${BASH_SOURCE[0]}")/common.sh"
install_missing "${BUILD_PACKAGES[@]}" "${TEST_PACKAGES[@]}"

sanitized() {  # tree flags targets...
    local tree=$1 flags=$2
    shift 2
    cmake -S "$SONARIUM_SRC" -B "$tree" -G Ninja -DCMAKE_BUILD_TYPE=Debug -DSONARIUM_TESTS=ON \
        "-DCMAKE_CXX_FLAGS=-fno-omit-frame-pointer $flags" "-DCMAKE_EXE_LINKER_FLAGS=$flags"
    cmake --build "$tree" -j"$(nproc)" --target "$@"
}

asan=${SONARIUM_BUILD}-asan
sanitized "$asan" "-fsanitize=address,undefined -fno-sanitize-recover=undefined" \
    unit_controls unit_info unit_library unit_playback unit_shell unit_skins integration_tests fuzz_id3 fuzz_decode fuzz_paths fuzz_wav fuzz_cue \
    fuzz_rtf fuzz_kak
(cd "$asan" && ASAN_OPTIONS=detect_leaks=1:abort_on_error=1 UBSAN_OPTIONS=print_stacktrace=1 \
    ctest --output-on-failure -j"$(nproc)" --timeout 900 -L 'unit|integration|fuzz')

tsan=${SONARIUM_BUILD}-tsan
sanitized "$tsan" "-fsanitize=thread" integration_tests
(cd "$tsan" && TSAN_OPTIONS=halt_on_error=1:second_deadlock_stack=1 \
    ctest --output-on-failure -j"$(nproc)" --timeout 900 -L integration \
        -R 'Player|QueuePlay|SpeedStage|Volume|Peak|Encoder|CdReader|Conversion')
echo "Sanitizers: no reports"
