#!/usr/bin/python3
"""Checks the help pages: tools/verifie_aide.py [FOLDER], by default aide/. Exit status 1 if anything is wrong.

Every page declares UTF-8 and is UTF-8, its elements close in order, no id stands twice; every local link, style sheet
and image leads to a file with exactly that name, every anchor to an id; every page is reached from index.html, and
every image has a text in its place. Addresses of the network are refused: the pages are read where there is none.
"""

import sys
from html.parser import HTMLParser
from pathlib import Path
from urllib.parse import unquote, urlsplit

VIDES = {"area", "base", "br", "col", "embed", "hr", "img", "input", "link", "meta", "source", "track", "wbr"}
LIENS = {"a": "href", "link": "href", "img": "src", "script": "src", "source": "src", "iframe": "src"}


class page(HTMLParser):
    """Reads one page: its ids, its links, and the faults of its own."""

    def __init__(self, chemin):
        super().__init__(convert_charrefs=True)
        self.fautes = []
        self.ids = set()
        self.liens = []  # (line, address)
        self.codage = ""
        self.ouverts = []  # (element, line)
        self.type_html = False
        try:
            texte = chemin.read_bytes().decode("utf-8")
        except UnicodeDecodeError as erreur:
            self.fautes.append(f"not UTF-8: {erreur}")
            return
        self.feed(texte)
        self.close()
        self.fautes += [f"line {ligne}: <{nom}> is never closed" for nom, ligne in self.ouverts]
        if not self.type_html:
            self.fautes.append("no <!DOCTYPE html>")
        if self.codage.lower() != "utf-8":
            self.fautes.append("no <meta charset=\"utf-8\">")

    def ligne(self):
        return self.getpos()[0]

    def faute(self, texte):
        self.fautes.append(f"line {self.ligne()}: {texte}")

    def handle_decl(self, decl):
        self.type_html = decl.lower() == "doctype html"

    def handle_starttag(self, tag, attrs):
        self.element(tag, dict(attrs))
        if tag not in VIDES:
            self.ouverts.append((tag, self.ligne()))

    def handle_startendtag(self, tag, attrs):
        self.element(tag, dict(attrs))

    def handle_endtag(self, tag):
        if not self.ouverts or tag in VIDES:
            self.faute(f"</{tag}> closes nothing")
        elif self.ouverts[-1][0] == tag:
            self.ouverts.pop()
        else:
            self.faute(f"</{tag}> while <{self.ouverts[-1][0]}> of line {self.ouverts[-1][1]} is open")
            noms = [nom for nom, _ in self.ouverts]
            if tag in noms:  # go on from there, so that one slip is told once
                del self.ouverts[len(noms) - 1 - noms[::-1].index(tag):]

    def element(self, tag, attrs):
        if tag == "meta" and attrs.get("charset"):
            self.codage = attrs["charset"]
        if tag == "img" and not attrs.get("alt"):
            self.faute("<img> without alt")
        identite = attrs.get("id")
        if identite is not None:
            if identite in self.ids:
                self.faute(f"id \"{identite}\" stands twice")
            self.ids.add(identite)
        if tag in LIENS and LIENS[tag] in attrs:
            self.liens.append((self.ligne(), attrs[LIENS[tag]] or ""))


def existe(chemin, racine):
    """Whether the file is there under exactly this name, also where the file system doesn't tell case apart."""
    if not chemin.is_file():
        return False
    relatif = chemin.relative_to(racine)
    ici = racine
    for nom in relatif.parts:
        if nom not in {p.name for p in ici.iterdir()}:
            return False
        ici /= nom
    return True


def verifie(dossier):
    """The list of faults of all pages in a folder, each with its page's name."""
    dossier = Path(dossier).resolve()
    racine = dossier.parent  # links may go to what is delivered beside the pages
    pages = {chemin: page(chemin) for chemin in sorted(dossier.rglob("*.html"))}
    fautes = []
    if dossier / "index.html" not in pages:
        fautes.append("index.html: missing")
    suites = {}
    for chemin, lue in pages.items():
        nom = chemin.relative_to(dossier).as_posix()
        fautes += [f"{nom}: {f}" for f in lue.fautes]
        suites[chemin] = set()
        for ligne, adresse in lue.liens:
            lieu = f"{nom}: line {ligne}: {adresse or 'empty address'}"
            parties = urlsplit(adresse)
            if not adresse or parties.scheme or parties.netloc or parties.path.startswith("/"):
                fautes.append(f"{lieu}: not an address beside the page")
                continue
            cible = (chemin.parent / unquote(parties.path)).resolve() if parties.path else chemin
            if not cible.is_relative_to(racine) or not existe(cible, racine):
                fautes.append(f"{lieu}: no such file")
                continue
            if cible in pages:
                suites[chemin].add(cible)
            if parties.fragment and (cible not in pages or unquote(parties.fragment) not in pages[cible].ids):
                fautes.append(f"{lieu}: no such anchor")
    vues, a_voir = set(), [dossier / "index.html"]
    while a_voir:
        chemin = a_voir.pop()
        if chemin in suites and chemin not in vues:
            vues.add(chemin)
            a_voir += suites[chemin]
    fautes += [f"{c.relative_to(dossier).as_posix()}: no link leads here" for c in pages if c not in vues]
    return fautes, pages


def main():
    dossier = Path(sys.argv[1]) if len(sys.argv) > 1 else Path(__file__).resolve().parent.parent / "aide"
    fautes, pages = verifie(dossier)
    for faute in fautes:
        print(faute)
    liens = sum(len(p.liens) for p in pages.values())
    print(f"{len(pages)} pages, {liens} links, {len(fautes)} faults")
    return 1 if fautes else 0


if __name__ == "__main__":
    sys.exit(main())
