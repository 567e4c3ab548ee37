"""The menu entries of installe-bureau.sh, read back by the rules of desktop entries."""

import os
import shutil
import subprocess
import tempfile
import unittest
from pathlib import Path

SCRIPT = Path(__file__).resolve().parent.parent.parent / "paquet" / "installe-bureau.sh"
PROGRAMMES = ("velmoria-aujourdhui", "velmoria-banc")


def valeur(texte):
    """A string of a desktop entry without its escapes."""
    lettres = {"s": " ", "n": "\n", "t": "\t", "r": "\r", "\\": "\\"}
    sortie, suite = "", iter(texte)
    for c in suite:
        sortie += lettres[next(suite)] if c == "\\" else c
    return sortie


def commande(texte):
    """The one argument of an Exec line: a value, quoted, without field codes."""
    texte = valeur(texte)
    assert texte[0] == texte[-1] == '"', texte
    sortie, suite = "", iter(texte[1:-1])
    for c in suite:
        assert c not in '"`$%=', f"{c} stands bare in {texte}"
        sortie += next(suite) if c == "\\" else c
    return sortie


class Bureau(unittest.TestCase):
    def setUp(self):
        racine = Path(tempfile.mkdtemp())
        self.addCleanup(shutil.rmtree, racine)
        self.menu = racine / "été" / "applications"
        self.racine = racine

    def lance(self, dossier, *arguments):
        return subprocess.run([dossier / SCRIPT.name, *arguments], capture_output=True, text=True, cwd="/",
                              env=dict(os.environ, XDG_DATA_HOME=str(self.menu.parent)))

    def installe(self, nom):
        dossier = self.racine / nom
        dossier.mkdir()
        shutil.copy(SCRIPT, dossier)
        for p in PROGRAMMES:
            (dossier / p).write_text("#!/bin/sh\n")
            (dossier / p).chmod(0o755)
        return dossier

    def entree(self, programme):
        lignes = (self.menu / f"{programme}.desktop").read_text(encoding="utf-8").splitlines()
        self.assertEqual(lignes[0], "[Desktop Entry]")
        return dict(ligne.split("=", 1) for ligne in lignes[1:])

    def test_entrees(self):
        for nom in ("simple", "Télescope d'été", "l'\"œil\" $HOME `a` a\\b & c|d"):
            with self.subTest(nom):
                dossier = self.installe(nom)
                fait = self.lance(dossier)
                self.assertEqual((fait.returncode, fait.stderr), (0, ""))
                titres, icones = [], set()
                for p in PROGRAMMES:
                    e = self.entree(p)
                    self.assertEqual(commande(e["Exec"]), str(dossier / p))
                    self.assertEqual(valeur(e["TryExec"]), str(dossier / p))
                    self.assertEqual(valeur(e["Path"]), str(dossier))
                    titres.append(e["Name"])
                    icones.add(e["Icon"])
                self.assertEqual(titres, ["Velmoria", "Velmoria, banc d'essai"])
                self.assertEqual(len(icones), 2)

    def test_enleve(self):
        dossier = self.installe("simple")
        self.lance(dossier)
        (self.menu / "autre.desktop").touch()
        self.assertEqual(self.lance(dossier, "--enleve").returncode, 0)
        self.assertEqual([f.name for f in self.menu.iterdir()], ["autre.desktop"])

    def test_refus(self):
        dossier = self.installe("simple")
        (dossier / PROGRAMMES[0]).unlink()
        self.assertEqual(self.lance(dossier).returncode, 1)
        self.assertEqual(self.lance(dossier, "--autre").returncode, 2)
        for nom in ("à 100 %", "a=b"):
            fait = self.lance(self.installe(nom))
            self.assertEqual(fait.returncode, 1)
            self.assertIn(nom, fait.stderr)
        self.assertFalse(list(self.racine.rglob("*.desktop")))


if __name__ == "__main__":
    unittest.main()
