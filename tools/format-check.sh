#!/usr/bin/env bash
# Fails when a C++ file that the change touches differs from what clang-format makes of it
# (.clang-format holds the style). The change is the last commit, or the commits since
# SONARIUM_FORMAT_BASE when it is set; without a parent commit (a shallow clone) every file
# is checked. Tables laid out by hand sit between "clang-format off" and "on" comments.
source "$(dirname "${BASH_SOURCE[0]}")/common.sh"
install_missing clang-format
cd "$SONARIUM_SRC"

base=${SONARIUM_FORMAT_BASE:-HEAD^}
if git rev-parse --verify --quiet "$base^{commit}" >/dev/null; then
    mapfile -t files < <(git diff --name-only --diff-filter=ACMR "$base" HEAD -- '*.cpp' '*.h')
else
    mapfile -t files < <(git ls-files '*.cpp' '*.h')
fi
[ ${#files[@]} -eq 0 ] && { echo "Format: no C++ file changed"; exit 0; }

bad=()
for f in "${files[@]}"; do
    clang-format --dry-run --Werror "$f" >/dev/null 2>&1 || bad+=("$f")
done
if [ ${#bad[@]} -gt 0 ]; then
    echo "Not formatted as .clang-format says (run: clang-format -i FILE):"
    printf '  %s\n' "${bad[@]}"
    exit 1
fi
echo "Format: ${#files[@]} changed C++ files as .clang-format says"
