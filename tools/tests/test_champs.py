"""The finder views: what they are called, their size, and that the sky in them stands where it should."""

import math
import sys
import tempfile
import unittest
from pathlib import Path

from PIL import Image, ImageChops, ImageStat

RACINE = Path(__file__).resolve().parents[2]
sys.path.insert(0, str(RACINE / "tools"))
import champs  # noqa: E402
from catalogues import lit  # noqa: E402

OBJETS = RACINE / "data/Objets"


def types():
    """Type codes by the names in the delivered catalogues."""
    fichiers = [f for f in (RACINE / "data").glob("*.cat") if f.stem[:2] in ("me", "ic", "ng")]
    lignes = [ligne.split(",") for f in fichiers for ligne in f.read_text("cp1252").splitlines()]
    return {ligne[0]: ligne[1] for ligne in lignes}


class Vues(unittest.TestCase):
    def test_noms_et_tailles(self):
        codes = types()
        vues = sorted(OBJETS.glob("*.jpg"))
        self.assertEqual(sorted(v.stem for v in vues), sorted(nom for nom, _, _ in champs.VUES))
        for vue in vues:
            self.assertIn(vue.stem, codes)
            image = Image.open(vue)
            self.assertEqual(image.format, "JPEG")
            self.assertEqual(image.info["dpi"], (96, 96))
            self.assertLessEqual(image.width, 1200)
            self.assertLess(vue.stat().st_size, 60000)
        self.assertGreaterEqual(sum(codes[v.stem] == "OC" for v in vues), 8)

    def test_livrees_comme_dessinees(self):
        with tempfile.TemporaryDirectory() as dossier:
            champs.produit(Path(dossier))
            for neuve in Path(dossier).iterdir():
                ecart = ImageChops.difference(Image.open(neuve), Image.open(OBJETS / neuve.name))
                self.assertLess(max(ImageStat.Stat(ecart).mean), 0.5, neuve.name)  # decoders may differ a little

    def test_places(self):
        """Stars of the Pleiades by the plain formula of small angles: bright there, dark beside."""
        etoiles = {e["proper"]: e for e in lit("stars.csv")}
        amas = champs.objets_par_nom(lit("deepsky.csv"))["M45"]
        champ = next(c for nom, c, _ in champs.VUES if nom == "M45")
        image = Image.open(OBJETS / "M45.jpg").convert("L")
        echelle = image.width / champ
        d0 = float(amas["dec_deg"])
        for nom in ("Atlas", "Electra", "Merope", "Maia", "Taygeta"):
            e = etoiles[nom]
            est = (float(e["ra_deg"]) - float(amas["ra_deg"])) * math.cos(math.radians(d0))
            x = image.width / 2 - est * echelle  # east to the left
            y = image.height / 2 - (float(e["dec_deg"]) - d0) * echelle  # north up
            self.assertGreater(image.getpixel((round(x), round(y))), 200, nom)
            self.assertLess(image.getpixel((round(x), round(y) + 9)), 60, nom)


if __name__ == "__main__":
    unittest.main()
