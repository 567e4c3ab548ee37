"""How the program reads a file of the data folder, for the tests: written apart from
the tools that make the files."""

import unittest
from pathlib import Path

RACINE = Path(__file__).resolve().parent.parent.parent
DONNEES = RACINE / "data"


def lignes(nom):
    """The lines of a file, after a check of its bytes: Windows-1252, each line, the
    last too, ended by CR LF, and no other control character."""
    octets = (DONNEES / nom).read_bytes()
    texte = octets.decode("cp1252")
    suite = texte.split("\r\n")
    if suite.pop() != "" or any(ord(c) < 32 for l in suite for c in l):
        raise AssertionError(f"{nom}: line ends")
    return suite


def valeurs(ligne):
    """The values of a line: up to a comma, blanks dropped; a text in double quotes up
    to the closing quote."""
    suite, reste = [], ligne
    while True:
        reste = reste.lstrip(" ")
        if reste.startswith('"'):
            fin = reste.index('"', 1)
            suite.append(reste[1:fin])
            reste = reste[fin + 1:].lstrip(" ")
            if reste and not reste.startswith(","):
                raise AssertionError(f"text after a closing quote: {ligne}")
            virgule, reste = reste[:1], reste[1:]
        else:
            avant, virgule, reste = reste.partition(",")
            suite.append(avant.rstrip(" "))
        if not virgule:
            return suite


def fiches(nom, compte):
    """The records of a catalogue, one a line, each of so many values."""
    suite = [valeurs(l) for l in lignes(nom)]
    mauvaises = [f for f in suite if len(f) != compte]
    if mauvaises:
        raise AssertionError(f"{nom}: {mauvaises[0]}")
    return suite


def meme_contenu(test: unittest.TestCase, fait: Path, noms):
    """The files just made equal the delivered ones, byte for byte."""
    for nom in noms:
        with test.subTest(fichier=nom):
            test.assertEqual((fait / nom).read_bytes(), (DONNEES / nom).read_bytes())
