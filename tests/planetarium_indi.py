#!/usr/bin/python3
"""planetarium_indi.py VELMORIA-BANC: a real client, indiserver with indi_lx200basic, steers the program on the bench.

Run under a virtual display. The client's side speaks INDI's XML to the server; the mount's angles come from the recording
that the bench makes of its port's lines.
"""

import os
import re
import shutil
import socket
import subprocess
import sys
import tempfile
import time

BANC = sys.argv[1]
PULSE = 4.5  # arcseconds of either axis: 720 x 400 pulses a turn, the delivered mechanics
MONTURE = "LX200 Basic"


def libre():
    with socket.socket() as s:
        s.bind(("127.0.0.1", 0))
        return s.getsockname()[1]


class Indi:
    """The server's properties as they stand."""

    def __init__(self, port):
        limite = time.monotonic() + 10
        while True:
            try:
                self.prise = socket.create_connection(("127.0.0.1", port))
                break
            except ConnectionRefusedError:
                if time.monotonic() > limite:
                    raise
                time.sleep(0.1)
        self.prise.settimeout(0.2)
        self.texte, self.valeurs, self.etats = "", {}, {}
        self.prise.sendall(b'<getProperties version="1.7"/>')

    def lit(self):
        try:
            self.texte += self.prise.recv(65536).decode()
        except TimeoutError:
            return
        fin = 0
        for m in re.finditer(r"<(?:set|def)(Number|Switch|Text)Vector\s([^>]*)>(.*?)</(?:set|def)\1Vector>", self.texte, re.S):
            nom = re.search(r'\bname="([^"]+)"', m[2])[1]
            self.etats[nom] = re.search(r'state="(\w+)"', m[2])[1]
            for element, valeur in re.findall(r'<\w+\s[^>]*?name="([^"]+)"[^>]*>\s*([^<]*?)\s*<', m[3], re.S):
                self.valeurs[nom, element] = valeur
            fin = m.end()
        self.texte = self.texte[fin:]

    def attend(self, quoi, vrai, secondes=20):
        limite = time.monotonic() + secondes
        while not vrai():
            if time.monotonic() > limite:
                sys.exit(f"{quoi}: not within {secondes} s; {self.valeurs}")
            self.lit()

    def envoie(self, genre, nom, **elements):
        un = "".join(f'<one{genre} name="{e}">{v}</one{genre}>' for e, v in elements.items())
        self.prise.sendall(f'<new{genre}Vector device="{MONTURE}" name="{nom}">{un}</new{genre}Vector>'.encode())

    def place(self):
        """Hours and degrees of the present date, as the client shows them."""
        return tuple(float(self.valeurs.get(("EQUATORIAL_EOD_COORD", e), "nan")) for e in ("RA", "DEC"))

    def a(self, ad, dec, minutes):
        """Whether that is where the client sees the telescope, to so many minutes of arc."""
        la = self.place()
        return abs(la[0] - ad) * 15 * 60 <= minutes and abs(la[1] - dec) * 60 <= minutes


def angles(fichier):
    """Degrees of both axes: the rises of a step line, by the direction line that stands then."""
    lignes, monte = {}, {"pas_az": 0, "pas_alt": 0}
    texte = open(fichier).read()
    noms = {marque: nom for marque, nom in re.findall(r"\$var wire 1 (\S+) (\S+) \$end", texte)}
    for valeur, marque in re.findall(r"^([01])(\S+)$", texte, re.M):
        nom = noms.get(marque)
        if nom in monte and valeur == "1" and lignes.get(nom) == "0":
            monte[nom] += -1 if lignes["sens" + nom[3:]] == "1" else 1
        lignes[nom] = valeur
    return monte["pas_az"] * PULSE / 3600, monte["pas_alt"] * PULSE / 3600


def vaut(quoi, lu, attendu, tolerance):
    if abs(lu - attendu) > tolerance:
        sys.exit(f"{quoi}: {lu}, expected {attendu}")


def malmene(port):
    """Whatever clients do, the next good command is answered, and the driver's connection goes on."""
    with socket.create_connection(("127.0.0.1", port)) as muet, socket.create_connection(("127.0.0.1", port)) as refuse:
        refuse.settimeout(5)
        vaut("a third client", len(refuse.recv(1)), 0, 0)
        muet.settimeout(5)
        for rebut in (b"\xff\x00#\x01" * 500, b":" + b"x" * 10_000, b":Sr 12:", b":GD#:GR#" * 5000, b""):
            muet.sendall(rebut + b":GVP#")
            lu = b""
            while not lu.endswith(b"Velmoria#"):
                morceau = muet.recv(65536)
                if not morceau:
                    sys.exit(f"cut after {rebut[:20]}")
                lu += morceau


def choisit_la_monture():
    """A mouse click on the first button of the main frame: the equatorial mode."""
    fenetre = subprocess.check_output(["xdotool", "search", "--sync", "--name", "Pilotage de t"], text=True).split()[0]
    subprocess.run(["xdotool", "windowraise", fenetre, "sleep", "0.5", "mousemove", "--window", fenetre, "60", "60", "click", "1"],
                   check=True)


def essai(dossier, lance):
    vcd = f"{dossier}/lignes.vcd"
    port, indi_port = libre(), libre()
    lance(["env", f"HOME={dossier}", f"{dossier}/bin/velmoria-banc", "--planetarium", str(port), "--enregistre", vcd])
    choisit_la_monture()
    lance(["env", f"HOME={dossier}", "indiserver", "-p", str(indi_port), "indi_lx200basic"])
    indi = Indi(indi_port)
    indi.attend("the driver", lambda: "CONNECTION_MODE" in indi.etats)
    indi.envoie("Switch", "CONNECTION_MODE", CONNECTION_TCP="On")
    indi.envoie("Number", "POLLING_PERIOD", PERIOD_MS=100)
    indi.attend("its address", lambda: "DEVICE_ADDRESS" in indi.etats)
    indi.envoie("Text", "DEVICE_ADDRESS", ADDRESS="127.0.0.1", PORT=port)
    indi.envoie("Switch", "CONNECTION", CONNECT="On")
    indi.attend("the connection", lambda: indi.etats.get("EQUATORIAL_EOD_COORD") in ("Idle", "Ok"))

    # Aligned on one place, slewed to another: 5 minutes of time and 1 degree further.
    indi.envoie("Switch", "ON_COORD_SET", SYNC="On")
    indi.envoie("Number", "EQUATORIAL_EOD_COORD", RA=5.6, DEC=-5.4)
    indi.attend("the alignment", lambda: indi.a(5.6, -5.4, 2))
    vaut("azimuth before", angles(vcd)[0], 0, 0)
    indi.envoie("Switch", "ON_COORD_SET", SLEW="On")
    indi.envoie("Number", "EQUATORIAL_EOD_COORD", RA=5.6 + 5 / 60, DEC=-4.4)
    indi.attend("on its way", lambda: 5.61 < indi.place()[0] < 5.67)
    indi.attend("the slew", lambda: indi.a(5.6 + 5 / 60, -4.4, 2))
    # A growing right ascension raises its line: the angle falls.
    indi.attend("the mount", lambda: abs(angles(vcd)[0] + 1.25) < 2 / 60 and abs(angles(vcd)[1] - 1) < 2 / 60)

    malmene(port)
    # Stopped on the way back: the target is believed, the mount stands in between.
    indi.envoie("Number", "EQUATORIAL_EOD_COORD", RA=5.6, DEC=-5.4)
    indi.attend("half-way", lambda: 5.61 < indi.place()[0] < 5.66)
    indi.envoie("Switch", "TELESCOPE_ABORT_MOTION", ABORT="On")
    indi.attend("the stop", lambda: indi.a(5.6, -5.4, 2))
    time.sleep(0.5)
    az, alt = angles(vcd)
    vaut("azimuth stopped", az, -0.625, 0.6)
    vaut("altitude stopped", alt, 1, 2 / 60)
    time.sleep(0.5)
    vaut("azimuth later", angles(vcd)[0], az, 0)


def main():
    with tempfile.TemporaryDirectory() as dossier:
        # A copy: the program saves into the data beside it.
        os.mkdir(f"{dossier}/bin")
        shutil.copy(BANC, f"{dossier}/bin")
        shutil.copytree(f"{os.path.dirname(BANC)}/data", f"{dossier}/bin/data")
        lances = []
        try:
            essai(dossier, lambda mots: lances.append(subprocess.Popen(mots)))
        finally:
            for p in reversed(lances):
                p.terminate()
                p.wait()


main()
