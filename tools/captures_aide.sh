#!/usr/bin/env bash
# Makes the pictures of the help pages from the running program: tools/captures_aide.sh [BUILD FOLDER]
# 256 colours keep each of them under 60 KB.
set -euo pipefail
cd "$(dirname "$0")/.."
construit=${1:-build/release}
tools/installe.sh captures_aide
tools/captures.sh "$construit" "$construit/captures-aide" >/dev/null
/usr/bin/python3 - "$construit/captures-aide" aide/captures <<'FIN'
import sys
from pathlib import Path

from PIL import Image

noms = ["altazimutal", "banc", "pilotage", "nuit", "frmaltazpilot-ouvert", "frmequapilot-ouvert", "frmraquette", "frmconfig",
        "frmequaconfig", "frmcoord", "frmaltazpointage", "frmequapointage", "frmDepl", "frmaltazsuivi", "Frmnotes", "carte-1",
        "carte-5"]
origine, dossier = map(Path, sys.argv[1:])
dossier.mkdir(exist_ok=True)
for ancienne in dossier.glob("*.png"):
    if not ancienne.name.startswith("planetarium-"):  # taken by hand, with KStars and its driver connected
        ancienne.unlink()
for nom in noms:
    fichier = dossier / f"{nom}.png"
    image = Image.open(origine / f"{nom}.png").convert("RGB")
    image.quantize(256, method=Image.Quantize.MEDIANCUT, dither=Image.Dither.NONE).save(fichier, optimize=True)
    octets = fichier.stat().st_size
    print(f"{fichier}: {image.width} x {image.height}, {octets} bytes")
    if octets >= 60 * 1024:
        sys.exit(f"{fichier}: too large for a help page")
FIN
