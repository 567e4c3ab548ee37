#!/usr/bin/python3
"""Write docs/suivi/ephemerides.csv: where the stars of tests/nuits stand, each minute and half a second after it.

Computed with ERFA: Greenwich mean sidereal time by gmst82 (UT1 taken for UTC), azimuth and altitude by hd2ae, purely
geometric as the program's (no refraction, precession, nutation or aberration). Arcseconds, azimuth from north
through east.
"""

import csv
import math
from datetime import datetime

import erfa

from nuits import EPHEMERIDES, MINUTES, site, toutes

J2000 = datetime(2000, 1, 1, 12)
JD_J2000 = 2451545.0


def horizon(nuit, secondes):
    longitude, latitude = site()
    depuis = nuit.depart - J2000
    jour = depuis.days + depuis.seconds / 86400 + secondes / 86400
    gmst = math.degrees(erfa.gmst82(JD_J2000, jour))
    az, alt = erfa.hd2ae(*map(math.radians, (gmst + longitude - nuit.ad, nuit.dec, latitude)))
    return math.degrees(az) % 360 * 3600, math.degrees(alt) * 3600


def main():
    EPHEMERIDES.parent.mkdir(parents=True, exist_ok=True)
    with open(EPHEMERIDES, "w", encoding="utf-8", newline="") as fichier:
        fichier.write(f"# ERFA {erfa.version.erfa_version}: gmst82, hd2ae; by tools/ephemerides_nuits.py\n")
        table = csv.writer(fichier, lineterminator="\n")
        table.writerow(("nuit", "minute", "az", "alt", "az_demi", "alt_demi"))
        for nuit in toutes():
            for minute in range(MINUTES + 1):
                valeurs = horizon(nuit, minute * 60) + horizon(nuit, minute * 60 + 0.5)
                table.writerow((nuit.nom, minute, *(f"{v:.2f}" for v in valeurs)))


if __name__ == "__main__":
    main()
