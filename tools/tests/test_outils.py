"""The check of the help pages sees each of its faults; the menu entries of installe-bureau.sh read back as they should."""

import os
import re
import shutil
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

RACINE = Path(__file__).resolve().parents[2]
sys.path.insert(0, str(RACINE / "tools"))
import verifie_aide  # noqa: E402

ENTETE = '<!DOCTYPE html>\n<html lang="fr"><head><meta charset="utf-8"></head><body>\n'
FIN = "</body></html>\n"
FAUTES = {
    '<a href="trois.html">x</a>': "no such file", '<a href="../../ailleurs.txt">x</a>': "no such file",
    '<a href="deux.html#la">x</a>': "no such anchor", '<a href="#la">x</a>': "no such anchor",
    '<a href="https://example.org/">x</a>': "not an address beside the page",
    '<img src="captures/b.png" alt="vue">': "no such file", '<img src="captures/a.png">': "without alt",
    '<p id="a"></p><p id="a"></p>': "stands twice", "<p><b>x</p></b>": "while <b>", "<p>x</p></p>": "while <body>",
}


class Aide(unittest.TestCase):
    def test_each_fault_is_seen(self):
        with tempfile.TemporaryDirectory() as dossier:
            aide = Path(dossier) / "aide"
            (aide / "captures").mkdir(parents=True)
            (aide / "captures/a.png").write_bytes(b"")
            (aide / "deux.html").write_text(ENTETE + '<h2 id="ici">é</h2>' + FIN, encoding="utf-8")
            bon = '<a href="deux.html#ici">2</a><p id="x"><a href="#x">b</a><br><img src="captures/a.png" alt="vue"></p>'
            for corps, dit in {"": None, **FAUTES}.items():
                (aide / "index.html").write_text(ENTETE + bon + corps + FIN, encoding="utf-8")
                fautes = verifie_aide.verifie(aide)[0]
                self.assertTrue(any(dit in f for f in fautes) if dit else not fautes, (corps, fautes))
            (aide / "seule.html").write_bytes((ENTETE + "é" + FIN).encode("cp1252"))
            self.assertRegex(" ".join(verifie_aide.verifie(aide)[0]), "(?s)not UTF-8.*seule.html: no link leads here")


class Bureau(unittest.TestCase):
    def test_entrees(self):
        script = RACINE / "paquet/installe-bureau.sh"
        with tempfile.TemporaryDirectory() as racine:
            menu = Path(racine) / "été/applications"

            def lance(nom, *arguments):
                dossier = Path(racine) / nom
                dossier.mkdir(exist_ok=True)
                shutil.copy(script, dossier)
                for p in ("velmoria-aujourdhui", "velmoria-banc"):
                    (dossier / p).touch(0o755)
                return subprocess.run([dossier / script.name, *arguments], capture_output=True, text=True, cwd="/",
                                      env=dict(os.environ, XDG_DATA_HOME=str(menu.parent)))

            for nom in ("Télescope d'été", "l'\"œil\" $HOME `a` a\\b & c|d"):
                fait = lance(nom)
                self.assertEqual((fait.returncode, fait.stderr), (0, ""))
                texte = (menu / "velmoria-banc.desktop").read_text(encoding="utf-8")
                entree = dict(l.split("=", 1) for l in texte.splitlines()[1:])
                self.assertEqual(entree["Name"], "Velmoria, banc d'essai")
                # A string has its backslashes doubled; the one argument of a command is quoted once more.
                chemin = entree["Exec"].replace("\\\\", "\\")
                self.assertNotRegex(re.sub(r"\\.", "", chemin[1:-1]), r'["`$%=]')
                self.assertEqual(re.sub(r"\\(.)", r"\1", chemin[1:-1]), f"{racine}/{nom}/velmoria-banc")
                self.assertEqual(entree["Path"].replace("\\\\", "\\"), f"{racine}/{nom}")
            self.assertEqual((lance("x", "--autre").returncode, lance("100 %").returncode), (2, 1))
            (menu / "autre.desktop").touch()
            self.assertEqual(lance("x", "--enleve").returncode, 0)
            self.assertEqual([f.name for f in menu.iterdir()], ["autre.desktop"])


if __name__ == "__main__":
    unittest.main()
