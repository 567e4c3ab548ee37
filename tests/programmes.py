#!/usr/bin/python3
"""programmes.py FOLDER: the command lines of the programs, without a display; each row a call and what must come of it."""

import os
import re
import subprocess
import sys
import tempfile

TOUS = ["velmoria", "velmoria-aujourdhui", "velmoria-banc", "velmoria-scenario"]
FENETRES = TOUS[:3]
# Programs, arguments, environment, status, and the whole of what is said: a pattern, on standard error unless the status is 0.
LIGNES = [
    (TOUS, "--help", {}, 0, r"Usage : NOM \[OPTIONS\].*\n(.+\n)+\n(  .+\n)*  --help +affiche cette aide\n  --version .+\n"),
    (TOUS, "--version", {}, 0, r"NOM, version \d+\.\d+\n"),
    (TOUS, "--hlep", {}, 2, r"NOM : option inconnue : --hlep .*\n"),
    (TOUS, "--version=2", {}, 2, r"NOM : l'option --version ne prend pas de valeur\n"),
    (FENETRES, "fichier", {}, 2, r"NOM : mot de trop .* \"fichier\"\n"),
    (["velmoria-scenario"], "", {}, 2, r"usage : velmoria-scenario FICHIER .*\n"),
    (["velmoria-scenario"], "absent.scn", {}, 1, r"absent.scn : fichier introuvable\n"),
    (FENETRES, "", {}, 1, r"velmoria : pas d'affichage : .*\n"),
    (FENETRES, "", {"DISPLAY": ":4711"}, 1, r"velmoria : l'affichage \":4711\" ne s'ouvre pas.*\n"),
    (FENETRES, "", {"QT_QPA_PLATFORM": "nul"}, 1, r"velmoria : l'affichage \"nul\", .* QT_QPA_PLATFORM, .*\n"),
]

fautes = 0
for programmes, arguments, milieu, statut, motif in LIGNES:
    for nom in programmes:
        fait = subprocess.run([f"{sys.argv[1]}/{nom}", *arguments.split()], env=milieu, capture_output=True, text=True)
        dits = (fait.stdout, fait.stderr) if statut == 0 else (fait.stderr, fait.stdout)
        if fait.returncode != statut or not re.fullmatch(motif.replace("NOM", nom), dits[0]) or dits[1]:
            fautes += 1
            print(f"{nom} {arguments} {milieu}: status {fait.returncode}\n{fait.stdout}{fait.stderr}")

# A scenario that is killed: the next one takes away what it left among the temporary files.
with tempfile.TemporaryDirectory() as temporaire:
    appel = {"args": [f"{sys.argv[1]}/velmoria-scenario", "-"], "env": {"TMPDIR": temporaire}, "stdin": subprocess.PIPE}
    tue = subprocess.Popen(**appel, stdout=subprocess.PIPE)
    tue.stdin.write(b"montre cmdsens\n")
    tue.stdin.flush()
    tue.stdout.read(1)  # its folder is made by then
    tue.kill()
    tue.wait()
    restes = [len(os.listdir(temporaire))]
    subprocess.run(**appel | {"stdin": subprocess.DEVNULL}, check=True)
    restes.append(len(os.listdir(temporaire)))
    if restes != [1, 0]:
        fautes += 1
        print(f"left behind by a killed scenario, and by the one after it: {restes}")
sys.exit(fautes)
