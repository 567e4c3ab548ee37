import csv
import sys
import unittest
from pathlib import Path

from lecture import RACINE

sys.path.insert(0, str(Path(__file__).resolve().parent.parent))
import references_horizontales
from conversion import Objet, Site, calcul_altaz, temps_local

TABLE = RACINE / "tests" / "sky" / "references_horizontales.csv"


def lignes():
    texte = TABLE.read_text(encoding="ascii").splitlines()
    return list(csv.DictReader(l for l in texte if not l.startswith("#")))


class References(unittest.TestCase):
    def test_regenere(self):
        self.assertEqual(references_horizontales.table(), TABLE.read_text(encoding="ascii"))

    def test_couverture(self):
        suite = lignes()
        self.assertGreaterEqual(len(suite), 150)
        for annee in ("2000", "2001"):
            for quadrant in range(4):
                cas = [l for l in suite
                       if l["year"] == annee and float(l["az_alm"]) // 90 == quadrant]
                self.assertGreaterEqual(len(cas), 10, (annee, quadrant))
        for nord in (True, False):
            for signe in "+-":
                for leve in (True, False):
                    cas = [l for l in suite if (int(l["lat_deg"]) > 0) == nord
                           and l["dec_sign"] == signe and (float(l["alt_alm"]) > 0) == leve]
                    self.assertGreaterEqual(len(cas), 5, (nord, signe, leve))
        self.assertTrue(any(int(l["lon_deg"]) < 0 for l in suite))
        for l in suite:
            for coordonnee in ("lon", "lat"):
                if int(l[coordonnee + "_deg"]) < 0:
                    self.assertEqual(l[coordonnee + "_min"], "0")

    def test_contre_les_formules(self):
        # The formulas of the program and ERFA's are two roads to the same place. Their
        # sidereal ratios differ by 4e-9, 0.006 arcseconds of hour angle in a day.
        for l in lignes():
            site = Site(*(int(l[c]) for c in ("lon_deg", "lon_min", "lat_deg", "lat_min")))
            local = temps_local(site, int(l["gmst0h"]), *(int(l[c]) for c in ("h", "m", "s", "ms")))
            objet = Objet(float(l["ra_h"]), float(l["ra_min"]), l["dec_sign"],
                          float(l["dec_deg"]), float(l["dec_min"]))
            posaz, posalt, _ = calcul_altaz(site, local, objet)
            self.assertAlmostEqual(posalt, float(l["alt_alm"]) * 3600, delta=0.01, msg=l)
            self.assertAlmostEqual(posaz, float(l["az_alm"]) * 3600, delta=0.05, msg=l)


if __name__ == "__main__":
    unittest.main()
