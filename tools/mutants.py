#!/usr/bin/env python3
"""Breaks one place of the sources after another and prints those that no headless test notices.

usage: tools/mutants.py [--graine N] [--nombre N] [--places FILE] [FOLDER...]     (default folders: the engines and panels)

Works on a copy in build/mutants; the tree itself is never touched. A place that survives is a line whose fault nobody
would see: a test is missing, or the line is not needed. --places FILE plays the places of an earlier run's output again.
"""
import argparse
import pathlib
import random
import re
import shutil
import subprocess
import sys

RACINE = pathlib.Path(__file__).resolve().parent.parent
COPIE = RACINE / "build/mutants/arbre"
OBJETS = RACINE / "build/mutants/objets"
DOSSIERS = ["sky", "remote", "drive", "settings", "catalogue", "piloting", "pointing", "slewing", "tracking", "chart", "frame", "store"]
ESSAIS = "^(scenarios|essais_)"
SANS = "^essais_(fenetres|linux|banc|singe)"  # real windows, real waits, the monkey

# What is broken and how; a text in quotes, a comment and an include are left alone.
FAUTES = [
    (r"(?<=[\w)\]] )\+(?= )", "-"), (r"(?<=[\w)\]] )-(?= )", "+"), (r"(?<= )\*(?= )", "/"), (r"(?<= )<(?= )", "<="),
    (r"(?<= )>(?= )", ">="), (r"(?<= )<=(?= )", "<"), (r"(?<= )>=(?= )", ">"), (r"(?<= )==(?= )", "!="),
    (r"(?<= )!=(?= )", "=="), (r"&&", "||"), (r"\|\|", "&&"), (r"\btrue\b", "false"), (r"\bfalse\b", "true"),
    (r"(?<![\w.'])\d+(?![\w.'])", None), (r"^\s+[\w:.\->\[\]()]+( [-+*/]?= [^;]*|\([^;]*\));$", "supprime"),
]


def places(dossiers):
    for dossier in dossiers:
        for chemin in sorted((RACINE / "src" / dossier).rglob("*.cpp")):
            for n, ligne in enumerate(chemin.read_text().split("\n")):
                code = re.sub(r'"(\\.|[^"])*"', lambda m: "\0" * len(m[0]), ligne.split("//")[0])
                if code.lstrip().startswith(("#", "static_assert")):
                    continue
                for motif, par in FAUTES:
                    for m in re.finditer(motif, code):
                        neuf = str(int(m[0]) + 1) if par is None else "" if par == "supprime" else par
                        yield f"{chemin.relative_to(RACINE)}:{n + 1}:{m.start()}:{m.end()}:{neuf}"


def lance(*mots):
    return subprocess.run(mots, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL).returncode == 0


def programmes():
    cibles = subprocess.run(["ninja", "-C", OBJETS, "-t", "targets", "all"], capture_output=True, text=True).stdout
    essais = {m[1] for m in re.finditer(r"^(essais_\w+): phony", cibles, re.MULTILINE)}
    return ["velmoria-scenario", *sorted(e for e in essais if not re.match(SANS, e))]


def construit():
    return lance("cmake", "--build", OBJETS, "-j2", "--target", *programmes())


def eprouve(*options):
    return lance("ctest", "--test-dir", OBJETS, "-R", ESSAIS, "-E", SANS, "-j2", "--no-tests=error", "--timeout", "20", *options)


def essaie(place):
    fichier, n, debut, fin, neuf = place.split(":", 4)
    cible = COPIE / fichier
    avant = cible.read_text()
    lignes = avant.split("\n")
    ligne = lignes[int(n) - 1]
    lignes[int(n) - 1] = ligne[: int(debut)] + neuf + ligne[int(fin) :]
    cible.write_text("\n".join(lignes))
    try:
        if not construit():
            return "does not compile"
        return "SURVIVES" if eprouve("--stop-on-failure") else "noticed"
    finally:
        cible.write_text(avant)


def main():
    a = argparse.ArgumentParser()
    a.add_argument("--graine", type=int, default=1)
    a.add_argument("--nombre", type=int, default=100)
    a.add_argument("--places")
    a.add_argument("dossiers", nargs="*", default=DOSSIERS)
    a = a.parse_args()
    shutil.rmtree(COPIE.parent, ignore_errors=True)
    shutil.copytree(RACINE, COPIE, ignore=shutil.ignore_patterns("build", ".git"))
    if not lance("cmake", "-S", COPIE, "-B", OBJETS, "-G", "Ninja", "-DCMAKE_CXX_COMPILER=clang++",
                 "-DCMAKE_BUILD_TYPE=Debug", "-DCMAKE_CXX_FLAGS_DEBUG=-O0"):
        sys.exit("does not configure")
    if not construit() or not eprouve():
        sys.exit("the unbroken tree does not build or fails its tests")
    if a.places:
        choix = [l.split(" ", 1)[1] for l in open(a.places).read().split("\n") if l.startswith(("SURVIVES", "noticed"))]
    else:
        tous = list(places(a.dossiers))
        choix = random.Random(a.graine).sample(tous, min(a.nombre, len(tous)))
    for place in choix:
        print(f"{essaie(place)} {place}", flush=True)


if __name__ == "__main__":
    main()
