#!/usr/bin/python3
"""The house's rule: an include goes down the list of folders, never up, and never round; Qt stays in machines/qt.

Checked beside it: a source includes its own header first, which shows that the header compiles alone; each control that
a `*_champs.h` declares stands in the list that its panel hands to the store.
"""

import pathlib
import re
import sys

SOURCES = pathlib.Path(__file__).resolve().parent.parent / "src"
# From the ground floor up. Within a folder files may include each other, without a circle.
ETAGES = ["base", "seam", "store", "fields", "drive", "catalogue", "sky", "slewing", "tracking", "bench", "chart", "piloting",
          "settings", "pointing", "remote", "frame", "machines", "programs"]
QT = "machines/qt/"


def etage(fichier):
    return ETAGES.index(fichier.split("/")[0])


def cercle(inclusions):
    """The first circle found among the files, as a list, or None."""
    finis = set()

    def descend(f, chemin):
        if f in finis:
            return None
        if f in chemin:
            return chemin[chemin.index(f):] + [f]
        for g in inclusions.get(f, ()):
            trouve = descend(g, chemin + [f])
            if trouve:
                return trouve
        finis.add(f)
        return None

    return next(filter(None, (descend(f, []) for f in inclusions)), None)


def fautes_de(fichier, texte, inclusions):
    """What is wrong with one file; notes what it includes."""
    for numero, ligne in enumerate(texte.splitlines(), 1):
        lieu = f"src/{fichier}:{numero}"
        if re.match(r'#include\s*[<"]Q[A-Z]', ligne) and not fichier.startswith(QT):
            yield f"{lieu}: Qt outside the windows"
        inclus = re.match(r'#include\s*"([^"]+)"', ligne)
        if not inclus:
            continue
        cible = inclus[1]
        if not (SOURCES / cible).is_file():
            yield f"{lieu}: no such header {cible}"
            continue
        inclusions.setdefault(fichier, []).append(cible)
        if etage(cible) > etage(fichier):
            yield f"{lieu}: {cible} stands above"
        if cible.startswith(QT) and not fichier.startswith((QT, "programs/")):
            yield f"{lieu}: {cible} belongs to the windows"
    sien = fichier.removesuffix(".cpp") + ".h"
    if fichier.endswith(".cpp") and (SOURCES / sien).is_file() and inclusions.get(fichier, [None])[0] != sien:
        yield f"src/{fichier}: does not include {sien} first"
    if fichier.endswith("_champs.h"):
        yield from controles_oublies(fichier, texte)


def controles_oublies(fichier, texte):
    """A control that its panel's list leaves out would be a null pointer at its first use."""
    liste = re.search(r"controles\(\)[^{]*\{(.*?)\n\}", texte, re.DOTALL)
    if not liste:
        return
    for nom in re.findall(r"^inline constinit [\w:<>, ]+? (\w+)[\[{(]", texte, re.MULTILINE):
        if nom != "fiche" and not re.search(rf"\b{nom}\b", liste[1]):
            yield f"src/{fichier}: {nom} is declared and not listed"


def main():
    fautes, inclusions = [], {}
    for chemin in sorted(SOURCES.rglob("*")):
        if chemin.suffix in (".h", ".cpp"):
            fichier = chemin.relative_to(SOURCES).as_posix()
            fautes += fautes_de(fichier, chemin.read_text(encoding="utf-8"), inclusions)
    rond = cercle(inclusions)
    if rond:
        fautes.append("a circle of includes: " + " -> ".join(rond))
    if not inclusions:
        fautes.append("no source was read")
    print("\n".join(fautes) or f"{len(inclusions)} files, every include goes down")
    return 1 if fautes else 0


if __name__ == "__main__":
    sys.exit(main())
