#!/usr/bin/env bash
# tools/tidy.sh [--analyse]: clang-tidy over src as the Clang build in build/sanitizers compiles it; --analyse: by
# the analyzer instead, leaks apart (what Qt is given it owns).
# What it looks for, and why, stands in .clang-tidy; any finding is a failure. A source is looked at again when it, any
# header or the list of checks has changed since the last run without a finding.
set -euo pipefail
cd "$(dirname "$0")/.."
construit=build/sanitizers
marque=$construit/tidy.marque
controles=
if [ "${1:-}" = --analyse ]; then
    marque=$construit/analyse.marque
    controles='-*,clang-analyzer-core.*,clang-analyzer-cplusplus.*,-clang-analyzer-cplusplus.NewDeleteLeaks,clang-analyzer-deadcode.*'
fi

depuis=()
if [ -e "$marque" ] && [ -z "$(find .clang-tidy src -newer "$marque" \( -name '*.h' -o -name .clang-tidy \))" ]; then
    depuis=(-newer "$marque")
fi
mapfile -t sources < <(find src -name '*.cpp' "${depuis[@]}" | sort)
printf '%s files to look at\n' "${#sources[@]}"
touch "$marque.neuve"
if [ ${#sources[@]} -gt 0 ]; then
    printf '%s\n' "${sources[@]}" | xargs -P "$(nproc)" -n 3 clang-tidy -p "$construit" --checks="$controles" --quiet \
        2> >(grep -v ' warnings\? generated' >&2)
fi
mv "$marque.neuve" "$marque"
