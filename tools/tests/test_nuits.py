import csv
import sys
import unittest
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parent.parent))
import ephemerides_nuits
import nuits


def table():
    with open(nuits.EPHEMERIDES, encoding="utf-8") as fichier:
        return list(csv.DictReader(l for l in fichier if not l.startswith("#")))


class Nuits(unittest.TestCase):
    def test_table_gelee(self):
        lignes = table()
        par_nom = {n.nom: n for n in nuits.toutes()}
        self.assertEqual(len(lignes), len(par_nom) * (nuits.MINUTES + 1))
        for l in lignes:
            for demi, champs in ((0, ("az", "alt")), (0.5, ("az_demi", "alt_demi"))):
                calcul = ephemerides_nuits.horizon(par_nom[l["nuit"]], int(l["minute"]) * 60 + demi)
                for champ, valeur in zip(champs, calcul):
                    self.assertAlmostEqual(float(l[champ]), valeur, delta=0.01, msg=l)

    def test_culminations(self):
        # Latitude 48° 10'. Altitude at the meridian from the declinations 45° 59.9', -29° 37.3', 61° 45.1' (below the
        # pole), 54° 55.5'; the star comes to it within half a minute of a row, where it moves by less than 0.02 degree.
        attendues = {"capella": 87.8317, "fomalhaut": 12.2117, "mizar": 83.2417}
        for nom, hauteur in attendues.items():
            plus_haut = max(float(l["alt"]) for l in table() if l["nuit"] == nom) / 3600
            self.assertAlmostEqual(plus_haut, hauteur, delta=0.02, msg=nom)
        plus_bas = min(float(l["alt"]) for l in table() if l["nuit"] == "dubhe") / 3600
        self.assertAlmostEqual(plus_bas, 19.9183, delta=0.02)

    def test_passages_au_nord(self):
        for nom, sens in (("dubhe", 1), ("mizar", -1)):
            az = [float(l["az"]) for l in table() if l["nuit"] == nom]
            sauts = [b - a for a, b in zip(az, az[1:]) if abs(b - a) > 648000]
            self.assertEqual([s < 0 for s in sauts], [sens > 0], nom)


if __name__ == "__main__":
    unittest.main()
