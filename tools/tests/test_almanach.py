import csv
import sys
import tempfile
import unittest
from datetime import date, timedelta
from pathlib import Path

import erfa

from lecture import DONNEES, fiches, meme_contenu

sys.path.insert(0, str(Path(__file__).resolve().parent.parent))
import almanach

SOURCES = Path(__file__).resolve().parent.parent / "sources"
DOSSIERS = ["janvier", "fevrier", "mars", "avril", "mai", "juin", "juillet", "aout",
            "septembre", "octobre", "novembre", "decembre"]

# TT - UT1, seconds: 32 leap seconds and 32.184, the same all through 2000 and 2001.
TT_UT = 64.184


def livre():
    """Day -> seconds, from the delivered files, the row's place counting as the day."""
    suite = {}
    for annee in (2000, 2001):
        for mois, nom in enumerate(DOSSIERS, start=1):
            for jour, ligne in enumerate(fiches(f"date/{annee}/{nom}/sg0.txt", 4), start=1):
                j, h, m, s = map(int, ligne)
                if j != jour or not (0 <= h < 24 and 0 <= m < 60 and 0 <= s < 60):
                    raise AssertionError(f"{annee} {nom}: {ligne}")
                suite[date(annee, mois, jour)] = h * 3600 + m * 60 + s
    return suite


def ecart(a, b):
    """Difference of two times of day, seconds, the short way round."""
    return abs((a - b + 43200.0) % 86400.0 - 43200.0)


class Almanach(unittest.TestCase):
    def test_un_rang_par_jour(self):
        attendus = [date(2000, 1, 1) + timedelta(days=n) for n in range(731)]
        self.assertEqual(list(livre()), attendus)

    def test_contre_la_table(self):
        # The table is rounded to 0.0001 s.
        jours = livre()
        with open(SOURCES / "sidereal_0h.csv", encoding="utf-8", newline="") as fichier:
            table = list(csv.DictReader(fichier))
        self.assertEqual(len(table), len(jours))
        for l in table:
            jour = date(int(l["year"]), int(l["month"]), int(l["day"]))
            attendu = int(l["hours"]) * 3600 + int(l["minutes"]) * 60 + float(l["seconds"])
            self.assertLessEqual(ecart(jours[jour], attendu), 0.5001, jour)

    def test_contre_erfa(self):
        # gmst06 departs from the 1982 expression by up to 0.001 s in these years.
        for n, (jour, secondes) in enumerate(livre().items()):
            jd = 2451544.5 + n
            de_1982 = erfa.gmst82(jd, 0.0) * 13750.987083139757
            de_2006 = erfa.gmst06(jd, 0.0, jd, TT_UT / 86400) * 13750.987083139757
            self.assertLessEqual(ecart(secondes, de_1982), 0.5, jour)
            self.assertLessEqual(ecart(secondes, de_2006), 0.502, jour)

    def test_formule(self):
        # Published: 1987 April 10, 0 h UT, 13 h 10 min 46.3668 s.
        self.assertAlmostEqual(almanach.tsmg0(date(1987, 4, 10)), 47446.3668, delta=5e-5)

    def test_arrondi(self):
        for secondes, attendu in ((23696.4, (6, 34, 56)), (59.7, (0, 1, 0)),
                                  (3599.6, (1, 0, 0)), (86399.4, (23, 59, 59)),
                                  (86399.6, (0, 0, 0)), (0.2, (0, 0, 0))):
            self.assertEqual(almanach.arrondi(secondes), attendu, secondes)

    def test_regenere(self):
        noms = [f"date/{a}/{m}/sg0.txt" for a in (2000, 2001) for m in DOSSIERS]
        with tempfile.TemporaryDirectory() as dossier:
            almanach.ecrit(dossier)
            meme_contenu(self, Path(dossier), noms)
            faits = {str(p.relative_to(dossier)) for p in Path(dossier).rglob("*.*")}
        livres = {str(p.relative_to(DONNEES)) for p in (DONNEES / "date").rglob("*.*")}
        self.assertEqual((faits, livres), (set(noms), set(noms)))


if __name__ == "__main__":
    unittest.main()
