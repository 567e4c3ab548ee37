#!/usr/bin/python3
"""Nights on the bench: follow four stars for ten hours and measure how far the mount's axes stray from the sky.

Usage: tools/nuits.py [--programme velmoria-scenario] [--increment MS] [--verifie] [NIGHT...]
       tools/nuits.py --ephemerides

Each night is played with the mount's angles printed every minute, just before the tick of that second and half a second
later, after its bursts. The motion since the start is compared with that of the star in tests/nuits/ephemerides.csv, a
frozen table. Errors are mount less star, arcseconds of the axis. Written: docs/suivi/NIGHT.csv and mesures.csv, and
aide/captures/erreurs.svg. --verifie writes nothing and fails where an error passes its limit.

--ephemerides makes that table anew with ERFA: Greenwich mean sidereal time by gmst82 (UT1 taken for UTC), azimuth and
altitude by hd2ae, purely geometric as the program's (no refraction, precession, nutation or aberration). Arcseconds,
azimuth from north through east.
"""

import argparse
import csv
import math
import re
import subprocess
import sys
from dataclasses import dataclass
from datetime import datetime, timedelta
from pathlib import Path

RACINE = Path(__file__).resolve().parent.parent
EPHEMERIDES = RACINE / "tests/nuits/ephemerides.csv"
RAPPORT = RACINE / "docs/suivi"
COURBES = RACINE / "aide/captures/erreurs.svg"
PROGRAMME = RACINE / "build/release/bin/velmoria-scenario"
HEURES = 10
MINUTES = HEURES * 60
TOUR = 1296000

# Name, start on the civil clock, line of the star in 5magstar.cat. Each night goes across civil and universal midnight.
NUITS = {
    "capella": ("2001-11-20 21:00:00", 29),  # culminates 2 degrees from the zenith: up to 40 steps of azimuth a second
    "dubhe": ("2001-08-24 21:00:00", 40),  # crosses the north below the pole: azimuth 0 from 359 degrees on
    "fomalhaut": ("2001-08-24 21:00:00", 46),  # 12 degrees high at most, followed below the horizon
    "mizar": ("2001-04-20 19:00:00", 68),  # crosses the north between pole and zenith: azimuth 0 to 359 degrees
}


def config():
    return [float(x) for x in (RACINE / "data/config_altaz.ini").read_text("cp1252").split()]


def site():
    """East longitude and north latitude, degrees, as delivered."""
    c = config()
    return c[0] + c[1] / 60, c[2] + c[3] / 60


def pas():
    """Arcseconds a step of azimuth and altitude, as delivered."""
    _, _, _, _, pas_az, pas_alt, r_alt, r_az = config()
    return 648000 / (pas_az * r_az), 648000 / (pas_alt * r_alt)


class Nuit:
    def __init__(self, nom):
        self.nom = nom
        self.horloge, self.rang = NUITS[nom]
        civil = datetime.fromisoformat(self.horloge)
        self.depart = civil - timedelta(hours=2 if 5 <= civil.month <= 10 else 1)  # the season goes by the month
        lignes = (RACINE / "data/5magstar.cat").read_text("cp1252").splitlines()
        self.etoile, _, ad, dec = lignes[self.rang].split(",")[:4]
        self.ad, self.dec = int(ad) / 40, int(dec) / 600  # degrees, taken for the equinox of date

    def scenario(self, increment):
        releves = [f"a {m * 60000 + d}ms montre monture" for m in range(MINUTES + 1) for d in (0, 500)]
        return "\n".join([
            f"horloge {self.horloge}", "demarre", "clic frminterface.barchoix(2)", "clic frminterface.baraltaz(6)",
            "clic frmconfig.cmdinitcoord", "choisit frmconfig.lbCatalogue 0", f"choisit frmconfig.lbObjets {self.rang}",
            "clic frmconfig.cmdchoix", "clic frminterface.baraltaz(5)",
            f"saisit frmaltazsuivi.txtincrement {increment}", "clic frmaltazsuivi.cmdcalcul", *releves[:-1],
            f"avance {HEURES}h", ""])


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
    """(night, minute) -> azimuth and altitude of the star, and both half a second later."""
    with open(EPHEMERIDES, encoding="utf-8") as fichier:
        return {(l["nuit"], int(l["minute"])): tuple(float(l[c]) for c in ("az", "alt", "az_demi", "alt_demi"))
                for l in csv.DictReader(x for x in fichier if not x.startswith("#"))}


def texte_ephemerides():
    import erfa

    longitude, latitude = site()

    def horizon(nuit, secondes):
        depuis = nuit.depart + timedelta(seconds=secondes) - datetime(2000, 1, 1, 12)
        gmst = math.degrees(erfa.gmst82(2451545.0, depuis / timedelta(days=1)))
        az, alt = erfa.hd2ae(*map(math.radians, (gmst + longitude - nuit.ad, nuit.dec, latitude)))
        return f"{math.degrees(az) % 360 * 3600:.2f},{math.degrees(alt) * 3600:.2f}"

    lignes = ["# ERFA: gmst82, hd2ae; by tools/nuits.py --ephemerides", "nuit,minute,az,alt,az_demi,alt_demi"]
    lignes += [f"{nuit.nom},{minute},{horizon(nuit, minute * 60)},{horizon(nuit, minute * 60 + 0.5)}"
               for nuit in map(Nuit, NUITS) for minute in range(MINUTES + 1)]
    return "\n".join(lignes) + "\n"


def joue(programme, nuit, increment):
    """The mount's angles at each minute, before and after its tick."""
    fait = subprocess.run([programme, "-"], input=nuit.scenario(increment), capture_output=True, text=True, check=False)
    if fait.returncode != 0:
        sys.exit(f"{nuit.nom} : statut {fait.returncode}\n{fait.stderr}")
    angles = [tuple(map(float, m)) for m in re.findall(r"^monture az=(\S+) alt=(\S+)$", fait.stdout, re.MULTILINE)]
    return list(zip(angles[0::2], angles[1::2]))[:MINUTES]


def compare(nuit, table, releves):
    depart = table[nuit.nom, 0]

    def erreur(monture, az, alt):
        return (monture[0] - (az - depart[0]) + TOUR / 2) % TOUR - TOUR / 2, monture[1] - (alt - depart[1])

    for minute, (avant, apres) in enumerate(releves):
        az, alt, az_demi, alt_demi = table[nuit.nom, minute]
        yield Mesure(minute, az, alt, erreur(avant, az, alt), erreur(apres, az_demi, alt_demi))


def resume(nuit, increment, mesures):
    """The night's row of mesures.csv, its largest distances before and after the tick at the end."""
    ligne = [nuit.nom, increment]
    for quand in ("avant", "apres"):
        for axe in (0, 1):
            valeurs = [getattr(m, quand)[axe] for m in mesures]
            ligne += [f"{min(valeurs):.1f}", f"{max(valeurs):.1f}"]
    return ligne + [f"{max(m.sur_le_ciel(getattr(m, quand)) for m in mesures):.1f}" for quand in ("avant", "apres")]


def depasse(ligne):
    """Whether an error passes its limit, across the sky. Before a tick: 15.04 for an almanac in whole seconds, whose
    rounding may change by one at midnight, and 2 steps of each reversal's sums. After it the clock leads by up to a
    second more."""
    limite = 15.04 + 2 * max(pas())
    return float(ligne[-2]) > limite or float(ligne[-1]) > limite + 15.04


def ecrit_rapport(courbes, lignes):
    for nuit, mesures in courbes:
        with open(RAPPORT / f"{nuit.nom}.csv", "w", encoding="utf-8", newline="") as fichier:
            t = csv.writer(fichier, lineterminator="\n")
            t.writerow(("minute", "az_deg", "alt_deg", "az_avant", "alt_avant", "az_apres", "alt_apres"))
            t.writerows((m.minute, f"{m.az / 3600:.3f}", f"{m.alt / 3600:.3f}",
                         *(f"{x:.2f}" for x in m.avant + m.apres)) for m in mesures)
    with open(RAPPORT / "mesures.csv", "w", encoding="utf-8", newline="") as fichier:
        t = csv.writer(fichier, lineterminator="\n")
        t.writerow(("nuit", "increment_ms", "az_avant_min", "az_avant_max", "alt_avant_min", "alt_avant_max",
                    "az_apres_min", "az_apres_max", "alt_apres_min", "alt_apres_max", "ciel_avant_max", "ciel_apres_max"))
        t.writerows(lignes)
    COURBES.write_text(trace(courbes), "utf-8")


# The plot: the error of both axes over the night, a frame for each star.
LARGEUR, HAUTEUR, MARGE, TITRE = 560, 190, 52, 30
COULEURS = (("#1f5fa8", "azimut × cos(altitude)"), ("#c2410c", "altitude"))


def graduation(etendue):
    """A step of 1, 2 or 5 times a power of ten that gives at most six lines."""
    puissance = 10 ** math.floor(math.log10(etendue / 6))
    return next(k * puissance for k in (1, 2, 5, 10) if k * puissance >= etendue / 6)


def cadre(nuit, mesures, y0):
    # Hours, and both errors across the sky before the tick.
    points = [(m.minute / 60, (m.avant[0] * math.cos(math.radians(m.alt / 3600)), m.avant[1])) for m in mesures]
    haut = max(max(abs(e) for _, couple in points for e in couple), 2 * max(pas()))
    heures = points[-1][0]
    x = lambda h: MARGE + h / heures * (LARGEUR - MARGE - 15)
    y = lambda e: y0 + TITRE + (1 - e / haut) * (HAUTEUR - TITRE - 25) / 2
    yield (f'<text x="{MARGE}" y="{y0 + 20}" font-weight="bold">{nuit.etoile}, '
           f'{nuit.depart:%d/%m/%Y} à partir de {nuit.depart:%H:%M} TU</text>')
    g = graduation(2 * haut)
    for k in range(math.ceil(-haut / g), math.floor(haut / g) + 1):
        nombre = f"{k * g:g}".replace("-", "−").replace(".", ",")
        yield (f'<line x1="{MARGE}" x2="{LARGEUR - 15}" y1="{y(k * g):.1f}" y2="{y(k * g):.1f}" '
               f'stroke="{"#ddd" if k else "#888"}"/>')
        yield f'<text x="{MARGE - 6}" y="{y(k * g) + 4:.1f}" text-anchor="end">{nombre}″</text>'
    for h in range(0, math.ceil(heures) + 1, 2):
        yield f'<text x="{x(min(h, heures)):.1f}" y="{y0 + HAUTEUR - 8}" text-anchor="middle">{h} h</text>'
    for axe, (couleur, _) in enumerate(COULEURS):
        ligne = " ".join(f"{x(h):.1f},{y(e[axe]):.1f}" for h, e in points)
        yield f'<polyline fill="none" stroke="{couleur}" stroke-width="1" points="{ligne}"/>'


def trace(courbes):
    total = HAUTEUR * len(courbes) + 30
    lignes = [f'<svg xmlns="http://www.w3.org/2000/svg" width="{LARGEUR}" height="{total}" '
              f'viewBox="0 0 {LARGEUR} {total}" font-family="sans-serif" font-size="11">',
              f'<rect width="{LARGEUR}" height="{total}" fill="white"/>']
    lignes += [f'<text x="{MARGE + 180 * i}" y="18" fill="{couleur}">{nom}</text>'
               for i, (couleur, nom) in enumerate(COULEURS)]
    lignes.append(f'<text x="{LARGEUR - 15}" y="18" text-anchor="end">monture moins étoile</text>')
    for i, (nuit, mesures) in enumerate(courbes):
        lignes += cadre(nuit, mesures, 30 + i * HAUTEUR)
    return "\n".join(lignes + ["</svg>"]) + "\n"


def main():
    lecteur = argparse.ArgumentParser()
    lecteur.add_argument("--programme", type=Path, default=PROGRAMME)
    lecteur.add_argument("--increment", type=int, default=1000)
    lecteur.add_argument("--verifie", action="store_true")
    lecteur.add_argument("--ephemerides", action="store_true")
    lecteur.add_argument("nuits", nargs="*", default=list(NUITS))
    options = lecteur.parse_args()
    if options.ephemerides:
        EPHEMERIDES.write_text(texte_ephemerides(), "utf-8")
        return 0
    table = ephemerides()
    lignes, courbes, fautes = [], [], []
    for nuit in map(Nuit, options.nuits):
        mesures = list(compare(nuit, table, joue(options.programme, nuit, options.increment)))
        ligne = resume(nuit, options.increment, mesures)
        print(*ligne)
        lignes.append(ligne)
        courbes.append((nuit, mesures))
        if len(mesures) != MINUTES or depasse(ligne):
            fautes.append(nuit.nom)
    if options.verifie:
        return f"errors beyond their limits: {', '.join(fautes)}" if fautes else 0
    return ecrit_rapport(courbes, lignes)


if __name__ == "__main__":
    sys.exit(main())
