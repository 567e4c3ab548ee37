#!/usr/bin/python3
"""A night on the bench: follow the stars of tests/nuits and measure how far the mount's axes stray from the sky.

Usage: rapport_suivi.py [--programme velmoria-scenario] [--increment MS] [--verifie] [--sortie DOSSIER]

Each night is played with the mount's angles printed every minute, just before the tick of that second and half a
second later, after its bursts. The motion since the start is compared with that of the star in
docs/suivi/ephemerides.csv, a frozen table made with ERFA by ephemerides_nuits.py. Errors are mount less star,
arcseconds of the axis. Written into DOSSIER (docs/suivi): NIGHT.csv, erreurs.svg and mesures.csv.
--verifie writes nothing and fails where an error passes its limit.
"""

import argparse
import csv
import math
import re
import subprocess
import sys
import time
from dataclasses import dataclass
from pathlib import Path

from nuits import EPHEMERIDES, HEURES, MINUTES, RACINE, pas, toutes
from trace_suivi import trace

PROGRAMME = RACINE / "build" / "release" / "bin" / "velmoria-scenario"
TOUR = 1296000

# Across the sky, arcseconds. Before a tick: 15.04 for an almanac in whole seconds, whose rounding may change by
# one at midnight, and 2 steps of each reversal's sums. After it the clock leads by up to a second more.
LIMITE_AVANT = 15.04 + 2 * 6.48
LIMITE_APRES = LIMITE_AVANT + 15.04


@dataclass
class Mesure:
    minute: int
    az: float  # of the star, arcseconds
    alt: float
    avant: tuple  # errors of azimuth and altitude before the tick
    apres: tuple  # and after it

    def sur_le_ciel(self, erreur):
        return math.hypot(erreur[0] * math.cos(math.radians(self.alt / 3600)), erreur[1])


def ephemerides():
    table = {}
    with open(EPHEMERIDES, encoding="utf-8") as fichier:
        for l in csv.DictReader(x for x in fichier if not x.startswith("#")):
            table[l["nuit"], int(l["minute"])] = tuple(float(l[c]) for c in ("az", "alt", "az_demi", "alt_demi"))
    return table


def joue(programme, nuit, increment):
    """The mount's angles at each minute, before and after its tick, and the time it took to play, seconds."""
    texte = nuit.scenario
    releves = "".join(f"a {m * 60000 + d}ms montre monture\n" for m in range(MINUTES + 1) for d in (0, 500)
                      if m * 60000 + d <= HEURES * 3600000)
    texte = texte.replace("clic frmaltazsuivi.cmdcalcul\n",
                          f"saisit frmaltazsuivi.txtincrement {increment}\nclic frmaltazsuivi.cmdcalcul\n")
    texte = texte.replace(f"avance {HEURES}h\n", releves + f"avance {HEURES}h\n")
    debut = time.monotonic()
    fait = subprocess.run([programme, "-"], input=texte, capture_output=True, text=True, check=False)
    duree = time.monotonic() - debut
    if fait.returncode != 0:
        sys.exit(f"{nuit.nom} : statut {fait.returncode}\n{fait.stderr}")
    angles = [tuple(map(float, m)) for m in re.findall(r"^monture az=(\S+) alt=(\S+)$", fait.stdout, re.MULTILINE)]
    return list(zip(angles[0::2], angles[1::2]))[:MINUTES], duree


def ecart(a, b):
    return (a - b + TOUR / 2) % TOUR - TOUR / 2


def compare(nuit, table, releves):
    depart = table[nuit.nom, 0]

    def erreur(monture, az, alt):
        return ecart(monture[0], az - depart[0]), monture[1] - (alt - depart[1])

    mesures = []
    for minute, (avant, apres) in enumerate(releves):
        az, alt, az_demi, alt_demi = table[nuit.nom, minute]
        mesures.append(Mesure(minute, az, alt, erreur(avant, az, alt), erreur(apres, az_demi, alt_demi)))
    return mesures


def ecrit(dossier, nuit, mesures):
    with open(dossier / f"{nuit.nom}.csv", "w", encoding="utf-8", newline="") as fichier:
        table = csv.writer(fichier, lineterminator="\n")
        table.writerow(("minute", "az_deg", "alt_deg", "az_avant", "alt_avant", "az_apres", "alt_apres"))
        for m in mesures:
            table.writerow((m.minute, f"{m.az / 3600:.3f}", f"{m.alt / 3600:.3f}",
                            *(f"{x:.2f}" for x in m.avant + m.apres)))


def resume(nuit, increment, mesures):
    """The night's row of mesures.csv, and its largest distances before and after the tick."""
    def extremes(axe, quand):
        valeurs = [getattr(m, quand)[axe] for m in mesures]
        return f"{min(valeurs):.1f}", f"{max(valeurs):.1f}"

    ciel = [max(m.sur_le_ciel(getattr(m, q)) for m in mesures) for q in ("avant", "apres")]
    return (nuit.nom, increment, *extremes(0, "avant"), *extremes(1, "avant"), *extremes(0, "apres"),
            *extremes(1, "apres"), f"{ciel[0]:.1f}", f"{ciel[1]:.1f}"), ciel


def main():
    lecteur = argparse.ArgumentParser()
    lecteur.add_argument("--programme", type=Path, default=PROGRAMME)
    lecteur.add_argument("--increment", type=int, default=1000)
    lecteur.add_argument("--verifie", action="store_true")
    lecteur.add_argument("--sortie", type=Path, default=EPHEMERIDES.parent)
    options = lecteur.parse_args()

    table = ephemerides()
    lignes, courbes, fautes = [], [], []
    for nuit in toutes():
        releves, duree = joue(options.programme, nuit, options.increment)
        mesures = compare(nuit, table, releves)
        ligne, ciel = resume(nuit, options.increment, mesures)
        print(*ligne, f"{duree:.1f}s")
        lignes.append(ligne)
        courbes.append((nuit, mesures))
        if len(mesures) != MINUTES or ciel[0] > LIMITE_AVANT or ciel[1] > LIMITE_APRES:
            fautes.append(nuit.nom)
    if options.verifie:
        return f"errors beyond their limits: {', '.join(fautes)}" if fautes else 0
    for nuit, mesures in courbes:
        ecrit(options.sortie, nuit, mesures)
    with open(options.sortie / "mesures.csv", "w", encoding="utf-8", newline="") as fichier:
        t = csv.writer(fichier, lineterminator="\n")
        t.writerow(("nuit", "increment_ms", "az_avant_min", "az_avant_max", "alt_avant_min", "alt_avant_max",
                    "az_apres_min", "az_apres_max", "alt_apres_min", "alt_apres_max", "ciel_avant_max",
                    "ciel_apres_max"))
        t.writerows(lignes)
    (options.sortie / "erreurs.svg").write_text(trace(courbes, pas()), "utf-8")
    return 0


if __name__ == "__main__":
    sys.exit(main())
