#!/usr/bin/python3
"""The house's rule: an include goes down the picture, never up; Qt stays in the windows; no include circles.

Rows, from the top: main files; bench and platform realisations; shell; panels; files and configuration; drive and sky;
the store's row (store, text form, seam and every `*_champs.h`); base.
"""

import pathlib
import re
import sys

SOURCES = pathlib.Path(__file__).resolve().parent.parent / "src"
RANGEE_DU_MAGASIN = {"shell/panneau.h", "shell/panneau.cpp", "shell/controles.h", "shell/controles.cpp",
                     "shell/etat.h", "shell/minuteur.cpp", "shell/registre.h", "shell/registre.cpp",
                     "settings/valeurs.h", "settings/valeurs.cpp",
                     "platform/plateforme.h", "platform/port.h", "platform/vue.h", "platform/image.h",
                     "platform/toile.h"}
RANGEES = {"base": 0, "sky": 2, "drive": 2, "settings": 3, "catalogue": 3,
           "chart": 4, "pointing": 4, "tracking": 4, "piloting": 4, "shell": 5, "platform": 6, "bench": 6,
           "principaux": 7}
# Variables that several rows share stand in headers of their own, with the store.
ETATS = re.compile(r"/(etat_[a-z]+|jeu|position)\.h$")


def rangee(fichier):
    if fichier in RANGEE_DU_MAGASIN or fichier.endswith("_champs.h") or ETATS.search(fichier):
        return 1
    return RANGEES[fichier.split("/")[0]]


def qt_permis(fichier):
    return fichier.startswith(("platform/qt/", "bench/"))


def cercles(inclusions):
    """The first circle found among the files, as a list, or None."""
    etat = {}

    def descend(f, chemin):
        if etat.get(f) == "fini":
            return None
        if f in chemin:
            return chemin[chemin.index(f):] + [f]
        for g in inclusions.get(f, ()):
            trouve = descend(g, chemin + [f])
            if trouve:
                return trouve
        etat[f] = "fini"
        return None

    for f in inclusions:
        trouve = descend(f, [])
        if trouve:
            return trouve
    return None


def main():
    fautes = []
    inclusions = {}
    for chemin in sorted(SOURCES.rglob("*")):
        if chemin.suffix not in (".h", ".cpp"):
            continue
        fichier = chemin.relative_to(SOURCES).as_posix()
        for numero, ligne in enumerate(chemin.read_text(encoding="utf-8").splitlines(), 1):
            lieu = f"src/{fichier}:{numero}"
            if re.match(r'#include\s*[<"]Q[A-Z]', ligne) and not qt_permis(fichier):
                fautes.append(f"{lieu}: Qt outside the windows")
            inclus = re.match(r'#include\s*"([^"]+)"', ligne)
            if not inclus:
                continue
            cible = inclus.group(1)
            if not (SOURCES / cible).is_file():
                fautes.append(f"{lieu}: no such header {cible}")
                continue
            inclusions.setdefault(fichier, []).append(cible)
            if rangee(cible) > rangee(fichier):
                fautes.append(f"{lieu}: {cible} stands above")
            if "platform/qt/" in cible and not fichier.startswith(("platform/qt/", "bench/", "principaux/")):
                fautes.append(f"{lieu}: {cible} belongs to the windows")
    cercle = cercles(inclusions)
    if cercle:
        fautes.append("a circle of includes: " + " -> ".join(cercle))
    if not inclusions:
        fautes.append("no source was read")
    print("\n".join(fautes) or f"{len(inclusions)} files, every include goes down")
    return 1 if fautes else 0


if __name__ == "__main__":
    sys.exit(main())
