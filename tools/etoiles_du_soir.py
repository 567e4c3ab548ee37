#!/usr/bin/python3
"""Write tests/sky/etoiles_du_soir.csv: where bright stars truly stand on evenings of 2026 to 2040, against which
the sky of the equivalent night is checked.

Usage: etoiles_du_soir.py [FILE]

ERFA's whole road from catalogue to observed place (atco13): proper motion, parallax, precession, nutation,
aberration and the Earth's rotation; geometric (pressure 0), UT1 taken for UTC. Nothing of it is the program's.
Each row gives the star as the catalogues have it, to a tenth of a minute at J2000.
"""

import math
import sys
import warnings
from pathlib import Path

import erfa

SORTIE = Path(__file__).resolve().parent.parent / "tests" / "sky" / "etoiles_du_soir.csv"
COLONNES = ("year,month,day,h,m,s,ms,lon_deg,lon_min,lat_deg,lat_min,ra_h,ra_min,dec_sign,dec_deg,dec_min,az,alt,star")
# Place at J2000 in degrees, proper motion in mas a year (along the sky), parallax in mas: Hipparcos.
ETOILES = {
    "Aldebaran": (68.98016279, 16.50930235, 62.78, -189.36, 50.09),
    "Altair": (297.69582730, 8.86832120, 536.82, 385.54, 194.44),
    "Arcturus": (213.91530029, 19.18240916, -1093.45, -1999.40, 88.85),
    "Capella": (79.17232794, 45.99799147, 75.52, -427.11, 77.29),
    "Deneb": (310.35797975, 45.28033881, 1.56, 1.55, 1.01),
    "Dubhe": (165.93196467, 61.75103469, -136.46, -35.25, 26.38),
    "Pollux": (116.32895777, 28.02619889, -625.69, -45.95, 96.74),
    "Procyon": (114.82549791, 5.22498756, -716.57, -1034.58, 285.93),
    "Regulus": (152.09296244, 11.96720878, -249.40, 4.91, 42.09),
    "Rigel": (78.63446707, -8.20163837, 1.87, -0.56, 4.22),
    "Sirius": (101.28715533, -16.71611586, -546.01, -1223.08, 379.21),
    "Spica": (201.29824736, -11.16131949, -42.50, -31.73, 12.44),
    "Vega": (279.23473479, 38.78368896, 201.02, 287.46, 128.93),
}
SITE = (2, 20, 48, 52)  # longitude and latitude, degrees and minutes
SOIRS = ((2026, 12, 1, 22, 30, 0), (2028, 2, 29, 20, 0, 0), (2030, 4, 20, 22, 0, 0),
         (2033, 6, 30, 23, 0, 0), (2036, 8, 15, 21, 0, 0), (2040, 10, 31, 19, 30, 0))
NOMBRE = 5              # stars an evening, the highest but those near the zenith
HAUTEURS = (15, 85)     # degrees


def place(soir, etoile):
    """Azimuth and altitude of a star, degrees."""
    ad, dec, mouvement_ad, mouvement_dec, parallaxe = ETOILES[etoile]
    mas = math.radians(1 / 3.6e6)
    az, zenith, *_ = erfa.atco13(
        math.radians(ad), math.radians(dec), mouvement_ad * mas / math.cos(math.radians(dec)), mouvement_dec * mas,
        parallaxe / 1000, 0, *erfa.dtf2d("UTC", *soir), 0, math.radians(SITE[0] + SITE[1] / 60),
        math.radians(SITE[2] + SITE[3] / 60), 0, 0, 0, 0, 0, 0, 0.55)
    return math.degrees(az) % 360, 90 - math.degrees(zenith)


def ligne(soir, etoile):
    ad, dec = round(ETOILES[etoile][0] * 40), round(ETOILES[etoile][1] * 600)
    champs = [*soir, 0, *SITE, ad // 600, f"{ad % 600 / 10:.1f}", "-" if dec < 0 else "+", abs(dec) // 600,
              f"{abs(dec) % 600 / 10:.1f}", "%.5f,%.5f" % place(soir, etoile), etoile]
    return ",".join(map(str, champs))


def table():
    lignes = ["# Computed with ERFA (atco13: proper motion, parallax, precession, nutation, aberration; no refraction) "
              "from Hipparcos by tools/etoiles_du_soir.py; degrees, azimuth from north through east; universal time",
              COLONNES]
    for soir in SOIRS:
        hautes = sorted((h, e) for e in ETOILES for h in (place(soir, e)[1],) if HAUTEURS[0] < h < HAUTEURS[1])
        lignes += [ligne(soir, e) for _, e in reversed(hautes[-NOMBRE:])]
    return "\n".join(lignes) + "\n"


if __name__ == "__main__":
    warnings.simplefilter("ignore")  # ERFA calls years ahead dubious: UTC may get leap seconds
    (Path(sys.argv[1]) if len(sys.argv) > 1 else SORTIE).write_bytes(table().encode("ascii"))
