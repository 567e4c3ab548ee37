"""The nights of tests/nuits: star, site and universal time, read from the scenarios and the delivered data."""

import re
from dataclasses import dataclass
from datetime import datetime, timedelta
from pathlib import Path

RACINE = Path(__file__).resolve().parent.parent
DOSSIER = RACINE / "tests" / "nuits"
EPHEMERIDES = RACINE / "docs" / "suivi" / "ephemerides.csv"
HEURES = 10
MINUTES = HEURES * 60


@dataclass
class Nuit:
    nom: str
    scenario: str  # its text
    etoile: str
    ad: float  # degrees, as the catalogue has it, taken for the equinox of date
    dec: float
    depart: datetime  # universal time


def commande(texte, debut):
    return re.search(rf"^{re.escape(debut)} (.+)$", texte, re.MULTILINE).group(1)


def site():
    """East longitude and north latitude, degrees, as delivered."""
    lignes = (RACINE / "data" / "config_altaz.ini").read_text("cp1252").split()
    return float(lignes[0]) + float(lignes[1]) / 60, float(lignes[2]) + float(lignes[3]) / 60


def pas():
    """Arcseconds a step of azimuth and altitude, as delivered."""
    _, _, _, _, pas_az, pas_alt, r_alt, r_az = map(
        float, (RACINE / "data" / "config_altaz.ini").read_text("cp1252").split())
    return 648000 / (pas_az * r_az), 648000 / (pas_alt * r_alt)


def lit(nom):
    texte = (DOSSIER / f"{nom}.scn").read_text("utf-8")
    civil = datetime.fromisoformat(commande(texte, "horloge"))
    decalage = 2 if 5 <= civil.month <= 10 else 1  # the season goes by the month
    rang = int(commande(texte, "choisit frmconfig.lbObjets"))
    etoile, _, ad, dec = (RACINE / "data" / "5magstar.cat").read_text("cp1252").splitlines()[rang].split(",")[:4]
    return Nuit(nom, texte, etoile, int(ad) / 40, int(dec) / 600, civil - timedelta(hours=decalage))


def toutes():
    return [lit(p.stem) for p in sorted(DOSSIER.glob("*.scn"))]
