#include "catalogue/selecteur.h"

#include "base/nombre.h"
#include "seam/plateforme.h"
#include "store/vue.h"

namespace catalogue {

using base::element;
using base::entier16;

namespace {

constexpr int autre = 0; // the line of the free entry

// XX is no object's code: a filter of one type is one of two of which the first never matches.
struct filtre {
    shell::entree champs_selecteur::*entree;
    const char* titre; // of the filter menu
    const char* premier;
    const char* second;
};
constexpr std::array<filtre, 8> filtres = {
    {{&champs_selecteur::mnuaucun, "filtre:[Aucun]", "", ""},
     {&champs_selecteur::mnugalaxies, "filtre:[Galaxies]", "XX", "GL"},
     {&champs_selecteur::mnuATous, "filtre:[Amas]", "OC", "GC"},
     {&champs_selecteur::mnuAOuverts, "filtre:[Ouverts]", "XX", "OC"},
     {&champs_selecteur::mnuAGlobul, "filtre:[Globualire]", "XX", "GC"}, // spelt so
     {&champs_selecteur::mnuNtoutes, "filtre:[Nébuleuses]", "PN", "DN"},
     {&champs_selecteur::mnuNPlanet, "filtre:[Planétaires]", "XX", "PN"},
     {&champs_selecteur::mnuNDiffus, "filtre:[Diffuses]", "XX", "DN"}}};

const filtre& filtre_de(entier16 n) { return filtres[static_cast<std::size_t>(n.valeur())]; }

void pose_filtre(selecteur& s, entier16 n, const char* titre) {
    (s.champs.*filtre_de(s.memoire.filtreobjets).entree).coche(false);
    s.champs.mnufilt.legende(titre);
    (s.champs.*filtre_de(n).entree).coche(true);
    s.memoire.filtreobjets = n;
}

// The catalogue of the line selected; the free entry has none.
void charge_objets(selecteur& s) {
    const int k = s.champs.lbCatalogue.position();
    s.champs.lbObjets.vide();
    if (k <= autre)
        return;
    const auto& e = element(entrees, k - 1 + s.premiere, "lbCatalogue");
    s.champs.lbObjets.ajoute(charge(e.fichier, s.memoire.objets));
}

void choisit_catalogue(selecteur& s) {
    if (s.champs.lbCatalogue.position() == autre) {
        s.champs.lbObjets.visible(false);
        s.champs.Frame4.visible(true);
        return;
    }
    s.champs.lbObjets.visible(true);
    pose_filtre(s, 0, "Filtre=[Aucun]");
    charge_objets(s);
}

void ote_filtre(selecteur& s) {
    pose_filtre(s, 0, filtre_de(0).titre);
    charge_objets(s);
}

void applique_filtre(selecteur& s, entier16 n) {
    auto& m = s.memoire;
    const auto& f = filtre_de(n);
    pose_filtre(s, n, f.titre);
    for (int k = 0; k <= m.nbfiltre.valeur(); ++k)
        element(m.mapfiltre, k, "mapfiltre") = 0;
    s.champs.lbObjets.vide();
    std::vector<std::string> noms;
    for (int i = 0; i < m.objets.nombre; ++i) {
        const auto place = static_cast<std::size_t>(i);
        if (m.objets.codes[place] != f.premier && m.objets.codes[place] != f.second)
            continue;
        m.mapfiltre[noms.size()] = {i, "mapfiltre"};
        noms.push_back(m.objets.noms[place]);
    }
    m.nbfiltre = {static_cast<int>(noms.size()) - 1, "nbfiltre"};
    s.champs.lbObjets.ajoute(std::move(noms));
}

// Place in the object arrays of the line selected.
int objet_choisi(const selecteur& s) {
    const int k = s.champs.lbObjets.position();
    return s.memoire.filtreobjets == 0 ? k : element(s.memoire.mapfiltre, k, "mapfiltre").valeur();
}

bool montre_des_etoiles(const selecteur& s) {
    return s.premiere == 0 && s.champs.lbCatalogue.position() == 1;
}

void ouvre_menu_objet(const selecteur& s) {
    if (s.champs.lbObjets.position() < 0)
        return;
    const int i = objet_choisi(s);
    s.champs.mnutype1.legende("TYPE:[" + nom_type(element(s.memoire.objets.codes, i, "lbObjets")) + "]");
    s.champs.mnuvoir.actif(a_photographie(element(s.memoire.objets.noms, i, "lbObjets")));
    s.champs.mnufiltre.ouvre();
}

// A flat comparison: no cosine of the declination, no fold at 0 hours. The first of equals stays.
void nomme_etoile_proche(const selecteur& s) {
    const auto& e = s.memoire.etoiles;
    const int i = objet_choisi(s);
    const double ad = element(s.memoire.objets.ad, i, "lbObjets").reel();
    const double dec = element(s.memoire.objets.dec, i, "lbObjets").reel();
    const auto distance = [&](std::size_t j) {
        const double x = (ad - e.ad[j].reel()) * 15; // to tenths of a minute of arc
        const double y = dec - e.dec[j].reel();
        return base::racine(x * x + y * y, "distance");
    };
    std::size_t proche = 0;
    double meilleure = distance(0);
    for (std::size_t j = 1; j < static_cast<std::size_t>(e.nombre); ++j)
        if (const double d = distance(j); d < meilleure) {
            meilleure = d;
            proche = j;
        }
    shell::vue_courante->message("L'ETOILE LA PLUS PROCHE EST:\r\n" + e.noms[proche] + "(" +
                                 constellation(e.codes[proche]) + ").");
}

} // namespace

void branche(selecteur& s) {
    auto& c = s.champs;
    c.lbCatalogue.au_clic([&s] { choisit_catalogue(s); });
    c.lbObjets.au_clic_droit([&s] {
        if (montre_des_etoiles(s))
            ouvre_menu_etoile(s, s.champs.lbObjets);
        else
            ouvre_menu_objet(s);
    });
    c.mnuaucun.au_clic([&s] { ote_filtre(s); });
    for (int i = 1; i < static_cast<int>(filtres.size()); ++i) {
        const entier16 n{i, "filtreobjets"};
        (c.*filtre_de(n).entree).au_clic([&s, n] { applique_filtre(s, n); });
    }
    c.mnunearest.au_clic([&s] { nomme_etoile_proche(s); });
}

std::vector<std::string> charge_etoiles(selecteur& s) {
    return charge(entrees.front().fichier, s.memoire.etoiles);
}

void remplit_catalogues(selecteur& s) {
    constexpr int messier = 1; // place in `entrees`
    s.champs.lbCatalogue.ajoute("Autre...");
    for (auto i = static_cast<std::size_t>(s.premiere); i < entrees.size(); ++i)
        s.champs.lbCatalogue.ajoute(entrees[i].titre);
    s.champs.lbCatalogue.position(1 + messier - s.premiere);
}

place position_choisie(const selecteur& s) {
    const int i = objet_choisi(s);
    return {element(s.memoire.objets.ad, i, "lbObjets"), element(s.memoire.objets.dec, i, "lbObjets")};
}

void ouvre_menu_etoile(const selecteur& s, shell::champ_liste& liste) {
    const auto& e = s.memoire.etoiles;
    const int k = liste.position();
    const auto constel = k >= 0 ? constellation(element(e.codes, k, "etoiles")) : std::string{};
    s.champs.mnutype.legende("in " + constel);
    const auto ad = partage(element(e.ad, k, "etoiles"));
    s.champs.mnuAD.legende("AD:" + texte_ad(ad));
    const auto dec = partage(element(e.dec, k, "etoiles"));
    s.champs.mnuDc.legende("Dec:" + texte_dec(dec));
    s.champs.mnuConst.ouvre();
}

} // namespace catalogue
