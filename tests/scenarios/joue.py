#!/usr/bin/python3
"""joue.py PROGRAMME FILE [RUN]: plays one run of a scenario file and compares its output, explanations and status.
PROGRAMME "-" prints the run instead, for velmoria-scenario.

In FILE, "# essai NAME" begins a run; what stands before the first one is the beginning of each. Comments say what must
come: "#> TEXT" is the next line of output, "#> ..." any lines; "# fatale CAUSE : DETAIL" is the line "fatale CAUSE", DETAIL
in its explanation and status 3. "# essai NAME : TEXT" is a run that must be refused: TEXT in the explanation and status 1.
"vaut x=1 frmcoord txth=2 txts=3" is "attend x 1", "attend frmcoord.txth 2" and "attend frmcoord.txts 3".
"""

import difflib
import re
import subprocess
import sys


def attentes(ligne):
    """The `attend` lines of a `vaut` line, which may stand behind `a DUREE`."""
    avant, mots = re.fullmatch(r"(a \S+ )?vaut (.*)", ligne).groups("")
    panneau = ""
    for mot in mots.split():
        nom, egal, valeur = mot.partition("=")
        if egal:
            yield f"{avant}attend {panneau}{nom} {valeur}"
        else:
            panneau = nom + "."


def lit(fichier, essai):
    """The run's lines with their numbers, its output, its status and what its explanation must say."""
    lignes, attendu, statut, explications = [], [], 0, []
    joue, refus, trouve = True, "", not essai
    for numero, ligne in enumerate(open(fichier, encoding="utf-8").read().split("\n"), 1):
        if ligne.startswith("# essai "):
            nom, _, refus = ligne[8:].partition(" : ")
            joue = nom == essai
            trouve = trouve or joue
            if joue and refus:
                explications, statut = [refus], 1
        elif joue and ligne.startswith("#> "):
            attendu.append(ligne[3:])
        elif joue and ligne.startswith("# fatale "):
            attendu.append(ligne[2:].partition(" : ")[0])
            explications, statut = ligne[9:].split(" : "), 3
        elif joue:
            lignes += [(numero, l) for l in (attentes(ligne) if re.match(r"(a \S+ )?vaut ", ligne) else [ligne])]
    if not trouve:
        sys.exit(f"no run {essai} in {fichier}")
    return lignes, attendu, statut, explications


def main():
    programme, fichier, *essai = sys.argv[1:]
    lignes, attendu, statut, explications = lit(fichier, *essai or [""])
    texte = "".join(ligne + "\n" for _, ligne in lignes)
    if programme == "-":
        print(texte, end="")
        return
    fait = subprocess.run([programme, "-"], input=texte, capture_output=True, encoding="utf-8")
    motif = "".join(r"(.*\n)*" if x == "..." else re.escape(x + "\n") for x in attendu)
    if (fait.returncode != statut or not re.fullmatch(motif, fait.stdout)
            or not all(x in fait.stderr for x in explications)):
        print(*difflib.unified_diff(attendu, fait.stdout.splitlines(), "attendu", "obtenu", lineterm=""), sep="\n")
        ici = re.sub(r"^-:(\d+)", lambda m: f"{fichier}:{lignes[int(m[1]) - 1][0]}", fait.stderr)
        sys.exit(f"status {fait.returncode}, expected {statut}, with {explications} in\n{ici}")


main()
