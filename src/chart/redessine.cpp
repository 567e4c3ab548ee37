#include "chart/redessine.h"

#include "base/nombre.h"
#include "chart/astres_carte.h"
#include "chart/etat_carte.h"
#include "chart/vue_carte.h"
#include "fields/frmCercle_champs.h"
#include "sky/math.h"
#include "slewing/etat_pointage.h"

#include <cmath>

namespace chart {

using plateforme::couleur;
using plateforme::toile;

namespace {

constexpr couleur noir{0, 0, 0};
constexpr couleur gris_repere{160, 160, 160};
constexpr couleur rouge_reticule{255, 0, 0};
constexpr couleur contour_etoile{240, 240, 240};
constexpr couleur fond_etoile{250, 250, 250};
constexpr couleur bleu_figure{160, 160, 220};
constexpr couleur vert{0, 255, 0};
constexpr couleur orange{250, 140, 0};
constexpr couleur rose{250, 0, 220};

struct signe {
    const char* type;
    couleur contour;
    couleur fond;
    int filtre; // the one that shows this type alone or with its like
};
constexpr signe signes[] = {
    {"GL", vert, vert, 2}, {"OC", orange, noir, 3}, {"GC", orange, orange, 3},
    {"PN", rose, noir, 4}, {"DN", rose, rose, 4},
};

// Groups of stars and unknown types have no sign of their own.
const signe* signe_de(const std::string& type) {
    for (const auto& s : signes)
        if (type == s.type)
            return &s;
    return nullptr;
}

void accorde_legendes() {
    for (int z = 1; z <= zoom_maximum; ++z)
        frmCercle::entree_zoom(z).coche(false);
    frmCercle::entree_zoom(zoomcercle.valeur()).coche(true);
    const auto echelle = base::texte_signe(zoomcercle.reel()) + ":1";
    frmCercle::mnuZ.legende("Zoom (" + echelle + ")");
    frmCercle::fiche.legende("Visualisation graphique [" + echelle + "]");
}

// Moves with the pan and keeps its size at every zoom.
void dessine_repere(toile& t) {
    const double cx = offsetx + rayon_unite;
    const double cy = offsety + rayon_unite;
    t.contour(gris_repere);
    t.fond(gris_repere);
    t.plein(false);
    for (const double rayon : {4500, 3000, 1500})
        t.cercle(cx, cy, rayon);
    t.ligne(offsetx, cy, offsetx + 2 * rayon_unite, cy);
    t.ligne(cx, offsety, cx, offsety + 2 * rayon_unite);
}

// Full or hollow as the last drawing left it.
void dessine_reticule(toile& t) {
    constexpr double dehors = 150;
    constexpr double dedans = 50;
    const auto [x, y] = projette(pointing::reticulead, pointing::reticuledec);
    t.contour(rouge_reticule);
    t.fond(noir);
    t.cercle(x, y, dehors);
    t.ligne(x + dedans, y, x + dehors, y);
    t.ligne(x - dehors, y, x - dedans, y);
    t.ligne(x, y + dedans, x, y + dehors);
    t.ligne(x, y - dehors, x, y - dedans);
}

// Keeps a record read with its place on the chart.
astre_carte& range(astre_carte& entree, catalogue::astre& lu) {
    std::swap(entree.nom, lu.nom);
    std::swap(entree.code, lu.code);
    entree.ad = lu.ad;
    entree.dec = lu.dec;
    const auto p = projette(lu.ad, lu.dec);
    entree.x = p.x;
    entree.y = p.y;
    return entree;
}

void dessine_etoiles(toile& t) {
    constexpr double rayon = 25;
    constexpr double ecart_lettre = 50;
    t.contour(contour_etoile);
    t.fond(fond_etoile);
    t.plein(true);
    catalogue::parcourt("vstar.cat", astres.etoiles.size(), [&](std::size_t i, catalogue::astre& lu) {
        const auto& e = range(astres.etoiles[i], lu);
        t.cercle(e.x, e.y, rayon);
        if (!lettresgrecques)
            return;
        if (auto lettre = catalogue::lettregrecque(e.nom); lettre != " ")
            t.texte(e.x + ecart_lettre, e.y + ecart_lettre, std::move(lettre));
    });
}

// A place past the last star of the file stands for the point of coordinates 0, or for what it held before.
void dessine_figures(toile& t) {
    const auto extremite = [](base::entier32 i) {
        const auto& e = base::element(astres.etoiles, i.valeur(), "vconst.cat, étoile");
        return projette(e.ad, e.dec);
    };
    for (const auto& trait : catalogue::lit_traits()) {
        const auto de = extremite(trait.de);
        const auto a = extremite(trait.a);
        t.ligne(de.x, de.y, a.x, a.y, bleu_figure);
    }
}

// With all types shown, one without a sign takes the colours of what was drawn before it.
void dessine_objets(toile& t) {
    constexpr int tous = 1;
    const int filtre = filtrecercle.valeur();
    const double rayon = filtre * 5 + 25;
    t.plein(true);
    catalogue::parcourt(cataloguecercle + ".cat", astres.objets.size(),
                        [&](std::size_t i, catalogue::astre& lu) {
                            const auto& o = range(astres.objets[i], lu);
                            const auto* s = signe_de(o.code);
                            if (filtre != tous && (!s || s->filtre != filtre))
                                return;
                            if (s) {
                                t.contour(s->contour);
                                t.fond(s->fond);
                            }
                            t.cercle(o.x, o.y, rayon);
                        });
}

} // namespace

point projette(double ad, double dec) {
    constexpr double unites_par_degre_ad = 40;
    constexpr double unites_par_degre = 600;
    const double angle = math::radians(ad / unites_par_degre_ad + rotcercle.reel());
    const double r = (90 - dec / unites_par_degre) * rayoncercle / 90;
    return {base::fini(offsetx + rayon_unite + std::floor(std::cos(angle) * r), "carte, abscisse"),
            base::fini(offsety + rayon_unite + std::floor(std::sin(angle) * r), "carte, ordonnée")};
}

void redessine() {
    auto& t = frmCercle::ciel.toile();
    t.efface();
    accorde_legendes();
    if (reperevisible)
        dessine_repere(t);
    if (pointing::reticulevisible)
        dessine_reticule(t);
    dessine_etoiles(t);
    if (constvisible)
        dessine_figures(t);
    if (filtrecercle != 0)
        dessine_objets(t);
    frmCercle::ciel.peint();
}

} // namespace chart
