#!/usr/bin/python3
"""Write the scenarios of the alt-azimuth slew, tests/scenarios/pointage_altaz*.scn, with what they must print.

Usage: pointages.py [FOLDER]

The targets' azimuths and altitudes come from ERFA, the rest is counted here from the slew's rules: 2 |floor(way /
step)| + 1 pulses an axis at 2 ms each, the clock's whole second at its last tick (every 100 ms), passes until both
ways are below 120 arcseconds, the position from the bars. A target whose count hangs on less than a hundredth of a
step, or a field on less than 0.03 second, is refused: the last digits of two formulas must not decide.
"""

import math
import sys
from pathlib import Path

import erfa

ICI = Path(__file__).resolve().parent
SORTIE = ICI.parent / "tests" / "scenarios"

LON, LAT = math.radians(6 + 27 / 60), math.radians(48 + 10 / 60)
PAS_AZ, PAS_ALT, R_ALT, R_AZ = 100, 96, 120, 150
ANG_AZ = 360 / (R_AZ * PAS_AZ) * 3600 / 2
ANG_ALT = 360 / (R_ALT * PAS_ALT) * 3600 / 2
UT0 = 20 * 3600  # 2001 August 15, 22 h summer time
GMST0 = round(math.degrees(erfa.gmst82(2451544.5 + 592, 0.0)) * 240)  # whole seconds, as an almanac gives it
DEPART = (180 * 3600.0, 30 * 3600.0)

ENTETE = f"""\
# Alt-azimuth slews. Written by tools/pointages.py; the expected counts come from ERFA and the slew's own rules.
# A step is {ANG_AZ:g} arcseconds of azimuth, {ANG_ALT:g} of altitude; a pulse lasts 2 ms; the start is due south, 30 degrees high.
fichier config_altaz.ini 6|27|48|10|{PAS_AZ}|{PAS_ALT}|{R_ALT}|{R_AZ}
fichier vitessealtaz.ini 1|1|1|1|33300|1|1|1|1|33300
fichier pointagealtaz.ini 5|5
"""
DEMARRE = """\
horloge 2001-08-15 22:00:00
demarre
clic frminterface.barchoix(2)
clic frmconfig.cmdreinit
clic frmconfig.cmdinitcoord
avance 1s
clic frminterface.baraltaz(4)
"""


def tsl(ms):
    """Local sidereal time in radians at the clock's last tick before a virtual time."""
    ut = UT0 + ms // 100 * 100 // 1000
    return math.radians((GMST0 + ut * 1.00273790935) / 240) + LON


def horizon(ms, ad, dec):
    """Azimuth and altitude in arcseconds of a place in catalogue units; without whole degrees it is southern."""
    signe = 1 if dec >= 600 else -1
    angle = tsl(ms) - math.radians(ad / 40)
    az, alt = erfa.hd2ae(angle, math.radians(signe * abs(dec) / 600), LAT)
    return math.degrees(az) % 360 * 3600, math.degrees(alt) * 3600


def objet(ms, az, alt):
    """Catalogue units of the place that stands near an azimuth and altitude (degrees) at a time."""
    angle, dec = erfa.ae2hd(math.radians(az), math.radians(alt), LAT)
    return round(math.degrees(tsl(ms) - angle) % 360 * 40), round(math.degrees(dec) * 600)


def compte(distance, pas):
    if distance == 0:  # the very same target
        return 0
    assert 0.01 < distance / pas % 1 < 0.99, f"{distance} hangs on a step of {pas}"
    return 2 * abs(math.floor(distance / pas))


def dms(x):
    d = math.floor(x / 3600)
    m = math.floor((x - d * 3600) / 60)
    s = x - d * 3600 - m * 60
    assert 0.03 < (s - 0.5) % 1 < 0.97 and 0.03 < s < 59.97, f"{x} hangs on a second"
    return d, m, round(s)


def rapproche(position, cible, pas, impulsions):
    return position + (1 if position < cible else -1) * impulsions / 2 * pas


class Telescope:
    def __init__(self):
        self.ms = 1000
        self.az, self.alt = DEPART
        self.lignes = []
        self.passes = 0

    def pointe(self, ad, dec):
        """A whole slew. Gives its pulses on both axes and the last target."""
        envoyees = [0, 0]
        barres = [0, 0]
        self.passes = 0
        while True:
            self.passes += 1
            az, alt = horizon(self.ms, ad, dec)
            if alt < 0:
                self.lignes.append("message déplacement impossible : altitude négative !")
                return envoyees, (az, alt)
            daz, dalt = az - self.az, alt - self.alt
            na, nh = compte(daz, ANG_AZ), compte(dalt, ANG_ALT)
            barres = [100 if na else barres[0], 100 if nh else barres[1]]
            envoyees[0] += na + 1
            envoyees[1] += nh + 1
            self.ms += 2 * (na + nh + 2)
            if barres[0] < 99:
                self.az = rapproche(self.az, az, ANG_AZ, nh + 1)
            else:
                self.az = az
                self.alt = alt if barres[1] >= 99 else rapproche(self.alt, alt, ANG_ALT, nh + 1)
            if abs(daz) < 120 and abs(dalt) < 120:
                return envoyees, (az, alt)


def nombre(x):
    return f"{x:g}" if x < 0 else f" {x:g}"


def etiquettes(ad, dec):
    h, d = int(ad / 600), int(dec / 600)
    minutes = (dec - d * 600) / 10
    return (f"{nombre(h)}h{nombre((ad - h * 600) / 10)}'",
            f"{nombre(d)}°{nombre(abs(minutes) if d < 0 else minutes)}'")


def suite():
    """One night's road: ways of both signs, the same object again, the horizon, +0 degrees."""
    t = Telescope()
    # Azimuth, altitude and about when: up and on, back and down, the same again, north, under the horizon.
    cibles = [(251.3, 52.1, 1000), (98.7, 17.2, 60000), (98.7, 17.2, 60000), (326.3, 41.3, 100000),
              (305.2, -12.4, 150000)]
    objets = [objet(ms, az, alt) for az, alt, ms in cibles]
    objets.append((objet(150000, 140.0, 30.0)[0], 300))  # +0 degrees 30
    scenario = [ENTETE, "fichier messier.cat " + "|".join(f"M{i + 1},GL,{a},{d}" for i, (a, d) in enumerate(objets)),
                "\n" + DEMARRE]
    for i, (ad, dec) in enumerate(objets):
        scenario.append("zero\n")
        scenario.append(f"double frmaltazpointage.lbObjets {i}\n")
        envoyees, (az, alt) = t.pointe(ad, dec)
        for x in ("frmaltazpointage.tADpos", "frmaltazpointage.tdcpos"):
            scenario.append(f"montre {x}\n")
        t.lignes += [f"{x} = {y}" for x, y in zip(("frmaltazpointage.tADpos", "frmaltazpointage.tdcpos"),
                                                  etiquettes(ad, dec))]
        for nom, valeurs in (("az", dms(az)), ("alt", dms(alt))):
            for k, v in enumerate(valeurs, 1):
                scenario.append(f"montre frmaltazpointage.txtcoord{nom}{k}\n")
                t.lignes.append(f"frmaltazpointage.txtcoord{nom}{k} = {v}")
        scenario.append("montre impulsions\n")
        t.lignes.append(f"impulsions az0={envoyees[0]} az8=0 alt0={envoyees[1]} alt2=0")
        scenario.append(f"# {t.passes} pass(es)\n")
        scenario.append("avance 1s\n")
        t.ms += 1000
    scenario.append("montre frmDepl.charge\nmontre cmdsens\nmontre classevitaz\nmontre reticulead\n")
    t.lignes += ["frmDepl.charge = 0", "cmdsens = 3", "classevitaz = 4", "reticulead = 0"]
    return "".join(scenario), "\n".join(t.lignes) + "\n"


def arrets():
    """Stops in azimuth, in altitude and in azimuth's last percent; each from the same start."""
    scenario = [ENTETE]
    lignes = []
    ad, dec = objet(1000, 251.3, 22.1)
    az, alt = horizon(1000, ad, dec)
    na, nh = compte(az - DEPART[0], ANG_AZ), compte(alt - DEPART[1], ANG_ALT)
    assert na > 1000 and nh > 100 and alt < DEPART[1] and az > DEPART[0]
    scenario.append(f"fichier messier.cat M1,GL,{ad},{dec}\n" + DEMARRE)
    fin = na - 4  # pulses: the bar stands at 99 or more
    cas = [(5, 5, 0, DEPART[0] + 5 / 2 * ANG_AZ, DEPART[1]),
           (na + 1 + 7, na + 1, 7, None, DEPART[1] - 7 / 2 * ANG_ALT),
           (fin, fin, 0, None, DEPART[1] - fin / 2 * ANG_ALT)]
    for impulsions, a, h, posaz, posalt in cas:
        scenario.append("clic frmconfig.cmdinitcoord\nhorloge 2001-08-15 22:00:01\navance 100ms\nzero\n")
        scenario.append(f"a {2 * impulsions}ms enfonce frmDepl.cmstoppointage\n")
        scenario.append("double frmaltazpointage.lbObjets 0\nmontre impulsions\n")
        lignes.append(f"impulsions az0={a} az8=0 alt0={h} alt2=0")
        if posaz is not None:
            scenario.append("montre posaz\n")
            lignes.append(f"posaz = {posaz:g}" if posaz % 1 else f"posaz = {posaz:.0f}")
        else:
            scenario.append("avance 100ms\nmontre frmcoord.txtcoordaz1\nmontre frmcoord.txtcoordaz2\n")
            lignes += [f"frmcoord.txtcoordaz1 = {dms(az)[0]}", f"frmcoord.txtcoordaz2 = {dms(az)[1]}"]
        scenario.append("montre posalt\nmontre distaz\nmontre stoppointage\nmontre frmDepl.charge\n")
        lignes += [f"posalt = {repr(float(posalt)).removesuffix('.0')}", "distaz = 0", "stoppointage = 0",
                   "frmDepl.charge = 0"]
    return "".join(scenario), "\n".join(lignes) + "\n"


def couche():
    """A target that sets under the first pass: the message comes at the second, the position is the first's."""
    t = Telescope()
    ad, dec = next((a, d) for a, d in (objet(1000, 284 + x / 10, 0.045) for x in range(60))
                   if 60 < horizon(1000, a, d)[1] < 250)
    envoyees, (az, alt) = t.pointe(ad, dec)
    assert t.passes == 2 and alt < 0
    scenario = [ENTETE, f"fichier messier.cat M1,GL,{ad},{dec}\n", DEMARRE, "zero\n",
                "double frmaltazpointage.lbObjets 0\nmontre impulsions\nmontre frmDepl.charge\navance 100ms\n",
                "montre frmaltazpointage.txtcoordalt1\n"]
    lignes = t.lignes + [f"impulsions az0={envoyees[0]} az8=0 alt0={envoyees[1]} alt2=0", "frmDepl.charge = 0",
                         f"frmaltazpointage.txtcoordalt1 = {dms(alt)[0]}"]
    for nom, x in (("az", t.az), ("alt", t.alt)):
        scenario.append(f"montre frmcoord.txtcoord{nom}1\nmontre frmcoord.txtcoord{nom}2\n")
        lignes += [f"frmcoord.txtcoord{nom}1 = {dms(x)[0]}", f"frmcoord.txtcoord{nom}2 = {dms(x)[1]}"]
    return "".join(scenario), "\n".join(lignes) + "\n"


SCENARIOS = (("pointage_altaz", suite), ("pointage_altaz_arret", arrets), ("pointage_altaz_couche", couche))


def main():
    dossier = Path(sys.argv[1]) if len(sys.argv) > 1 else SORTIE
    for nom, fait in SCENARIOS:
        scenario, attendu = fait()
        (dossier / f"{nom}.scn").write_text(scenario, encoding="utf-8")
        (dossier / f"{nom}.attendu").write_text(attendu, encoding="utf-8")


if __name__ == "__main__":
    main()
