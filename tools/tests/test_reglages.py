import random
import sys
import unittest
from pathlib import Path

from lecture import DONNEES, lignes

sys.path.insert(0, str(Path(__file__).resolve().parent.parent))
import conversion
from conversion import CalculSurveille, PointSingulier, Site

# The form of each value: T a field's plain text, N a number with a blank in the sign's
# place and one after it, B a Boolean word.
FORMES = {
    "config_altaz.ini": "TTTTTTTT", "config_equa.ini": "TTTT", "vitessemanu.ini": "NNNNNN",
    "vitesseequa.ini": "NNNNNNNNNN", "vitessealtaz.ini": "NNNNNNNNNN",
    "backlash.ini": "TT", "inversion.ini": "BB", "inversion_point.ini": "BB",
    "suivialtaz.ini": "TTTBB", "pointagequa.ini": "NN", "pointagealtaz.ini": "NN",
}
MOTIFS = {"T": r"\d+", "N": r" \d+ ", "B": "Vrai|Faux"}

# One count of the general delay, seconds; a step has two delays.
COMPTE = 30e-9

# The paddle's three ranges: count = top - factor x scroll bar, bar in 0..32767. At 0 the
# bar fires no change and the speed would stay without a delay.
PLAGES = ((1119078, 20), (463738, 12), (70534, 2))


def nombres(nom):
    return [int(l) for l in lignes(nom)]


class Reglages(unittest.TestCase):
    def test_forme(self):
        for nom, formes in FORMES.items():
            with self.subTest(fichier=nom):
                suite = lignes(nom)
                self.assertEqual(len(suite), len(formes))
                for ligne, forme in zip(suite, formes):
                    self.assertRegex(ligne, f"^({MOTIFS[forme]})$")
        self.assertEqual({p.name for p in DONNEES.glob("*.ini")}, set(FORMES))
        notes = lignes("notes.txt")
        self.assertEqual(len(notes), 1)
        self.assertTrue(notes[0])

    def test_mecanique_et_suivi(self):
        _, _, _, _, pasaz, pasalt, ralt, raz = nombres("config_altaz.ini")
        pasad, pasdec, rad, rdec = nombres("config_equa.ini")
        for pas, rapport in ((pasaz, raz), (pasalt, ralt), (pasad, rad), (pasdec, rdec)):
            self.assertAlmostEqual(360 / (pas * rapport) * 3600 / 2, 6.48)
        self.assertTrue(all(1 <= v <= 5 for f in ("pointagequa.ini", "pointagealtaz.ini")
                            for v in nombres(f)))
        self.assertEqual(lignes("suivialtaz.ini")[0], "1000")

    def test_vitesses(self):
        # Steps per second of the classes 0 to 4, whole numbers on the panel.
        for nom in ("vitessealtaz.ini", "vitesseequa.ini"):
            comptes = nombres(nom)
            for i, attendu in enumerate((10, 33, 100, 330, 1000) * 2):
                with self.subTest(fichier=nom, ligne=i + 1):
                    self.assertEqual(comptes[i] % 50, 0)
                    self.assertTrue(1 <= comptes[i] // 50 <= 32767)
                    vitesse = 1 / (2 * COMPTE * comptes[i])
                    self.assertAlmostEqual(vitesse / attendu, 1, delta=0.05)

    def test_raquette(self):
        # A count on its bar's grid comes back unchanged from the panel.
        for i, compte in enumerate(nombres("vitessemanu.ini")):
            sommet, facteur = PLAGES[i % 3]
            position, reste = divmod(sommet - compte, facteur)
            self.assertEqual(reste, 0)
            self.assertTrue(1 <= position <= 32767)


class LieuLivre(unittest.TestCase):
    """A start of tracking without an object, at the delivered site, at any time."""

    def setUp(self):
        self.site = Site.livre()

    def depart(self, tsg0, secondes, ms, plus, calcul=None):
        """Both cosines; the place is turned back so many seconds after it was taken."""
        instants = [(t // 3600 % 24, t // 60 % 60, t % 60, ms) for t in (secondes, secondes + plus)]
        return conversion.depart(self.site, tsg0, *instants, calcul)

    def test_en_france(self):
        s = self.site
        self.assertTrue(42 <= s.latdeg < 51 and 0 <= s.latmin < 60)
        self.assertTrue(0 <= s.longdeg < 8 and 0 <= s.longmin < 60)

    def test_toute_seconde(self):
        # Every second of the day, turned back at once. The sidereal time at 0 h is whole
        # seconds and only shifts the scale: a few values cover the folds at 24 h.
        for tsg0 in (0, 24000, 43200, 86399):
            for t in range(86400):
                cos1, cos2 = self.depart(tsg0, t, 0, 0)
                if not (0.5 < -cos1 < 1 and 0.5 < -cos2 < 1):
                    self.fail(f"sidereal time {tsg0} at 0 h, second {t}: {cos1!r} {cos2!r}")

    def test_instants_quelconques(self):
        # Any sidereal time at 0 h and millisecond, turned back up to 2 s later.
        alea = random.Random(3)
        for _ in range(100000):
            self.depart(alea.randrange(86400), alea.randrange(86400), alea.randrange(1000),
                        alea.randrange(3))

    def test_une_journee_de_suivi(self):
        # The place held from 22 h on, with a tick a second, for a day.
        local = conversion.temps_local(self.site, 24000, 22, 0, 0, 0)
        objet = conversion.affiche_equa(
            *conversion.calcul_equa(self.site, local, 648000.0, 108000.0)[:2])
        for t in range(86400):
            local = conversion.temps_local(self.site, 24000, t // 3600, t // 60 % 60, t % 60, 0)
            conversion.calcul_altaz(self.site, local, objet)

    def test_marge(self):
        # No function value on the way lies near a rounding tie: a mathematics library
        # that errs by up to 0.55 units in the last place gives the same bits.
        surveille = CalculSurveille()
        self.depart(24000, 79200, 0, 0, surveille)
        self.assertGreater(surveille.ecart, 0.0)
        self.assertLess(surveille.ecart, 0.45)

    def test_la_preuve_peut_echouer(self):
        # At 48 deg 51 min the first cosine comes out beyond 1.
        self.site.latmin = 51
        self.assertRaises(PointSingulier, self.depart, 24000, 79200, 0, 0)


if __name__ == "__main__":
    unittest.main()
