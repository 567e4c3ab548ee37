#!/usr/bin/python3
"""Draws every picture of the program from the SVG sources in pictures/.

    tools/images.py             writes data/img/ and ressources/ anew
    tools/images.py --verifie   draws into a temporary folder and compares with the files
                                in place, pixel by pixel; exit status 1 on a difference

What lies where in pictures/:
    img/        faces of the drawn buttons  -> data/img/*.gif, named in order by liste.txt
    icones/     toolbar icons               -> ressources/icones/, 24 px and @2x, @3x
    boutons/    pictures on buttons         -> ressources/boutons/, 32 px and @2x, @3x
    raquette/   parts of the hand paddle    -> ressources/raquette/, their own size and @2x, @3x
    fenetres/   pictures in small windows   -> ressources/fenetres/, their own size and @2x, @3x
    fond        ground of the about window  -> ressources/fenetres/fond.png, 500 x 500
    accueil     splash picture              -> ressources/accueil.png and @2x
    legende     signs of the sky chart      -> ressources/legende.gif and @2x
    velmoria, velmoria-banc                 -> program icons, one file a size

An SVG's own width and height are its logical size in pixels at 96 to the inch.
"""

import argparse
import shutil
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as xml
from io import BytesIO
from pathlib import Path

try:
    from PIL import Image, ImageChops
except ImportError:
    sys.exit("images.py : PIL manque. Remède : sudo apt install python3-pil")

RACINE = Path(__file__).resolve().parent.parent
SOURCES = RACINE / "pictures"
POLICE = Path("/usr/share/fonts/truetype/dejavu/DejaVuSans.ttf")

# Order of the button table: a pair is the face at rest, then the face held down.
# The panels pick by position, so a new name goes to the end.
FACES = [
    "sauve_repos", "sauve_appui",  # save button of the notes
    "init_repos", "init_appui",  # "Initialisation", equatorial pointing
    "pointage_repos", "pointage_appui",  # "Pointage", equatorial pointing
]
ECHELLE_FACES = 3  # views shrink the faces to their field; crisp up to 300 %
COTES_PROGRAMME = (64, 128, 256)


def exige_outils():
    """Ends the run with the packages to install if a tool or the font is missing."""
    manque = []
    if shutil.which("rsvg-convert") is None:
        manque.append("librsvg2-bin")
    if not POLICE.exists():
        manque.append("fonts-dejavu-core")
    if manque:
        sys.exit("images.py : il manque " + ", ".join(manque)
                 + ". Remède : sudo apt install " + " ".join(manque))


def taille_logique(source):
    """Width and height of an SVG in logical pixels."""
    racine = xml.parse(source).getroot()
    return int(racine.get("width")), int(racine.get("height"))


def dessine(nom, largeur, hauteur):
    """The drawing pictures/<nom>.svg at a size in pixels, as an RGBA image."""
    commande = ["rsvg-convert", "-w", str(largeur), "-h", str(hauteur), str(SOURCES / f"{nom}.svg")]
    png = subprocess.run(commande, check=True, stdout=subprocess.PIPE).stdout
    image = Image.open(BytesIO(png)).convert("RGBA")
    if image.size != (largeur, hauteur):
        sys.exit(f"images.py : {nom} donne {image.size} au lieu de {(largeur, hauteur)}")
    return image


def ecrit_png(image, chemin):
    """Writes without the alpha channel where nothing is transparent."""
    chemin.parent.mkdir(parents=True, exist_ok=True)
    if image.getextrema()[3] == (255, 255):
        image = image.convert("RGB")
    image.save(chemin, "PNG", optimize=True)


def en_palette(image, couleurs=256):
    """An opaque image in a palette, undithered: dots would cost more bytes than they save.

    Median cut alone drowns the few orange pixels in the blue ones; k-means brings them back.
    """
    if image.getextrema()[3] != (255, 255):
        sys.exit("images.py : une image à palette doit être opaque")
    return image.convert("RGB").quantize(couleurs, method=Image.Quantize.MEDIANCUT, kmeans=5,
                                         dither=Image.Dither.NONE)


def ecrit_gif(image, chemin, couleurs=64):
    """64 colours do for the faces: they are flat, and only their edges have tones between."""
    chemin.parent.mkdir(parents=True, exist_ok=True)
    en_palette(image, couleurs).save(chemin, "GIF", optimize=True)


def a_echelles(nom, dossier, echelles):
    """One PNG a scale: nom.png, nom@2x.png, nom@3x.png."""
    largeur, hauteur = taille_logique(SOURCES / f"{nom}.svg")
    for echelle in echelles:
        suffixe = "" if echelle == 1 else f"@{echelle}x"
        ecrit_png(dessine(nom, largeur * echelle, hauteur * echelle), dossier / f"{nom}{suffixe}.png")


def produit(racine):
    """Writes every product under racine."""
    img = racine / "data/img"
    ressources = racine / "ressources"
    for nom in FACES:
        largeur, hauteur = taille_logique(SOURCES / f"img/{nom}.svg")
        ecrit_gif(dessine(f"img/{nom}", largeur * ECHELLE_FACES, hauteur * ECHELLE_FACES), img / f"{nom}.gif")
    (img / "liste.txt").write_bytes("".join(f"{nom}\r\n" for nom in FACES).encode("cp1252"))

    for dossier in ("icones", "boutons", "raquette", "fenetres"):
        for source in sorted(SOURCES.glob(f"{dossier}/*.svg")):
            a_echelles(f"{dossier}/{source.stem}", ressources, (1, 2, 3))
    largeur, hauteur = taille_logique(SOURCES / "accueil.svg")
    for echelle, suffixe in ((1, ""), (2, "@2x")):
        image = dessine("accueil", largeur * echelle, hauteur * echelle)
        en_palette(image).save(ressources / f"accueil{suffixe}.png", "PNG", optimize=True)
    fond = en_palette(dessine("fond", *taille_logique(SOURCES / "fond.svg")))
    fond.save(ressources / "fenetres/fond.png", "PNG", optimize=True)
    largeur, hauteur = taille_logique(SOURCES / "legende.svg")
    for echelle, suffixe in ((1, ""), (2, "@2x")):
        ecrit_gif(dessine("legende", largeur * echelle, hauteur * echelle), ressources / f"legende{suffixe}.gif",
                  256)
    for nom in ("velmoria", "velmoria-banc"):
        for cote in COTES_PROGRAMME:
            ecrit_png(dessine(nom, cote, cote), ressources / f"{nom}-{cote}.png")
    ecrit_qrc(ressources)


def ecrit_qrc(ressources):
    """Qt finds the pictures under ":/" by their path in ressources/."""
    noms = sorted(chemin.relative_to(ressources).as_posix() for chemin in ressources.rglob("*")
                  if chemin.suffix in (".png", ".gif"))
    lignes = ["<RCC>", '    <qresource prefix="/">']
    lignes += [f'        <file alias="{nom}">{nom}</file>' for nom in noms]
    lignes += ["    </qresource>", "</RCC>", ""]
    (ressources / "images.qrc").write_text("\n".join(lignes), encoding="utf-8")


def produits(racine):
    """Relative paths of the products that lie under racine."""
    trouves = [*racine.glob("data/img/*.gif"), racine / "data/img/liste.txt", racine / "ressources/images.qrc",
               *racine.glob("ressources/**/*.png"), *racine.glob("ressources/*.gif")]
    return {chemin.relative_to(racine) for chemin in trouves if chemin.exists()}


def difference(ancien, nouveau):
    """What differs between two files, or an empty text: pixels for pictures, bytes for texts."""
    if ancien.suffix not in (".png", ".gif"):
        return "" if ancien.read_bytes() == nouveau.read_bytes() else "texte différent"
    a, b = Image.open(ancien).convert("RGBA"), Image.open(nouveau).convert("RGBA")
    if a.size != b.size:
        return f"taille {a.size} au lieu de {b.size}"
    ecart = max(haut for _, haut in ImageChops.difference(a, b).getextrema())
    return f"écart de {ecart} sur 255" if ecart else ""


def verifie():
    """Compares the files in place with a fresh drawing; returns the number of differences."""
    with tempfile.TemporaryDirectory() as dossier:
        neuf = Path(dossier)
        produit(neuf)
        fautes = []
        for chemin in sorted(produits(RACINE) | produits(neuf)):
            if not (RACINE / chemin).exists():
                fautes.append(f"{chemin} : manque")
            elif not (neuf / chemin).exists():
                fautes.append(f"{chemin} : sans source")
            elif texte := difference(RACINE / chemin, neuf / chemin):
                fautes.append(f"{chemin} : {texte}")
        for faute in fautes:
            print(faute)
        print(f"{len(produits(neuf))} fichiers, {len(fautes)} différences")
        return len(fautes)


def main():
    arguments = argparse.ArgumentParser(description="Dessine les images du programme.")
    arguments.add_argument("--verifie", action="store_true", help="compare sans rien écrire")
    choix = arguments.parse_args()
    exige_outils()
    if choix.verifie:
        sys.exit(1 if verifie() else 0)
    produit(RACINE)


if __name__ == "__main__":
    main()
