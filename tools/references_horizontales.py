#!/usr/bin/python3
"""Write tests/sky/references_horizontales.csv: horizontal positions of stars, computed
with ERFA, against which the program's coordinate conversion is checked.

Usage: references_horizontales.py [FILE]

Two results stand in each row. Both are geometric (no refraction, precession,
nutation or aberration), as the program's are, azimuth from north through east:
  az_alm, alt_alm      sidereal time at 0 h to the whole second, as in the almanac,
                       plus the universal time elapsed x 1.00273790935
  az_exact, alt_exact  Greenwich mean sidereal time of the instant (gmst82)
UT1 is taken for UTC. The first pair tests the program's arithmetic, the second
what the whole-second almanac costs it (up to 7.5 arcseconds of hour angle).
"""

import csv
import math
import sys
from datetime import date, timedelta
from pathlib import Path

import erfa

ICI = Path(__file__).resolve().parent
SORTIE = ICI.parent / "tests" / "sky" / "references_horizontales.csv"

COLONNES = ("year,month,day,h,m,s,ms,lon_deg,lon_min,lat_deg,lat_min,ra_h,ra_min,dec_sign,"
            "dec_deg,dec_min,gmst0h,az_alm,alt_alm,az_exact,alt_exact")

# Longitude and latitude as an observer types them. A sign on the degrees does not reach
# the minutes, so a negative coordinate has 0 minutes.
SITES = (
    (6, 27, 48, 10),
    (2, 20, 46, 36),
    (-4, 0, 47, 48),
    (0, 9, 42, 56),
    (25, 28, 65, 1),
    (139, 45, 35, 39),
    (-157, 0, 21, 18),
    (-74, 0, 4, 36),
    (55, 27, -21, 0),
    (149, 4, -31, 0),
    (-70, 0, -24, 0),
    (18, 29, -34, 0),
)

NOMBRE = 156
RAPPORT = 1.00273790935
JD0 = 2451544.5  # 2000 January 1, 0 h


def gmst(jours, fraction):
    """Greenwich mean sidereal time, seconds, so many days and a fraction after 2000."""
    return math.degrees(erfa.gmst82(JD0 + jours, fraction)) * 240.0


def horizon(site, secondes_gmst, ad, dec):
    """Azimuth, altitude and hour angle (-180 to 180) in degrees; ad and dec in degrees."""
    longitude, latitude = site[0] + site[1] / 60.0, site[2] + site[3] / 60.0
    angle = math.remainder(secondes_gmst / 240.0 + longitude - ad, 360.0)
    az, alt = erfa.hd2ae(*map(math.radians, (angle, dec, latitude)))
    return math.degrees(az) % 360.0, math.degrees(alt), angle


def ecarte(az, alt, angle):
    """Near a singular point of the formulas: meridian, prime vertical, zenith, nadir."""
    return (min(abs(angle), 180.0 - abs(angle)) < 0.5
            or min(abs(az - 90.0), abs(az - 270.0)) < 0.5
            or abs(alt) > 89.0)


def suite(n, pas):
    """A number in 0..1 that fills the interval evenly as n grows (multiples of an
    irrational step), so the table is the same on every run."""
    return n * pas % 1.0


def etoiles():
    """Stars to magnitude 3.5 of both hemispheres, in the units of an entry: right
    ascension in tenths of a minute, declination in tenths of a minute of arc."""
    with open(ICI / "sources" / "stars.csv", encoding="utf-8", newline="") as fichier:
        lignes = [l for l in csv.DictReader(fichier) if float(l["mag"]) <= 3.5]
    lignes.sort(key=lambda l: float(l["ra_deg"]))
    return [(round(float(l["ra_deg"]) * 40) % 14400, round(float(l["dec_deg"]) * 600))
            for l in lignes]


def ligne(n, ciel):
    """Candidate number n as a row of text, or None where the formulas are singular."""
    site = SITES[n % len(SITES)]
    ad, dec = ciel[int(suite(n, math.sqrt(2)) * len(ciel))]
    jours = int(suite(n, math.sqrt(3)) * 731)
    ms = int(suite(n, math.sqrt(5)) * 86400000)
    jour = date(2000, 1, 1) + timedelta(days=jours)

    tsg0 = round(gmst(jours, 0.0)) % 86400
    az1, alt1, angle1 = horizon(site, tsg0 + ms / 1000.0 * RAPPORT, ad / 40.0, dec / 600.0)
    az2, alt2, angle2 = horizon(site, gmst(jours, ms / 86400000.0), ad / 40.0, dec / 600.0)
    if ecarte(az1, alt1, angle1) or ecarte(az2, alt2, angle2):
        return None

    secondes = ms // 1000
    champs = [jour.year, jour.month, jour.day,
              secondes // 3600, secondes // 60 % 60, secondes % 60, ms % 1000,
              *site, ad // 600, f"{ad % 600 / 10:.1f}",
              "-" if dec < 0 else "+", abs(dec) // 600, f"{abs(dec) % 600 / 10:.1f}", tsg0]
    return ",".join(map(str, champs)) + ",%.6f,%.6f,%.6f,%.6f" % (az1, alt1, az2, alt2)


def table():
    ciel, lignes, n = etoiles(), [], 0
    while len(lignes) < NOMBRE:
        n += 1
        texte = ligne(n, ciel)
        if texte:
            lignes.append(texte)
    entete = ("# Computed with the ERFA library (hd2ae, gmst82) by "
              "tools/references_horizontales.py; degrees, geometric, azimuth from north "
              "through east; universal time")
    return "\n".join([entete, COLONNES, *lignes]) + "\n"


if __name__ == "__main__":
    sortie = Path(sys.argv[1]) if len(sys.argv) > 1 else SORTIE
    sortie.write_bytes(table().encode("ascii"))
