import math
import sys
import tempfile
import unittest
from pathlib import Path

from lecture import DONNEES, fiches, meme_contenu, valeurs

sys.path.insert(0, str(Path(__file__).resolve().parent.parent))
import catalogues

OBJETS = ["messier.cat", "ic.cat"] + [f"ngc{b}.cat" for b in range(8)]
ETOILES = ["5magstar.cat", "vstar.cat"]
TOUS = OBJETS + ETOILES + ["vconst.cat", "const.cat"]

# The most records each reader takes. The chart picks among its first 200 stars only.
PLACES = {"5magstar.cat": 121, "vstar.cat": 199}
PLACES_OBJETS = 1031

CODES = {"GL", "OC", "GC", "DN", "PN", "ST"}

# The Greek letters the chart knows, and those it leaves blank.
LETTRES = set("ALPHA BETA GAMMA DELTA EPSILON ZETA ETA THETA IOTA KAPPA LAMBDA MU NU XI "
              "OMICRON PI RHO SIGMA TAU UPSILON PHI CHI PSI OMEGA".split())

# Published J2000 positions: file, name, code or constellation, right ascension (h, min),
# declination (sign, degrees, minutes), tolerance in minutes of arc: the extent of an
# object decides how well its centre is agreed upon.
REPERES = (
    ("messier.cat", "M1", "DN", 5, 34.5, "+", 22, 1, 2),
    ("messier.cat", "M13", "GC", 16, 41.7, "+", 36, 28, 2),
    ("messier.cat", "M24", "ST", 18, 16.9, "-", 18, 29, 10),
    ("messier.cat", "M25", "OC", 18, 31.6, "-", 19, 15, 10),
    ("messier.cat", "M31", "GL", 0, 42.7, "+", 41, 16, 2),
    ("messier.cat", "M40", "ST", 12, 22.4, "+", 58, 5, 2),
    ("messier.cat", "M42", "DN", 5, 35.3, "-", 5, 23, 2),
    ("messier.cat", "M45", "OC", 3, 47.0, "+", 24, 7, 10),
    ("messier.cat", "M57", "PN", 18, 53.6, "+", 33, 2, 2),
    ("messier.cat", "M73", "ST", 20, 58.9, "-", 12, 38, 2),
    ("messier.cat", "M102", "GL", 15, 6.5, "+", 55, 46, 2),
    ("messier.cat", "M104", "GL", 12, 40.0, "-", 11, 37, 2),
    ("ngc0.cat", "NGC224", "GL", 0, 42.7, "+", 41, 16, 2),
    ("ngc0.cat", "NGC253", "GL", 0, 47.6, "-", 25, 17, 2),
    ("ngc5.cat", "NGC5139", "GC", 13, 26.8, "-", 47, 29, 2),
    ("ngc7.cat", "NGC7000", "DN", 20, 58.8, "+", 44, 20, 15),
    ("ngc7.cat", "NGC7293", "PN", 22, 29.6, "-", 20, 50, 2),
    ("ic.cat", "IC342", "GL", 3, 46.8, "+", 68, 6, 2),
    ("ic.cat", "IC5146", "DN", 21, 53.4, "+", 47, 16, 3),
    ("5magstar.cat", "Arcturus", "Boo", 14, 15.7, "+", 19, 11, 1),
    ("5magstar.cat", "Capella", "Aur", 5, 16.7, "+", 46, 0, 1),
    ("5magstar.cat", "Deneb", "Cyg", 20, 41.4, "+", 45, 17, 1),
    ("5magstar.cat", "Polaris (étoile polaire)", "UMi", 2, 31.8, "+", 89, 16, 1),
    ("5magstar.cat", "Sirius", "CMa", 6, 45.1, "-", 16, 43, 1),
    ("5magstar.cat", "Véga", "Lyr", 18, 36.9, "+", 38, 47, 1),
)


def lu(nom):
    """Records with their numbers: name, code, right ascension, declination."""
    return [(n, c, int(a), int(d)) for n, c, a, d in fiches(nom, 4)]


def vecteur(ad, dec):
    a, d = math.radians(ad / 40.0), math.radians(dec / 600.0)
    return math.cos(d) * math.cos(a), math.cos(d) * math.sin(a), math.sin(d)


def separation(p, q):
    """Angle between two positions in catalogue units, minutes of arc."""
    return math.degrees(2 * math.asin(math.dist(vecteur(*p), vecteur(*q)) / 2)) * 60


class Catalogues(unittest.TestCase):
    def test_regenere(self):
        with tempfile.TemporaryDirectory() as dossier:
            catalogues.ecrit(dossier)
            meme_contenu(self, Path(dossier), TOUS)
            faits = {p.name for p in Path(dossier).iterdir()}
        self.assertEqual(faits, set(TOUS))
        self.assertEqual({p.name for p in DONNEES.glob("*.cat")}, set(TOUS))

    def test_forme(self):
        constellations = {c for c, _ in fiches("const.cat", 2)}
        self.assertEqual(len(constellations), 88)
        for nom in OBJETS + ETOILES:
            codes = CODES if nom in OBJETS else constellations
            suite = lu(nom)
            with self.subTest(fichier=nom):
                self.assertLessEqual(len(suite), PLACES.get(nom, PLACES_OBJETS))
                self.assertLessEqual({c for _, c, _, _ in suite}, codes)
                self.assertTrue(all(0 <= a <= 14399 for _, _, a, _ in suite))
                self.assertTrue(all(-54000 <= d <= 54000 for _, _, _, d in suite))
                if nom != "vstar.cat":
                    self.assertEqual(len({n for n, _, _, _ in suite}), len(suite))

    def test_noms(self):
        self.assertEqual([n for n, _, _, _ in lu("messier.cat")],
                         [f"M{n}" for n in range(1, 111)])
        for bloc in range(8):
            numeros = [int(n.removeprefix("NGC")) for n, _, _, _ in lu(f"ngc{bloc}.cat")]
            self.assertEqual({n // 1000 for n in numeros}, {bloc})
            self.assertEqual(numeros, sorted(numeros))
        numeros = [int(n.removeprefix("IC")) for n, _, _, _ in lu("ic.cat")]
        self.assertEqual(numeros, sorted(numeros))
        self.assertLessEqual({n for n, _, _, _ in lu("vstar.cat")}, LETTRES)
        self.assertEqual(dict(fiches("const.cat", 2))["UMa"], "Grande Ourse")

    def test_positions(self):
        for nom, objet, code, h, m, signe, deg, minutes, tolerance in REPERES:
            with self.subTest(objet=objet):
                trouves = [f[1:] for f in lu(nom) if f[0] == objet]
                self.assertEqual(len(trouves), 1)
                c, ad, dec = trouves[0]
                attendu = h * 600 + m * 10, (deg * 600 + minutes * 10) * (-1 if signe == "-" else 1)
                self.assertEqual(c, code)
                self.assertLess(separation((ad, dec), attendu), tolerance)

    def test_messier_et_ngc_d_accord(self):
        # The same object under two names: M33 and NGC598, M51 and NGC5194, M81 and NGC3031.
        tout = {f[0]: f[1:] for nom in OBJETS for f in lu(nom)}
        for m, n in (("M33", "NGC598"), ("M51", "NGC5194"), ("M81", "NGC3031"),
                     ("M25", "IC4725"), ("M102", "NGC5866"), ("M97", "NGC3587")):
            self.assertEqual(tout[m], tout[n], m)

    def test_absents(self):
        # A duplicate, a lost number, a nova and an empty place have no record.
        absents = {l["name"] for l in catalogues.lit("deepsky.csv")
                   if l["type"] in ("Dup", "NonEx", "Nova", "Other")}
        self.assertEqual(len(absents), 651 + 10 + 3 + 419)
        self.assertFalse(absents & {f[0] for nom in OBJETS for f in lu(nom)})

    def test_etoile_proposee(self):
        # The panel opens on line 35: bright, and never below the horizon at 45 north.
        nom, code, _, dec = lu("5magstar.cat")[35]
        self.assertEqual((nom, code), ("Deneb", "Cyg"))
        self.assertGreater(dec, 45 * 600)

    def test_figures(self):
        carte = lu("vstar.cat")
        traits = [(int(a), int(b)) for a, b in fiches("vconst.cat", 2)]
        self.assertEqual(len(traits), len({frozenset(t) for t in traits}))
        bouts = set()
        for a, b in traits:
            self.assertNotEqual(a, b)
            self.assertLess(max(a, b), len(carte))
            self.assertGreaterEqual(min(a, b), 0)
            self.assertLess(separation(carte[a][2:], carte[b][2:]), 22 * 60)
            bouts.add(frozenset((carte[a][:2], carte[b][:2])))
        # The two pointers of the Plough, the belt of Orion, an arm of the Swan.
        for a, b in ((("ALPHA", "UMa"), ("BETA", "UMa")),
                     (("DELTA", "Ori"), ("EPSILON", "Ori")),
                     (("GAMMA", "Cyg"), ("DELTA", "Cyg"))):
            self.assertIn(frozenset((a, b)), bouts)

    def test_bords_des_coordonnees(self):
        for ra, dec, attendu in (("359.99", "0.0", (0, 0)), ("359.98", "-0.0001", (14399, 0)),
                                 ("0", "-89.9999", (0, -54000)), ("82.625", "-12.5", (3305, -7500)),
                                 ("0.0125", "0.0025", (0, 2))):
            self.assertEqual(catalogues.position({"ra_deg": ra, "dec_deg": dec}), attendu)

    def test_texte_avec_virgule(self):
        texte = catalogues.fiches([("Nuage, petit", "ST", 1, -2)])
        self.assertEqual(valeurs(texte.removesuffix("\r\n")), ["Nuage, petit", "ST", "1", "-2"])


if __name__ == "__main__":
    unittest.main()
