"""The plot of rapport_suivi.py: the error of both axes over the night, a frame for each star, as SVG."""

import math

LARGEUR, HAUTEUR, MARGE, TITRE = 560, 190, 52, 30
COULEURS = (("#1f5fa8", "azimut × cos(altitude)"), ("#c2410c", "altitude"))


def graduation(etendue):
    """A step of 1, 2 or 5 times a power of ten that gives at most six lines."""
    brut = etendue / 6
    puissance = 10 ** math.floor(math.log10(brut))
    return next(k * puissance for k in (1, 2, 5, 10) if k * puissance >= brut)


def nombre(x):
    return f"{x:g}".replace("-", "−").replace(".", ",")


def erreurs(mesures):
    """Hours, and both errors across the sky before the tick."""
    for m in mesures:
        yield m.minute / 60, (m.avant[0] * math.cos(math.radians(m.alt / 3600)), m.avant[1])


def cadre(nuit, mesures, y0, pas):
    points = list(erreurs(mesures))
    haut = max(max(abs(e) for _, couple in points for e in couple), 2 * max(pas))
    heures = points[-1][0]
    x = lambda h: MARGE + h / heures * (LARGEUR - MARGE - 15)
    y = lambda e: y0 + TITRE + (1 - e / haut) * (HAUTEUR - TITRE - 25) / 2
    lignes = [f'<text x="{MARGE}" y="{y0 + 20}" font-weight="bold">{nuit.etoile}, '
              f'{nuit.depart:%d/%m/%Y} à partir de {nuit.depart:%H:%M} TU</text>']
    g = graduation(2 * haut)
    for k in range(math.ceil(-haut / g), math.floor(haut / g) + 1):
        trait = "#888" if k == 0 else "#ddd"
        lignes.append(f'<line x1="{MARGE}" x2="{LARGEUR - 15}" y1="{y(k * g):.1f}" y2="{y(k * g):.1f}" '
                      f'stroke="{trait}"/>')
        lignes.append(f'<text x="{MARGE - 6}" y="{y(k * g) + 4:.1f}" text-anchor="end">{nombre(k * g)}″</text>')
    for h in range(0, math.ceil(heures) + 1, 2):
        lignes.append(f'<text x="{x(min(h, heures)):.1f}" y="{y0 + HAUTEUR - 8}" text-anchor="middle">{h} h</text>')
    for axe, (couleur, _) in enumerate(COULEURS):
        trace_ = " ".join(f"{x(h):.1f},{y(e[axe]):.1f}" for h, e in points)
        lignes.append(f'<polyline fill="none" stroke="{couleur}" stroke-width="1" points="{trace_}"/>')
    return lignes


def trace(courbes, pas):
    total = HAUTEUR * len(courbes) + 30
    lignes = [f'<svg xmlns="http://www.w3.org/2000/svg" width="{LARGEUR}" height="{total}" '
              f'viewBox="0 0 {LARGEUR} {total}" font-family="sans-serif" font-size="11">',
              f'<rect width="{LARGEUR}" height="{total}" fill="white"/>']
    for i, (couleur, nom) in enumerate(COULEURS):
        lignes.append(f'<text x="{MARGE + 180 * i}" y="18" fill="{couleur}">{nom}</text>')
    lignes.append(f'<text x="{LARGEUR - 15}" y="18" text-anchor="end">monture moins étoile</text>')
    for i, (nuit, mesures) in enumerate(courbes):
        lignes += cadre(nuit, mesures, 30 + i * HAUTEUR, pas)
    return "\n".join(lignes + ["</svg>"]) + "\n"
