#!/usr/bin/python3
"""Write the scenario of the alt-azimuth slew, tests/scenarios/pointage_altaz.scn, with what it must find.

Usage: pointages.py [FILE]

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
SORTIE = ICI.parent / "tests" / "scenarios" / "pointage_altaz.scn"

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
fichier messier.cat OBJETS
horloge 2001-08-15 22:00:00
demarre
clic frminterface.barchoix(2)
clic frmconfig.cmdreinit
clic frmconfig.cmdinitcoord
avance 1s
clic frminterface.baraltaz(4)
zero
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
        self.passes = 0
        self.couche = False

    def pointe(self, ad, dec):
        """A whole slew. Gives its pulses on both axes and the last target."""
        envoyees = [0, 0]
        barres = [0, 0]
        self.passes = 0
        self.couche = False
        while True:
            self.passes += 1
            az, alt = horizon(self.ms, ad, dec)
            if alt < 0:
                self.couche = True
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


def vaut(panneau="", **valeurs):
    return " ".join(["vaut", *([panneau] if panneau else []), *(f"{nom}={v}" for nom, v in valeurs.items())])


def pointe(rang, t, ad, dec):
    """The lines of a whole slew to the object of this rank."""
    envoyees, (az, alt) = t.pointe(ad, dec)
    lignes = [f"double frmaltazpointage.lbObjets {rang}", f"# {t.passes} pass(es)",
              f"attend impulsions az0={envoyees[0]} az8=0 alt0={envoyees[1]} alt2=0"]
    if t.couche:
        lignes.insert(1, "#> message déplacement impossible : altitude négative !")
    return lignes, az, alt


def champs(panneau, nombre, **angles):
    return vaut(panneau, **{f"txtcoord{axe}{k}": v for axe, x in angles.items()
                            for k, v in enumerate(dms(x)[:nombre], 1)})


def suite(objets):
    """One night's road: ways of both signs, the same object again, the horizon, +0 degrees."""
    t = Telescope()
    # Azimuth, altitude and about when: up and on, back and down, the same again, north, under the horizon.
    cibles = [(251.3, 52.1, 1000), (98.7, 17.2, 60000), (98.7, 17.2, 60000), (326.3, 41.3, 100000),
              (305.2, -12.4, 150000)]
    objets += [objet(ms, az, alt) for az, alt, ms in cibles]
    objets.append((objet(150000, 140.0, 30.0)[0], 300))  # +0 degrees 30
    lignes = ["# essai suite"]
    for i, (ad, dec) in enumerate(objets):
        siennes, az, alt = pointe(i, t, ad, dec)
        lignes += siennes
        if i in (0, 5):
            tad, tdc = etiquettes(ad, dec)
            lignes += [f"attend frmaltazpointage.tADpos {tad}", f"attend frmaltazpointage.tdcpos {tdc}"]
        if i in (0, 4, 5):
            lignes.append(champs("frmaltazpointage", 3, az=az, alt=alt))
        lignes += ["avance 1s", "zero"]
        t.ms += 1000
    return lignes + ["vaut cmdsens=3 classevitaz=4 reticulead=0 frmDepl charge=0"]


def arrets(objets):
    """Stops in azimuth, in altitude and in azimuth's last percent, each from the same start; one pressed before."""
    lignes = ["# essai arrets"]
    ad, dec = objet(1000, 251.3, 22.1)
    rang = len(objets)
    objets.append((ad, dec))
    az, alt = horizon(1000, ad, dec)
    na, nh = compte(az - DEPART[0], ANG_AZ), compte(alt - DEPART[1], ANG_ALT)
    assert na > 1000 and nh > 100 and alt < DEPART[1] and az > DEPART[0]
    fin = na - 4  # pulses: the bar stands at 99 or more
    cas = [(5, 5, 0, DEPART[0] + 5 / 2 * ANG_AZ, DEPART[1]),
           (na + 1 + 7, na + 1, 7, None, DEPART[1] - 7 / 2 * ANG_ALT),
           (fin, fin, 0, None, DEPART[1] - fin / 2 * ANG_ALT)]
    depart = ["clic frmconfig.cmdinitcoord", "horloge 2001-08-15 22:00:01", "avance 100ms", "zero"]
    for impulsions, a, h, posaz, posalt in cas:
        lignes += depart + [f"a {2 * impulsions}ms enfonce frmDepl.cmstoppointage",
                            f"double frmaltazpointage.lbObjets {rang}",
                            f"attend impulsions az0={a} az8=0 alt0={h} alt2=0"]
        lignes += ([vaut(posaz=f"{posaz:.0f}")] if posaz is not None
                   else ["avance 100ms", champs("frmcoord", 2, az=az)])
        lignes.append(vaut(posalt=repr(float(posalt)).removesuffix(".0"), distaz=0, stoppointage=0) + " frmDepl charge=0")
    # Before the slew: one pass without a pulse moves nothing, and with the bars at 0 the position moves by no step.
    lignes += depart + ["enfonce frmDepl.cmstoppointage", f"double frmaltazpointage.lbObjets {rang}",
                        "attend impulsions az0=0 az8=0 alt0=0 alt2=0"]
    return lignes + [vaut(posaz=f"{DEPART[0]:.0f}", posalt=f"{DEPART[1]:.0f}", stoppointage=0)]


def couche(objets):
    """A target that sets under the first pass: the message comes at the second, the position is the first's."""
    t = Telescope()
    ad, dec = next((a, d) for a, d in (objet(1000, 284 + x / 10, 0.045) for x in range(60))
                   if 60 < horizon(1000, a, d)[1] < 250)
    lignes, az, alt = pointe(len(objets), t, ad, dec)
    objets.append((ad, dec))
    assert t.passes == 2 and alt < 0
    return (["# essai couche"] + lignes + ["attend frmDepl.charge 0", champs("frmaltazpointage", 1, alt=alt),
                                           "avance 100ms", champs("frmcoord", 2, az=t.az, alt=t.alt)])


def scenario():
    objets = []
    lignes = suite(objets) + arrets(objets) + couche(objets)
    liste = "|".join(f"M{i + 1},GL,{a},{d}" for i, (a, d) in enumerate(objets))
    return ENTETE.replace("OBJETS", liste) + "\n".join(lignes) + "\n"


if __name__ == "__main__":
    Path(sys.argv[1] if len(sys.argv) > 1 else SORTIE).write_text(scenario(), encoding="utf-8")
