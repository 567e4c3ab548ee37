#!/usr/bin/env bash
# tools/tidy.sh [BUILD FOLDER]: clang-tidy over every source file of src, as the Clang build there compiles it (default
# build/sanitizers). What it looks for, and why, stands in .clang-tidy; any finding is a failure.
set -euo pipefail
cd "$(dirname "$0")/.."
construit=${1:-build/sanitizers}
sources=$(find src -name '*.cpp' | sort)
printf '%s files\n' "$(wc -w <<<"$sources")"
xargs -P "$(nproc)" -n 3 clang-tidy -p "$construit" --quiet <<<"$sources" 2> >(grep -v ' warnings\? generated' >&2)
