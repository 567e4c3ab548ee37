#!/usr/bin/env bash
# Screenshots of every window on a virtual display: tools/captures.sh [BUILD FOLDER] [FOLDER] [SCALE]
set -euo pipefail
cd "$(dirname "$0")/.."
construit=${1:-build/release}
dossier=${2:-captures}
tools/installe.sh captures
cmake --build "$construit" --target velmoria-captures -j "$(nproc)" >/dev/null
QT_SCALE_FACTOR=${3:-1} tests/fenetres/ecran.sh "$construit/tools/velmoria-captures" data "$dossier"
ls "$dossier"
