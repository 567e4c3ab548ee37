#!/usr/bin/python3
"""Write the almanac of the data folder: date/<year>/<month>/sg0.txt.

Each row is day,hours,minutes,seconds: Greenwich mean sidereal time at 0 h
universal time, rounded to the second, for the years 2000 and 2001.

Usage: almanach.py [FOLDER]      (default: the delivered data folder)
"""

import sys
from datetime import date, timedelta
from pathlib import Path

DONNEES = Path(__file__).resolve().parent.parent / "data"

ANNEES = (2000, 2001)
MOIS = ("janvier", "fevrier", "mars", "avril", "mai", "juin", "juillet", "aout",
        "septembre", "octobre", "novembre", "decembre")

# Julian date 2451545.0 is 2000 January 1, 12 h; that day's 0 h is half a day before.
JOUR_2000 = date(2000, 1, 1)


def tsmg0(jour):
    """Greenwich mean sidereal time at 0 h UT1 of a date, seconds in 0..86400.

    IAU 1982 expression: S. Aoki, B. Guinot, G. H. Kaplan, H. Kinoshita,
    D. D. McCarthy and P. K. Seidelmann, "The new definition of universal time",
    Astronomy and Astrophysics 105 (1982), 359-361. T in Julian centuries of UT1
    from 2000 January 1, 12 h. UT1 is taken for UTC (less than 0.4 s in these years).
    """
    t = ((jour - JOUR_2000).days - 0.5) / 36525.0
    s = 24110.54841 + (8640184.812866 + (0.093104 - 6.2e-6 * t) * t) * t
    return s % 86400.0


def arrondi(secondes):
    """Hours, minutes, whole seconds. Rounded before it is split, so that 59.7 s
    carries into the minute and the last half second of the day into 0 h."""
    total = round(secondes) % 86400
    return total // 3600, total // 60 % 60, total % 60


def mois_texte(annee, mois):
    """One month's file, a row a day."""
    jour, lignes = date(annee, mois, 1), []
    while jour.month == mois:
        lignes.append("%d,%d,%d,%d\r\n" % (jour.day, *arrondi(tsmg0(jour))))
        jour += timedelta(days=1)
    return "".join(lignes)


def ecrit(dossier):
    """The twenty-four files."""
    for annee in ANNEES:
        for numero, nom in enumerate(MOIS, start=1):
            chemin = Path(dossier) / "date" / str(annee) / nom / "sg0.txt"
            chemin.parent.mkdir(parents=True, exist_ok=True)
            chemin.write_bytes(mois_texte(annee, numero).encode("ascii"))


if __name__ == "__main__":
    ecrit(sys.argv[1] if len(sys.argv) > 1 else DONNEES)
