#!/usr/bin/python3
"""Draws the finder views of data/Objets from the tables in tools/sources.

    tools/champs.py [FOLDER]      (default: the delivered data/Objets)

A view shows where an object stands among the naked-eye stars: computed, not photographed, and it says
so. Gnomonic projection about the object, north up, east to the left as in the sky. Discs grow with a
star's brightness; the lines are those of the chart's figures; the object is a dashed circle of its
length, or the smallest one that can be seen. JPEG at 96 dots an inch.
"""

import math
import sys
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parent))
from catalogues import NOMS_FRANCAIS, SOURCES, lit  # noqa: E402

try:
    from PIL import Image, ImageDraw, ImageFont
except ImportError:
    sys.exit("champs.py : PIL manque. Remède : sudo apt install python3-pil")

SORTIE = Path(__file__).resolve().parent.parent / "data/Objets"
POLICE = "/usr/share/fonts/truetype/dejavu/DejaVuSans.ttf"
LARGEUR, HAUTEUR = 720, 560  # pixels
DENSITE = 96
FOND = (4, 6, 16)
FINESSE = 3  # drawn larger, then reduced
MAGNITUDE_LIMITE = 6.0  # of the star table

# Name in the catalogues, width of the view in degrees, what it is in French.
VUES = [
    # open clusters
    ("M45", 5, "les Pléiades"), ("M44", 14, "la Crèche"), ("M7", 14, "amas de Ptolémée"),
    ("M6", 14, "amas du Papillon"), ("M47", 18, ""), ("M41", 16, ""), ("M35", 16, ""), ("M36", 16, ""),
    ("M37", 16, ""), ("M38", 16, ""), ("M34", 18, ""), ("M39", 18, ""), ("M11", 18, "le Canard sauvage"),
    ("NGC457", 14, "amas de la Chouette"), ("NGC869", 16, "double amas, h de Persée"),
    ("NGC884", 16, "double amas, chi de Persée"), ("NGC752", 20, ""), ("NGC2232", 14, ""),
    ("NGC2362", 14, "amas de tau du Grand Chien"),
    # others, by their place in a constellation
    ("M31", 26, "galaxie d'Andromède"), ("M33", 22, "galaxie du Triangle"), ("M13", 26, "amas d'Hercule"),
    ("M42", 10, "nébuleuse d'Orion"), ("M57", 14, "la Lyre, nébuleuse annulaire"),
    ("M27", 22, "nébuleuse de l'Haltère"), ("M51", 20, "galaxie des Chiens de chasse"),
    ("M81", 26, "galaxie de Bode"), ("M1", 16, "nébuleuse du Crabe"), ("M8", 18, "nébuleuse de la Lagune"),
    ("M15", 24, ""), ("M22", 16, ""),
]
FORMES = {"OCl": "amas ouvert", "GCl": "amas globulaire", "G": "galaxie", "PN": "nébuleuse planétaire",
          "Cl+N": "amas et nébuleuse", "HII": "nébuleuse diffuse", "SNR": "reste de supernova", "Neb": "nébuleuse"}
LETTRES = dict(zip("ALPHA BETA GAMMA DELTA EPSILON ZETA ETA THETA IOTA KAPPA LAMBDA MU NU XI OMICRON PI RHO SIGMA "
                   "TAU UPSILON PHI CHI PSI OMEGA".split(), "αβγδεζηθικλμνξοπρστυφχψω"))


def projection(ad0, dec0):
    """Degrees to the tangent plane's degrees about a centre, x to the west, y to the south; none beyond
    80 degrees from it."""
    a0, d0 = math.radians(ad0), math.radians(dec0)

    def projette(ad, dec):
        a, d = math.radians(ad) - a0, math.radians(dec)
        cosinus = math.sin(d0) * math.sin(d) + math.cos(d0) * math.cos(d) * math.cos(a)
        if cosinus < math.cos(math.radians(80)):
            return None
        x = -math.cos(d) * math.sin(a) / cosinus
        y = -(math.cos(d0) * math.sin(d) - math.sin(d0) * math.cos(d) * math.cos(a)) / cosinus
        return math.degrees(x), math.degrees(y)

    return projette


def rayon(magnitude):
    """Of a star's disc, pixels."""
    return max(0.9, 1.05 + 0.95 * (MAGNITUDE_LIMITE - magnitude) ** 0.95)


class Vue:
    """One view in work; lengths are pixels of the finished picture."""

    def __init__(self, objet, champ):
        self.image = Image.new("RGB", (LARGEUR * FINESSE, HAUTEUR * FINESSE), FOND)
        self.dessin = ImageDraw.Draw(self.image)
        self.echelle = LARGEUR / champ  # pixels a degree
        self.projette = projection(float(objet["ra_deg"]), float(objet["dec_deg"]))

    def place(self, ad, dec, marge=0):
        p = self.projette(ad, dec)
        if p is None:
            return None
        x, y = LARGEUR / 2 + p[0] * self.echelle, HAUTEUR / 2 + p[1] * self.echelle
        dedans = -marge <= x <= LARGEUR + marge and -marge <= y <= HAUTEUR + marge
        return (x, y) if dedans else None

    def trait(self, points, couleur, largeur=1.0):
        self.dessin.line([(x * FINESSE, y * FINESSE) for x, y in points], couleur, round(largeur * FINESSE))

    def disque(self, x, y, r, couleur):
        self.dessin.ellipse([(x - r) * FINESSE, (y - r) * FINESSE, (x + r) * FINESSE, (y + r) * FINESSE], couleur)

    def texte(self, x, y, t, couleur, corps=13, ancre="lm"):
        self.dessin.text((x * FINESSE, y * FINESSE), t, couleur,
                         ImageFont.truetype(POLICE, corps * FINESSE), anchor=ancre)

    def figures(self, etoiles, figures):
        for f in figures:
            bouts = [self.place(*etoiles[f[c]], marge=3000) for c in ("hip_a", "hip_b")]
            if None not in bouts:
                self.trait(bouts, (54, 62, 104))

    def etoiles(self, etoiles, champ):
        """Discs, the brightest last, and the names of the brightest."""
        noms = 3.0 if champ > 8 else MAGNITUDE_LIMITE
        for e in sorted(etoiles, key=lambda e: -float(e["mag"])):
            p = self.place(float(e["ra_deg"]), float(e["dec_deg"]), marge=10)
            if p is None:
                continue
            r = rayon(float(e["mag"]))
            self.disque(*p, r, (246, 246, 250))
            nom = NOMS_FRANCAIS.get(e["proper"], e["proper"]).split(" (")[0]
            if float(e["mag"]) > noms or not nom:
                nom = LETTRES.get(e["bayer"], "") if float(e["mag"]) < 5 else ""
            self.texte(p[0] + r + 3, p[1], nom, (148, 156, 190), 12)

    def objet(self, longueur):
        """A dashed circle of the object's length, degrees."""
        r = max(9.0, longueur * self.echelle / 2)
        n = max(12, round(r))
        for k in range(n):
            angles = [2 * math.pi * (k + c) / n for c in (0, 0.3, 0.6)]
            self.trait([(LARGEUR / 2 + r * math.cos(a), HAUTEUR / 2 + r * math.sin(a)) for a in angles],
                       (250, 140, 0), 1.4)
        return r

    def cartouche(self, titre, champ, r):
        self.texte(LARGEUR / 2, HAUTEUR / 2 + r + 13, titre.split(",")[0], (250, 170, 60), 14, "mm")
        for haut, bas in ((0, 33), (HAUTEUR - 68, HAUTEUR)):
            self.dessin.rectangle([0, haut * FINESSE, LARGEUR * FINESSE, bas * FINESSE], FOND)
        self.texte(14, 17, titre, (255, 255, 255), 17)
        degres = max(d for d in (0.5, 1, 2, 5) if d * self.echelle <= LARGEUR / 4)
        x, y = LARGEUR - 20, HAUTEUR - 46
        long = degres * self.echelle
        self.trait([(x - long, y), (x, y)], (230, 230, 230), 1.6)
        for bout in (x - long, x):
            self.trait([(bout, y - 4), (bout, y + 4)], (230, 230, 230), 1.6)
        self.texte(x - long / 2, y - 13, f"{degres:g}°".replace(".", ","), (230, 230, 230), 13, "mm")
        for lettre, px, py in (("N", LARGEUR / 2, 44), ("E", 14, HAUTEUR / 2), ("O", LARGEUR - 14, HAUTEUR / 2)):
            self.texte(px, py, lettre, (150, 200, 150), 14, "mm")
        px = 20
        for m in (1, 2, 3, 4, 5, 6):
            self.disque(px, HAUTEUR - 46, rayon(m), (246, 246, 250))
            self.texte(px + 8, HAUTEUR - 46, str(m), (170, 170, 180), 12)
            px += 34
        self.texte(14, HAUTEUR - 16, "Vue calculée d'après un catalogue d'étoiles (magnitude 6 au plus), "
                   f"largeur {champ}°. Ce n'est pas une photographie.", (170, 170, 180), 12)

    def enregistre(self, chemin):
        petite = self.image.resize((LARGEUR, HAUTEUR), Image.Resampling.LANCZOS)
        petite.save(chemin, "JPEG", quality=88, dpi=(DENSITE, DENSITE), optimize=True)


def objets_par_nom(ciel_profond):
    """By NGC, IC and Messier names, as the catalogues write them."""
    tous = {o["name"]: o for o in ciel_profond}
    tous.update({"M" + o["messier"]: o for o in ciel_profond if o["messier"]})
    return tous


def produit(dossier):
    ciel_profond = objets_par_nom(lit("deepsky.csv"))
    etoiles = lit("stars.csv")
    par_hip = {e["hip"]: (float(e["ra_deg"]), float(e["dec_deg"])) for e in etoiles}
    figures = lit("figures.csv")
    dossier.mkdir(parents=True, exist_ok=True)
    for nom, champ, surnom in VUES:
        objet = ciel_profond[nom]
        v = Vue(objet, champ)
        v.figures(par_hip, figures)
        v.etoiles(etoiles, champ)
        r = v.objet(float(objet["majax_arcmin"] or 0) / 60)
        titre = ", ".join(t for t in (nom, surnom, FORMES[objet["type"]]) if t)
        v.cartouche(titre, champ, r)
        v.enregistre(dossier / f"{nom}.jpg")
    return [nom for nom, _, _ in VUES]


if __name__ == "__main__":
    produit(Path(sys.argv[1]) if len(sys.argv) > 1 else SORTIE)
