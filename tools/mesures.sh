#!/usr/bin/env bash
# Runs every benchmark of a release build, windows on a virtual display: tools/mesures.sh [BUILD FOLDER]
set -euo pipefail
cd "$(dirname "$0")/.."
construit=${1:-build/release}/benchmarks
for b in banc_attente banc_port_simule banc_raquette banc_pointage banc_suivi; do
    printf '\n== %s\n' "$b"
    "$construit/$b"
done
for b in banc_jog banc_planetarium banc_horloge banc_demarrage banc_retard; do
    printf '\n== %s\n' "$b"
    tests/fenetres/ecran.sh "$construit/$b"
done
for echelle in 1 2; do
    printf '\n== banc_carte\n'
    QT_SCALE_FACTOR=$echelle tests/fenetres/ecran.sh "$construit/banc_carte"
done
