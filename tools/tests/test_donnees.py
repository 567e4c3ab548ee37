"""The delivered data: what the tools make of the sources, byte for byte, and facts about it from elsewhere."""

import csv
import math
import sys
import tempfile
import unittest
from datetime import date, timedelta
from pathlib import Path

import erfa
from PIL import Image, ImageChops, ImageStat

RACINE = Path(__file__).resolve().parents[2]
DONNEES = RACINE / "data"
sys.path.insert(0, str(RACINE / "tools"))
import almanach  # noqa: E402
import catalogues  # noqa: E402
import champs  # noqa: E402
import nuits  # noqa: E402
import etoiles_du_soir  # noqa: E402
import references_horizontales  # noqa: E402

OBJETS = ["messier.cat", "ic.cat"] + [f"ngc{b}.cat" for b in range(8)]
# The most records each reader takes. The chart picks among its first 200 stars only.
PLACES = {"5magstar.cat": 121, "vstar.cat": 199}
PLACES_OBJETS = 1031
CODES = {"GL", "OC", "GC", "DN", "PN", "ST"}
# The Greek letters the chart knows, and those it leaves blank.
LETTRES = set("ALPHA BETA GAMMA DELTA EPSILON ZETA ETA THETA IOTA KAPPA LAMBDA MU NU XI OMICRON PI RHO SIGMA TAU UPSILON "
              "PHI CHI PSI OMEGA".split())

# Published J2000 positions: file, name, code or constellation, right ascension (h, min), declination (sign, degrees,
# minutes), tolerance in minutes of arc: the extent of an object decides how well its centre is agreed upon.
REPERES = """
messier.cat M1 DN 5 34.5 + 22 1 2|messier.cat M24 ST 18 16.9 - 18 29 10|messier.cat M25 OC 18 31.6 - 19 15 10
messier.cat M40 ST 12 22.4 + 58 5 2|messier.cat M45 OC 3 47.0 + 24 7 10|messier.cat M57 PN 18 53.6 + 33 2 2
messier.cat M73 ST 20 58.9 - 12 38 2|messier.cat M102 GL 15 6.5 + 55 46 2|messier.cat M104 GL 12 40.0 - 11 37 2
ngc0.cat NGC224 GL 0 42.7 + 41 16 2|ngc5.cat NGC5139 GC 13 26.8 - 47 29 2|ngc7.cat NGC7000 DN 20 58.8 + 44 20 15
ngc2.cat NGC2244 DN 6 32.0 + 4 57 6|ngc2.cat NGC2478 OC 7 36.6 - 14 29 6|ngc6.cat NGC6383 OC 17 34.8 - 32 34 6
ic.cat IC342 GL 3 46.8 + 68 6 2|ic.cat IC1318 DN 20 22.2 + 40 15 3|ic.cat IC2118 DN 5 4.9 - 7 16 10
5magstar.cat Arcturus Boo 14 15.7 + 19 11 1|5magstar.cat Sirius CMa 6 45.1 - 16 43 1|5magstar.cat Véga Lyr 18 36.9 + 38 47 1
"""

# The form of each value: T a field's plain text, N a number with a blank in the sign's place and one after it, B a word.
FORMES = {
    "config_altaz.ini": "TTTTTTTT", "config_equa.ini": "TTTT", "vitessemanu.ini": "NNNNNN",
    "vitesseequa.ini": "NNNNNNNNNN", "vitessealtaz.ini": "NNNNNNNNNN", "backlash.ini": "TT", "inversion.ini": "BB",
    "inversion_point.ini": "BB", "suivialtaz.ini": "TTTBB", "pointagequa.ini": "NN", "pointagealtaz.ini": "NN",
}
MOTIFS = {"T": r"\d+", "N": r" \d+ ", "B": "Vrai|Faux"}


def lignes(nom):
    """Windows-1252, each line, the last too, ended by CR LF, and no other control character."""
    suite = (DONNEES / nom).read_bytes().decode("cp1252").split("\r\n")
    assert suite.pop() == "" and all(ord(c) >= 32 for l in suite for c in l), f"{nom}: line ends"
    return suite


def lu(nom):
    """Records of a catalogue with their numbers: name, code, right ascension, declination."""
    return [(n, c, int(a), int(d)) for n, c, a, d in csv.reader(lignes(nom))]


def ecart(p, q):
    """Angle between two positions in catalogue units, minutes of arc."""
    (a, d), (b, e) = [(math.radians(ad / 40), math.radians(dec / 600)) for ad, dec in (p, q)]
    return math.degrees(erfa.seps(a, d, b, e)) * 60


class Livre(unittest.TestCase):
    def test_regenere(self):
        with tempfile.TemporaryDirectory() as dossier:
            fait = Path(dossier)
            catalogues.ecrit(fait)
            almanach.ecrit(fait)
            faits = {p.relative_to(fait) for p in fait.rglob("*.*")}
            for nom in faits:
                self.assertEqual((fait / nom).read_bytes(), (DONNEES / nom).read_bytes(), nom)
        self.assertEqual({p.relative_to(DONNEES) for m in ("*.cat", "date/*/*/*") for p in DONNEES.glob(m)}, faits)
        for outil in (references_horizontales, etoiles_du_soir):
            self.assertEqual(outil.table(), outil.SORTIE.read_text("ascii"))
        self.assertEqual(nuits.texte_ephemerides(), nuits.EPHEMERIDES.read_text("utf-8"))

    def test_vues(self):
        with tempfile.TemporaryDirectory() as dossier:
            champs.produit(Path(dossier))
            self.assertEqual({p.name for p in Path(dossier).iterdir()}, {p.name for p in DONNEES.glob("Objets/*.jpg")})
            for neuve in Path(dossier).iterdir():
                with Image.open(neuve) as a, Image.open(DONNEES / "Objets" / neuve.name) as b:
                    self.assertEqual((b.format, b.info["dpi"]), ("JPEG", (96, 96)))
                    self.assertLess(max(ImageStat.Stat(ImageChops.difference(a, b)).mean), 0.5, neuve.name)
        # Stars of the Pleiades by the plain formula of small angles, east to the left: bright there, dark beside.
        etoiles = {e["proper"]: e for e in catalogues.lit("stars.csv")}
        amas = next(l for l in catalogues.lit("deepsky.csv") if l["messier"] == "45")
        with Image.open(DONNEES / "Objets/M45.jpg") as image:
            gris, echelle = image.convert("L"), image.width / 5
        for nom in ("Atlas", "Electra", "Merope", "Maia", "Taygeta"):
            nord, est = (float(etoiles[nom][c]) - float(amas[c]) for c in ("dec_deg", "ra_deg"))
            x = round(gris.width / 2 - est * math.cos(math.radians(float(amas["dec_deg"]))) * echelle)
            y = round(gris.height / 2 - nord * echelle)
            self.assertTrue(gris.getpixel((x, y)) > 200 and gris.getpixel((x, y + 9)) < 60, nom)

    def test_almanach(self):
        # gmst06 departs from the 1982 expression by up to 0.001 s in these years; TT - UT1 is 64.184 s.
        for n in range(731):
            jour = date(2000, 1, 1) + timedelta(days=n)
            mois = almanach.MOIS[jour.month - 1]
            rang, h, m, s = map(int, lignes(f"date/{jour.year}/{mois}/sg0.txt")[jour.day - 1].split(","))
            self.assertEqual(rang, jour.day)
            jd = 2451544.5 + n
            attendu = erfa.gmst06(jd, 0.0, jd, 64.184 / 86400) * 43200 / math.pi
            self.assertLessEqual(abs((h * 3600 + m * 60 + s - attendu + 43200) % 86400 - 43200), 0.502, jour)


class Catalogues(unittest.TestCase):
    def test_forme(self):
        constellations = dict(csv.reader(lignes("const.cat")))
        self.assertEqual((len(constellations), constellations["UMa"]), (88, "Grande Ourse"))
        for nom in [*OBJETS, *PLACES]:
            suite = lu(nom)
            self.assertLessEqual(len(suite), PLACES.get(nom, PLACES_OBJETS), nom)
            self.assertLessEqual({c for _, c, _, _ in suite}, CODES if nom in OBJETS else set(constellations), nom)
            self.assertTrue(all(0 <= a <= 14399 and -54000 <= d <= 54000 for _, _, a, d in suite), nom)
            if nom != "vstar.cat":
                self.assertEqual(len({n for n, _, _, _ in suite}), len(suite), nom)
        self.assertEqual([f[0] for f in lu("messier.cat")], [f"M{n}" for n in range(1, 111)])
        for bloc in range(8):
            numeros = [int(f[0].removeprefix("NGC")) for f in lu(f"ngc{bloc}.cat")]
            self.assertEqual(({n // 1000 for n in numeros}, numeros), ({bloc}, sorted(numeros)))
        self.assertLessEqual({f[0] for f in lu("vstar.cat")}, LETTRES)
        # The panel opens on line 35: bright, and never below the horizon at 45 north.
        self.assertEqual(lu("5magstar.cat")[35][:2], ("Deneb", "Cyg"))

    def test_positions(self):
        for repere in REPERES.strip().replace("\n", "|").split("|"):
            nom, objet, code, h, m, signe, deg, minutes, tolerance = repere.split()
            (c, ad, dec), = [f[1:] for f in lu(nom) if f[0] == objet]
            attendu = int(h) * 600 + float(m) * 10, (int(deg) * 600 + int(minutes) * 10) * int(signe + "1")
            self.assertEqual(c, code, objet)
            self.assertLess(ecart((ad, dec), attendu), int(tolerance), objet)

    def test_deux_noms_une_place(self):
        tout = {f[0]: f[1:] for nom in OBJETS for f in lu(nom)}
        for m, n in (("M33", "NGC598"), ("M25", "IC4725"), ("M102", "NGC5866"), ("M47", "NGC2478"), ("NGC1909", "IC2118")):
            self.assertEqual(tout[m], tout[n], m)
        # A duplicate, a lost number, a nova and an empty place have no record.
        absents = {l["name"] for l in catalogues.lit("deepsky.csv") if l["type"] in ("Dup", "NonEx", "Nova", "Other")}
        self.assertEqual(len(absents), 651 - 4 + 10 + 3 + 419)
        self.assertFalse(absents & set(tout))

    def test_figures(self):
        carte = lu("vstar.cat")
        traits = {frozenset(map(int, t)) for t in csv.reader(lignes("vconst.cat"))}
        self.assertEqual(len(traits), len(lignes("vconst.cat")))
        for a, b in traits:
            self.assertLess(ecart(carte[a][2:], carte[b][2:]), 22 * 60)
        bouts = {frozenset(carte[i][:2] for i in t) for t in traits}
        # The two pointers of the Plough, the belt of Orion, an arm of the Swan.
        for a, b, con in (("ALPHA", "BETA", "UMa"), ("DELTA", "EPSILON", "Ori"), ("GAMMA", "DELTA", "Cyg")):
            self.assertIn(frozenset(((a, con), (b, con))), bouts)


class Reglages(unittest.TestCase):
    def test_forme(self):
        for nom, formes in FORMES.items():
            self.assertRegex("\n".join(lignes(nom)), "^" + "\n".join(f"({MOTIFS[f]})" for f in formes) + "$", nom)
        self.assertEqual({p.name for p in DONNEES.glob("*.ini")}, set(FORMES))

    def test_mecanique(self):
        altaz, equa = ([int(l) for l in lignes(f"config_{m}.ini")] for m in ("altaz", "equa"))
        for pas, rapport in ((altaz[4], altaz[7]), (altaz[5], altaz[6]), (equa[0], equa[2]), (equa[1], equa[3])):
            self.assertEqual(round(648000 / (pas * rapport), 2), 648000 / (pas * rapport))
        self.assertTrue(42 <= altaz[2] < 51 and 0 <= altaz[0] < 8)  # in France

    def test_vitesses(self):
        # Steps per second of the classes 0 to 4, two delays of 30 ns counts a step; a count stands on its bar's grid.
        for nom in ("vitessealtaz.ini", "vitesseequa.ini"):
            for compte, attendu in zip(map(int, lignes(nom)), (10, 33, 100, 330, 1000) * 2):
                self.assertTrue(compte % 50 == 0 and 1 <= compte // 50 <= 32767, nom)
                self.assertAlmostEqual(1 / (2 * 30e-9 * compte) / attendu, 1, delta=0.05, msg=nom)
        # The paddle's three ranges: count = top - factor x bar. At 0 the bar fires no change: a speed without a delay.
        for compte, (sommet, facteur) in zip(map(int, lignes("vitessemanu.ini")),
                                             ((1119078, 20), (463738, 12), (70534, 2)) * 2):
            self.assertTrue((sommet - compte) % facteur == 0 and 1 <= (sommet - compte) // facteur <= 32767)


if __name__ == "__main__":
    unittest.main()
