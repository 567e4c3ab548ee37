#!/usr/bin/python3
"""Write the catalogues of the data folder from the tables in tools/sources.

Usage: catalogues.py [FOLDER]      (default: the delivered data folder)

Positions are J2000 in the program's two units, rounded to the unit: right
ascension in tenths of a minute of time (600 to the hour, 0 to 14399), declination
in tenths of a minute of arc (600 to the degree). Files are Windows-1252, CR LF,
one record a line.
"""

import csv
import re
import sys
import unicodedata
from decimal import ROUND_HALF_EVEN, Decimal
from pathlib import Path

ICI = Path(__file__).resolve().parent
SOURCES = ICI / "sources"
DONNEES = ICI.parent / "data"

# The program's type codes. What each of the source's becomes:
# - a cluster with nebula counts as a nebula: it is for the nebula that one looks
#   (M42, the Cocoon, the Running Man);
# - pairs and groups of galaxies are galaxies, a supernova remnant is a diffuse nebula;
# - ST, a group of stars, takes associations, star clouds (M24), double stars (M40)
#   and the numbers that turned out to be one ordinary star.
# Dup (second number of an object), NonEx, Other (mostly an empty place) and Nova
# have nothing to point at and are left out, but for the well-known ones below.
TYPES = {
    "G": "GL", "GPair": "GL", "GTrpl": "GL", "GGroup": "GL",
    "OCl": "OC", "GCl": "GC", "PN": "PN",
    "Cl+N": "DN", "HII": "DN", "EmN": "DN", "Neb": "DN", "RfN": "DN", "SNR": "DN",
    "*Ass": "ST", "*": "ST", "**": "ST",
}

# M73 is Other in the source: four stars, which an observer expects to find.
TYPES_MESSIER = {"73": "ST"}

# Second numbers (Dup in the source) that observers know better than the first, which stands in another row, and IC1318,
# in the source the star Gamma Cygni alone: the nebula around it.
BIEN_CONNUS = {"NGC2244": "Cl+N", "NGC2478": "OCl", "NGC6383": "OCl", "IC2118": "RfN", "IC1318": "EmN"}

# Index Catalogue: 5386 numbers, mostly faint galaxies and single stars, for 1031
# places. Kept: every cluster, nebula and association, and the galaxies to this
# visual magnitude. Where the source has none, the blue one less 0.72, the median
# difference of the galaxies that have both.
MAGNITUDE_IC = Decimal("13.75")
INDICE_GALAXIES = Decimal("0.72")

# Alignment stars: those with a proper name, south to -30 degrees, which still rises
# 15 degrees high at 45 north, and to this magnitude, with which Deneb stands at
# line 35. Mira is brighter at its best only, and faint most of the time.
MAGNITUDE_ETOILES = Decimal("2.93")
DECLINAISON_ETOILES = Decimal(-30)
VARIABLES = ("Mira",)

# Names as French observers write them, where they differ from the source's.
NOMS_FRANCAIS = {
    "Aldebaran": "Aldébaran", "Alderamin": "Aldéramin", "Alkaid": "Alkaïd",
    "Alpheratz": "Alphératz", "Altair": "Altaïr", "Antares": "Antarès",
    "Betelgeuse": "Bételgeuse", "Denebola": "Dénébola", "Dubhe": "Dubhé",
    "Elnath": "El Nath", "Merak": "Mérak", "Polaris": "Polaris (étoile polaire)",
    "Rasalgethi": "Ras Algethi", "Rasalhague": "Ras Alhague", "Regulus": "Régulus",
    "Sheratan": "Shératan", "Spica": "Spica (l'Épi)", "Vega": "Véga",
    "Vindemiatrix": "Vindémiatrix",
}


def lit(nom):
    """A source table, as a list of rows by column name."""
    with open(SOURCES / nom, encoding="utf-8", newline="") as fichier:
        lignes = list(csv.DictReader(fichier))
    for l in lignes:
        if l.get("name") in BIEN_CONNUS:
            l["type"] = BIEN_CONNUS[l["name"]]
    return lignes


def entier(valeur):
    return int(valeur.quantize(Decimal(1), rounding=ROUND_HALF_EVEN))


def position(ligne):
    """Decimal degrees to catalogue units. The last half unit before 24 h is 0 h."""
    ad = entier(Decimal(ligne["ra_deg"]) * 40) % 14400
    return ad, entier(Decimal(ligne["dec_deg"]) * 600)


def valeur(v):
    """A value as it stands in a file: a text with a comma or a blank at an end, which a
    reader would cut, goes in quotes."""
    texte = str(v)
    if '"' in texte or "\n" in texte:
        raise ValueError(f"no form for {texte!r}")
    return f'"{texte}"' if "," in texte or texte != texte.strip() else texte


def fiches(lignes):
    return "".join(",".join(valeur(v) for v in ligne) + "\r\n" for ligne in lignes)


def numero(nom, prefixe):
    """The number of a plain designation, None for another one. A suffix marks a part or
    a companion of the object that has the plain number: those are left out."""
    trouve = re.fullmatch(prefixe + r"(\d+)", nom)
    return int(trouve[1]) if trouve else None


def sans_accents(texte):
    lettres = unicodedata.normalize("NFD", texte.lower())
    return "".join(c for c in lettres if not unicodedata.combining(c))


def objet(nom, type_source, ligne):
    return (nom, TYPES[type_source], *position(ligne))


def messier(ciel):
    lignes = sorted((l for l in ciel if l["messier"]), key=lambda l: int(l["messier"]))
    return [("M" + l["messier"], TYPES_MESSIER.get(l["messier"]) or TYPES[l["type"]],
             *position(l)) for l in lignes]


def bloc_ngc(ciel, bloc):
    """Numbers 1000 x bloc to 1000 x bloc + 999, in order."""
    rangs = [(numero(l["name"], "NGC"), l) for l in ciel if l["type"] in TYPES]
    choix = [(n, l) for n, l in rangs if n is not None and n // 1000 == bloc]
    return [objet(l["name"], l["type"], l) for _, l in sorted(choix, key=lambda c: c[0])]


def magnitude_galaxie(ligne):
    if ligne["vmag"]:
        return Decimal(ligne["vmag"])
    if ligne["bmag"]:
        return Decimal(ligne["bmag"]) - INDICE_GALAXIES
    return None


def retenu_ic(ligne):
    if ligne["type"] not in TYPES or ligne["type"] in ("*", "**"):
        return False
    if TYPES[ligne["type"]] != "GL":
        return True
    magnitude = magnitude_galaxie(ligne)
    return magnitude is not None and magnitude <= MAGNITUDE_IC


def ic(ciel):
    rangs = [(numero(l["name"], "IC"), l) for l in ciel if retenu_ic(l)]
    choix = [(n, l) for n, l in rangs if n is not None]
    return [objet(l["name"], l["type"], l) for _, l in sorted(choix, key=lambda c: c[0])]


def etoiles_alignement(etoiles):
    """By name, as one looks them up in a list; accents don't count."""
    choix = [l for l in etoiles
             if l["proper"] and l["proper"] not in VARIABLES
             and Decimal(l["mag"]) <= MAGNITUDE_ETOILES
             and Decimal(l["dec_deg"]) >= DECLINAISON_ETOILES]
    nommees = [(NOMS_FRANCAIS.get(l["proper"], l["proper"]), l["con"], *position(l))
               for l in choix]
    return sorted(nommees, key=lambda e: sans_accents(e[0]))


def etoiles_carte(carte):
    """In the source's order, to which the lines of the figures are bound."""
    return [(l["bayer"], l["con"], *position(l)) for l in carte]


def figures(traits, carte):
    rang = {l["hip"]: i for i, l in enumerate(carte)}
    return [(rang[l["hip_a"]], rang[l["hip_b"]]) for l in traits]


def catalogues():
    """File name to records, for the fourteen files."""
    ciel, carte = lit("deepsky.csv"), lit("chart_stars.csv")
    tous = {
        "5magstar.cat": etoiles_alignement(lit("stars.csv")),
        "messier.cat": messier(ciel),
        "ic.cat": ic(ciel),
        "vstar.cat": etoiles_carte(carte),
        "vconst.cat": figures(lit("figures.csv"), carte),
        "const.cat": [(l["abbr"], l["french"]) for l in lit("constellations.csv")],
    }
    for bloc in range(8):
        tous[f"ngc{bloc}.cat"] = bloc_ngc(ciel, bloc)
    return tous


def ecrit(dossier):
    for nom, lignes in catalogues().items():
        (Path(dossier) / nom).write_bytes(fiches(lignes).encode("cp1252"))


if __name__ == "__main__":
    ecrit(sys.argv[1] if len(sys.argv) > 1 else DONNEES)
