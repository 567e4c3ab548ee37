#include "chart/frmCercle.h"

#include "base/nombre.h"
#include "catalogue/catalogue.h"
#include "chart/astres_carte.h"
#include "chart/etat_carte.h"
#include "chart/frmImage.h"
#include "chart/redessine.h"
#include "chart/vue_carte.h"
#include "fields/frmCercle_champs.h"
#include "fields/frmLegend_champs.h"
#include "fields/frmaltazpointage_champs.h"
#include "fields/frmequapointage_champs.h"
#include "slewing/etat_pointage.h"
#include "slewing/pointeequa.h"
#include "store/touches.h"

namespace frmCercle {

using chart::espece;
using chart::redessine;

namespace {

// The last press of the mouse, chart units: the menu's commands come later.
struct {
    float x = 0;
    float y = 0;
} presse;

struct choix_catalogue {
    entree& menu;
    const char* nom;
};
const choix_catalogue catalogues[] = {
    {mnuMessier, "messier"}, {mnuIc, "ic"},     {mnuNgc0, "ngc0"}, {mnuNgc1, "ngc1"}, {mnuNgc2, "ngc2"},
    {mnuNgc3, "ngc3"},       {mnuNgc4, "ngc4"}, {mnuNgc5, "ngc5"}, {mnuNgc6, "ngc6"}, {mnuNgc7, "ngc7"},
};

// In the order of `filtrecercle`.
entree* const filtres[] = {&mnuaucun, &mnuTous, &mnuGalaxie, &mnuAmas, &mnuNebuleuse};

constexpr std::int16_t pas_de_rotation = 10; // degrees, by menu or key

chart::pris pris_a_la_presse() { return chart::procheobjet(presse.x, presse.y); }

const chart::astre_carte& objet(int i) {
    return base::element(chart::astres.objets, i, "objets de la carte");
}
const chart::astre_carte& etoile(int i) {
    return base::element(chart::astres.etoiles, i, "étoiles de la carte");
}

void charge() {
    chart::initialise_vue();
    chart::libere_astres();
    redessine();
}

// ---- the popup

void ouvre_sur_rien() {
    mnuNom.legende("aucun objet");
    mnuPoint.actif(false);
    mnuName.ouvre();
    mnuPoint.actif(true);
}

void ouvre_sur_etoile(const chart::astre_carte& a) {
    mnuNom.legende(a.nom + " [" + catalogue::constellation(a.code) + "].");
    mnuvoir.actif(false);
    mnuName.ouvre(&mnuNom);
}

void ouvre_sur_objet(const chart::astre_carte& a) {
    mnuNom.legende(a.nom);
    mnuvoir.actif(catalogue::a_photographie(a.nom));
    mnuName.ouvre(&mnuNom);
}

void appuie(souris s) {
    constexpr int droit = 2;
    presse = {s.x, s.y};
    if (s.bouton != droit)
        return;
    const auto p = pris_a_la_presse();
    switch (p.quoi) {
    case espece::aucune:
        return ouvre_sur_rien();
    case espece::etoile:
        return ouvre_sur_etoile(etoile(p.indice));
    case espece::objet:
        return ouvre_sur_objet(objet(p.indice));
    }
}

// Flag and tick each from its own value: they can stand opposite.
void bascule(base::booleen16& drapeau, entree& e) {
    drapeau = !drapeau;
    redessine();
    e.coche(!e.coche());
}

void choisit_catalogue(const choix_catalogue& choix) {
    if (chart::cataloguecercle == choix.nom)
        return;
    chart::cataloguecercle = choix.nom;
    for (const auto& c : catalogues)
        c.menu.coche(false);
    choix.menu.coche(true);
    redessine();
}

void choisit_filtre(int n) {
    chart::filtrecercle = {n, "filtrecercle"};
    for (auto* e : filtres)
        e->coche(false);
    filtres[n]->coche(true);
    redessine();
}

void tourne(base::entier16 degres) {
    chart::tourne(degres);
    redessine();
}

void bascule_legende() {
    if (Label1.legende() == fleches::ouvre) {
        Label1.legende(fleches::referme);
        frmLegend::fiche.montre();
    } else {
        Label1.legende(fleches::ouvre);
        frmLegend::fiche.decharge();
    }
}

// ---- the hand-over to the pointing panels

// In the labels of the panel in use.
void affiche_position(double ad, double dec) {
    auto& choix = pointing::panneaualtaz ? frmaltazpointage::choix : frmequapointage::choix;
    choix.tADpos.legende(catalogue::texte_ad(catalogue::partage(ad)));
    choix.tdcpos.legende(catalogue::texte_dec_objet(dec));
}

void opere() {
    const auto p = pris_a_la_presse();
    const auto& a = p.quoi == espece::objet ? objet(p.indice) : etoile(p.indice);
    const double ad = a.ad;
    const double dec = a.dec;
    fiche.decharge();
    if (pointing::modepointage)
        pointe(ad, dec, p.quoi == espece::objet ? chart::cataloguecercle + ".cat" : "vstar.cat");
    else
        aligne(ad, dec);
}

// ---- keys

// Whatever the key, a redraw.
void frappe(touche t) {
    const double pas = t.ctrl ? 250 : t.maj ? 500 : 0;
    const int zoom = chart::zoomcercle.valeur();
    switch (t.code) {
    case touches::droite:
        chart::offsetx -= pas;
        break;
    case touches::gauche:
        chart::offsetx += pas;
        break;
    case touches::haut:
        chart::offsety += pas;
        break;
    case touches::bas:
        chart::offsety -= pas;
        break;
    case touches::debut:
        chart::raz_vue();
        break;
    case touches::page_haut:
        if (zoom < chart::zoom_maximum)
            chart::zoome({zoom + 1, "zoomcercle"});
        break;
    case touches::page_bas:
        if (zoom > 1)
            chart::zoome({zoom - 1, "zoomcercle"});
        break;
    case touches::fin:
        chart::tourne(-pas_de_rotation);
        break;
    case touches::supprime:
        chart::tourne(pas_de_rotation);
        break;
    default:
        break;
    }
    redessine();
}

void branche_menu() {
    mnuvoir.au_clic([] { frmImage::montre(objet(pris_a_la_presse().indice).nom); });
    mnuRep.au_clic([] { bascule(chart::reperevisible, mnuRep); });
    mnuConst.au_clic([] { bascule(chart::constvisible, mnuConst); });
    for (const auto& c : catalogues)
        c.menu.au_clic([&c] { choisit_catalogue(c); });
    for (int n = 0; n < static_cast<int>(std::size(filtres)); ++n)
        filtres[n]->au_clic([n] { choisit_filtre(n); });
    for (std::int16_t z = 1; z <= chart::zoom_maximum; ++z)
        entree_zoom(z).au_clic([z] {
            chart::zoome(z);
            redessine();
        });
    mnuRaz.au_clic([] {
        chart::raz_vue();
        redessine();
    });
    mnuCw.au_clic([] { tourne(pas_de_rotation); });
    mnuCcw.au_clic([] { tourne(-pas_de_rotation); });
    mnuPoint.au_clic(opere);
}

} // namespace

// The chart's slew is the equatorial one, for either panel.
void pointe(double ad, double dec, const base::lieu& ou) {
    pointing::ciblead = {ad, ou};
    pointing::cibledec = {dec, ou};
    pointing::pointeequa();
    affiche_position(pointing::ciblead.reel(), pointing::cibledec.reel());
    pointing::reticulead = pointing::ciblead.reel();
    pointing::reticuledec = pointing::cibledec.reel();
}

void aligne(double ad, double dec) {
    pointing::reticulead = ad;
    pointing::reticuledec = dec;
    affiche_position(ad, dec);
    pointing::reticulevisible = true;
    if (!pointing::panneaualtaz)
        frmequapointage::picpointage.visible(true);
}

void branche() {
    fiche.au_chargement(charge);
    fiche.remise_a_zero([] {
        presse = {};
        chart::astres = {};
    });
    ciel.a_la_souris(appuie);
    ciel.a_la_touche(frappe);
    bEsc.au_clic([] { fiche.decharge(); });
    Label1.au_clic(bascule_legende);
    branche_menu();
}

} // namespace frmCercle
