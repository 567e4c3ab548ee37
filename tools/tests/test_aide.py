"""The check of the help pages sees each of the faults it is there for."""

import sys
import tempfile
import unittest
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parent.parent))
import verifie_aide  # noqa: E402

ENTETE = '<!DOCTYPE html>\n<html lang="fr"><head><meta charset="utf-8"></head><body>\n'
FIN = "</body></html>\n"


class Verification(unittest.TestCase):
    def setUp(self):
        self.dossier = tempfile.TemporaryDirectory()
        self.addCleanup(self.dossier.cleanup)
        self.aide = Path(self.dossier.name) / "aide"
        (self.aide / "captures").mkdir(parents=True)
        (self.aide / "captures/a.png").write_bytes(b"")
        (self.aide / "deux.html").write_text(ENTETE + '<h2 id="ici">é</h2>' + FIN, encoding="utf-8")

    def fautes(self, corps, entete=ENTETE):
        lien = '<a href="deux.html">2</a>'
        (self.aide / "index.html").write_text(entete + lien + corps + FIN, encoding="utf-8")
        return verifie_aide.verifie(self.aide)[0]

    def test_sound_pages(self):
        self.assertEqual(self.fautes('<p id="x"><a href="deux.html#ici">a</a> <a href="#x">b</a><br>'
                                     '<img src="captures/a.png" alt="vue"></p>'), [])

    def test_each_fault_is_seen(self):
        for corps, dit in {
            '<a href="trois.html">x</a>': "no such file",
            '<a href="Deux.html">x</a>': "no such file",
            '<a href="../../ailleurs.txt">x</a>': "no such file",
            '<a href="deux.html#la">x</a>': "no such anchor",
            '<a href="#la">x</a>': "no such anchor",
            '<a href="https://example.org/">x</a>': "not an address beside the page",
            '<a href="">x</a>': "not an address beside the page",
            '<img src="captures/b.png" alt="vue">': "no such file",
            '<img src="captures/a.png">': "without alt",
            '<p id="a"></p><p id="a"></p>': "stands twice",
            "<p><b>x</p></b>": "while <b>",
            "<p>x</p></p>": "while <body>",
        }.items():
            with self.subTest(corps):
                fautes = self.fautes(corps)
                self.assertIn(dit, " ".join(fautes))
        self.assertIn("never closed", " ".join(self.fautes("", entete=ENTETE.replace("<html", "<main><html"))))

    def test_encoding_and_type_are_declared(self):
        self.assertIn("no <meta", " ".join(self.fautes("", entete="<!DOCTYPE html><html><body>")))
        self.assertIn("no <!DOCTYPE", " ".join(self.fautes("", entete='<html><meta charset="utf-8"><body>')))
        (self.aide / "deux.html").write_bytes((ENTETE + "é" + FIN).encode("cp1252"))
        self.assertIn("not UTF-8", " ".join(self.fautes("")))

    def test_a_page_without_a_way_to_it(self):
        (self.aide / "seule.html").write_text(ENTETE + '<a href="index.html">1</a>' + FIN, encoding="utf-8")
        self.assertEqual(self.fautes(""), ["seule.html: no link leads here"])


if __name__ == "__main__":
    unittest.main()
