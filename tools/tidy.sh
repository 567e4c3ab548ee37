#!/usr/bin/env bash
# tools/tidy.sh [--analyse]: clang-tidy over src as the Clang build in build/sanitizers compiles it, a folder at a time;
# --analyse: by the analyzer instead, leaks apart (what Qt is given it owns).
# What it looks for, and why, stands in .clang-tidy; any finding is a failure. A folder is looked at again when a source of
# it, any header or the list of checks has changed since the last run without a finding.
set -euo pipefail
cd "$(dirname "$0")/.."
construit=build/sanitizers
marque=$construit/tidy.marque
controles=-bugprone-suspicious-include # that a folder's sources are put together
if [ "${1:-}" = --analyse ]; then
    marque=$construit/analyse.marque
    controles='-*,clang-analyzer-core.*,clang-analyzer-cplusplus.*,-clang-analyzer-cplusplus.NewDeleteLeaks,clang-analyzer-deadcode.*'
fi

depuis=()
if [ -e "$marque" ] && [ -z "$(find .clang-tidy src -newer "$marque" \( -name '*.h' -o -name .clang-tidy \))" ]; then
    depuis=(-newer "$marque")
fi
touch "$marque.neuve"
# What the build compiles of src: sources, and sources of several (#include "FOLDER/FILE.cpp"), where one has changed.
mapfile -t sources < <(grep -oP "\"file\": \"\K$PWD/(|$construit/)src/[^\"]*" $construit/compile_commands.json | grep -v qrc_ | sort -u)
mapfile -t changes < <(find "$PWD/src" -name '*.cpp' "${depuis[@]}")
printf '%s\n' "${changes[@]}" >"$marque.changes"
a_voir=()
for s in "${sources[@]}"; do
    if { echo "$s" && cat "$s"; } | grep -qFf "$marque.changes"; then a_voir+=("$s"); fi
done
printf '%s files, in %s parts to look at\n' "${#changes[@]}" "${#a_voir[@]}"
if [ ${#changes[@]} -gt 0 ]; then
    printf '%s\n' "${a_voir[@]}" | xargs -P "$(nproc)" -n 1 clang-tidy -p "$construit" --checks="$controles" --quiet \
        2> >(grep -v ' warnings\? generated' >&2)
fi
mv "$marque.neuve" "$marque"
