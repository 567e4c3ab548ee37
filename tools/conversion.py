#!/usr/bin/python3
"""Double-precision replica of the coordinate conversion, for choosing the delivered site.

The program builds its inverse functions from the arctangent and tests none of
their arguments: arcsin fails at 1 and -1, arccos at 0, and both fail when
rounding carries the argument past 1. A telescope that starts due south stands
on the meridian, where one cosine is -1 but for rounding. Whether it comes out
as 1 or as 1.0000000000000002 depends on the latitude alone, so the delivered
latitude is one at which it stays below 1 with room to spare.

The operations below follow the program's own order; changing it changes the
last bit and so the answer. Run with no argument, the tool prints the two
cosines of the delivered site and their distance from 1.
"""

import math
import sys
from dataclasses import dataclass
from decimal import Decimal, getcontext
from pathlib import Path

getcontext().prec = 50

DONNEES = Path(__file__).resolve().parent.parent / "data"

# The fifteen figures the program uses, not the full value.
PI = 3.14159265358979
QUINZE_PI = 47.12388980384685
JOUR_MOYEN = 0.99726957


class PointSingulier(Exception):
    """A formula met an argument it has no value for."""


class Calcul:
    """The elementary functions, with the program's two inverses built on them."""

    def sin(self, x):
        return math.sin(x)

    def cos(self, x):
        return math.cos(x)

    def atn(self, x):
        return math.atan(x)

    def arcsin(self, x):
        reste = 1.0 - x * x
        if reste <= 0.0:
            raise PointSingulier(f"arcsin({x!r})")
        return self.atn(x / math.sqrt(reste))

    def arccos(self, x):
        reste = 1.0 - x * x
        if reste < 0.0 or x == 0.0:
            raise PointSingulier(f"arccos({x!r})")
        return self.atn(math.sqrt(reste) / x)


class CalculSurveille(Calcul):
    """The same, noting in `ecart` the largest error met, in units of the last place.
    0.5 is a tie: a library that errs by up to e units gives the same bits as long
    as `ecart` stays below 1 - e."""

    def __init__(self):
        self.ecart = 0.0

    def note(self, valeur, exact):
        self.ecart = max(self.ecart, float(abs(Decimal(valeur) - exact)) / math.ulp(valeur))
        return valeur

    def sin(self, x):
        return self.note(math.sin(x), serie(Decimal(x), 1))

    def cos(self, x):
        return self.note(math.cos(x), serie(Decimal(x), 0))

    def atn(self, x):
        return self.note(math.atan(x), arctangente(Decimal(x)))


def serie(x, premier):
    """Taylor series of the sine (premier 1) or the cosine (premier 0)."""
    terme = x if premier else Decimal(1)
    somme, n = terme, premier
    while abs(terme) > Decimal("1e-45"):
        terme = -terme * x * x / ((n + 1) * (n + 2))
        somme += terme
        n += 2
    return somme


def arctangente(x):
    """Halve the angle six times, then the series."""
    for _ in range(6):
        x = x / (1 + (1 + x * x).sqrt())
    somme, puissance, n = Decimal(0), x, 1
    while abs(puissance) > Decimal("1e-45"):
        somme += puissance / n
        puissance = -puissance * x * x
        n += 2
    return somme * 64


@dataclass
class Site:
    """Longitude and latitude as typed: degrees carry the sign, minutes don't follow it."""

    longdeg: float
    longmin: int
    latdeg: float
    latmin: float

    @classmethod
    def livre(cls):
        lignes = (DONNEES / "config_altaz.ini").read_bytes().decode("cp1252").split("\r\n")
        return cls(float(lignes[0]), int(lignes[1]), float(lignes[2]), float(lignes[3]))

    def latrad(self):
        return ((self.latmin / 60.0 + self.latdeg) * PI) / 180.0


@dataclass
class Objet:
    """An object as its text fields hold it: hours, minutes, sign, degrees, minutes."""

    heures: float
    minutes: float
    signe: str
    degres: float
    minutesarc: float


def temps_local(site, tsg0, h, m, s, ms):
    """Local sidereal time in seconds, folded once as the program does."""
    ecoule = (h * 3600 + m * 60 + s + ms / 1000.0) / JOUR_MOYEN
    base = float(round(site.longdeg * 240 + site.longmin * 4) + tsg0)
    local = ecoule + base
    return local if local < 86400 else local - 86400


def calcul_equa(site, local, posaz, posalt, calcul=None):
    """Right ascension in hours (not reduced to a day), declination in degrees, and
    the cosine whose arccos is taken."""
    c = calcul or Calcul()
    p = site.latrad()
    if posaz == 648000.0:
        a = (posaz / 3600.0) * PI / 180.0
    else:
        a = ((posaz / 3600.0 - 180.0) * PI) / 180.0
    h = ((posalt / 3600.0) * PI) / 180.0
    s = c.sin(h) * c.sin(p) - (c.cos(h) * c.cos(p)) * c.cos(a)
    decrad = c.arcsin(s)
    decdeg = decrad * 180 / PI
    sinus = (c.sin(a) * c.cos(h)) / c.cos(decrad)
    h0 = c.arcsin(sinus)
    cosinus = ((c.sin(p) * c.cos(h)) * c.cos(a) + c.cos(p) * c.sin(h)) / c.cos(decrad)
    h1 = c.arccos(cosinus)
    u = (648000 * h1) / QUINZE_PI
    v = (648000 * (PI - h0)) / QUINZE_PI
    if sinus > 0:
        r = local - u if h1 > 0 else (local - u) - 43200
    else:
        r = local + u if h1 > 0 else local - v
    return r / 3600.0, decdeg, cosinus


def affiche_equa(adheures, decdeg):
    """The fields as written. A double's shortest decimal text reads back to the same
    double, so the fields are kept as numbers."""
    h = math.floor(adheures)
    if h != 24:
        m = (adheures - h) * 60
    else:
        h = 0
        m = (adheures - 24.0) * 60.0
    d = abs(decdeg)
    g = math.floor(d)
    return Objet(h, m, "+" if decdeg > 0 else "-", g, (d - g) * 60.0)


def calcul_altaz(site, local, objet, calcul=None):
    """posaz, posalt in arcseconds, and the cosine whose arccos is taken."""
    c = calcul or Calcul()
    ad = objet.heures * 3600 + objet.minutes * 60.0
    angle = (local - ad) * 15 / 3600 * PI / 180
    p = site.latrad()
    d = ((objet.minutesarc / 60.0 + objet.degres) * PI) / 180.0
    if objet.signe != "+":
        d = -d
    x = (c.cos(d) * c.cos(p)) * c.cos(angle) + c.sin(d) * c.sin(p)
    hautrad = c.arcsin(x)
    posalt = (hautrad * 180 / PI) * 3600
    sinus = (c.cos(d) * c.sin(angle)) / c.cos(hautrad)
    cosinus = ((c.cos(d) * c.sin(p)) * c.cos(angle) - c.sin(d) * c.cos(p)) / c.cos(hautrad)
    azbrut = c.arccos(cosinus)
    azbrutdeg = azbrut * 180 / PI
    if sinus > 0:
        azdeg = 180 + azbrutdeg if azbrut > 0 else 360 + azbrutdeg
    else:
        azdeg = -azbrutdeg - 180 if azbrut < 0 else -azbrutdeg
    if azdeg < 0:
        azdeg = azdeg + 180
    if azdeg > 360:
        azdeg = azdeg - 360
    return azdeg * 3600, posalt, cosinus


def depart(site, tsg0, instant, suivant, calcul=None):
    """A start of tracking without an object: telescope at azimuth 180, altitude 30
    degrees, the place computed at one instant (h, m, s, ms) and turned back at the
    next. Returns the two cosines; raises PointSingulier."""
    local = temps_local(site, tsg0, *instant)
    adheures, decdeg, cos1 = calcul_equa(site, local, 648000.0, 108000.0, calcul)
    objet = affiche_equa(adheures, decdeg)
    _, _, cos2 = calcul_altaz(site, temps_local(site, tsg0, *suivant), objet, calcul)
    return cos1, cos2


def principal():
    site = Site.livre()
    if len(sys.argv) == 3:
        site.latdeg, site.latmin = float(sys.argv[1]), float(sys.argv[2])
    surveille = CalculSurveille()
    cos1, cos2 = depart(site, 24000, (22, 0, 0, 0), (22, 0, 0, 0), surveille)
    unite = math.ulp(0.5)
    print(f"latitude {site.latdeg:g} deg {site.latmin:g} min")
    print(f"calcul_equa  cos {cos1!r}, {(1 - abs(cos1)) / unite:.0f} units below 1")
    print(f"calcul_altaz cos {cos2!r}, {(1 - abs(cos2)) / unite:.0f} units below 1")
    print(f"largest error of a function: {surveille.ecart:.3f} units, 0.5 being a tie")


if __name__ == "__main__":
    principal()
