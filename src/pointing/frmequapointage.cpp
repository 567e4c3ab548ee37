#include "pointing/frmequapointage.h"

#include "base/nombre.h"
#include "base/valeurs.h"
#include "catalogue/selecteur.h"
#include "fields/frmequapointage_champs.h"
#include "pointing/carte.h"
#include "pointing/pointage.h"
#include "seam/image.h"
#include "seam/plateforme.h"
#include "slewing/etat_pointage.h"
#include "slewing/pointeequa.h"

namespace frmequapointage {

using base::entier16;
using base::entier32;
using plateforme::imagesboutons;
using pointing::ciblead;
using pointing::cibledec;

namespace {

const char* const fichier = "pointagequa.ini";
const char* const fichier_inversion = "inversion_point.ini";
constexpr int etoile_de_depart = 35;

/// A drawn button: its faces' places in `imagesboutons`, and what the chart is opened for.
struct bouton_dessine {
    champ_image& image;
    champ_etiquette& etiquette;
    std::size_t repos;
    std::size_t appui;
    pointing::operation operation;
};
const bouton_dessine initialisation{Picinit, lblinit, 2, 3, pointing::operation::initialisation};
const bouton_dessine pointage{picpointage, lblpointage, 4, 5, pointing::operation::pointage};

catalogue::selecteur selecteur{.champs = choix, .premiere = 1};

// The check boxes take the file's values; the slew's own inversion waits for the save button.
void charge_inversion() {
    valeurs::lecteur f{plateforme::fichier_donnees(fichier_inversion)};
    const bool ad = f.vrai();
    const bool dec = f.vrai();
    chkpointad.coche(ad);
    chkpointdec.coche(dec);
}

void charge() {
    pointing::stoppointage = false;
    charge_inversion();
    pointing::reticulevisible = false;
    reglages.optsscodeur.coche(true);
    Picinit.image(imagesboutons[initialisation.repos]);
    picpointage.image(imagesboutons[pointage.repos]);
    lbEtoiles.ajoute(catalogue::charge_etoiles(selecteur));
    catalogue::remplit_catalogues(selecteur);
    lbEtoiles.position(etoile_de_depart, catalogue::entrees.front().fichier);
    choix.lbObjets.visible(false);
    choix.lbCatalogue.visible(false);
    choix.Frame4.visible(false);
    pointing::charge_reglages(reglages, fichier);
}

// Reached or stopped on its way, the telescope is taken to point at the target.
void croit_la_cible() {
    pointing::reticulead = ciblead.reel();
    pointing::reticuledec = cibledec.reel();
}

void pointe_objet() {
    const auto objet = catalogue::position_choisie(selecteur);
    pointing::ciblead = objet.ad;
    pointing::cibledec = objet.dec;
    pointing::pointeequa();
    choix.tADpos.legende(catalogue::texte_ad(catalogue::partage(ciblead)));
    choix.tdcpos.legende(catalogue::texte_dec_objet(cibledec.reel()));
    croit_la_cible();
}

void pointe_entree() {
    const auto ou_h = choix.tAD(0).lieu();
    const auto ou_m = choix.tAD(1).lieu();
    const entier16 heures{pointing::entiers(choix.tAD(0)), ou_h};
    const entier16 minutes{pointing::entiers(choix.tAD(1)), ou_m};
    const entier16 dixiemes_h{heures * 600, ou_h}; // in 16 bits, each step
    const entier16 dixiemes_m{minutes * 10, ou_m};
    ciblead = entier16{dixiemes_h + dixiemes_m, ou_h};
    pointing::affiche_ad(choix, heures.reel(), minutes.reel());
    pointing::entre_declinaison(choix);
    pointing::pointeequa();
    croit_la_cible();
}

void aligne_sur_etoile() {
    const int k = lbEtoiles.position();
    const entier32 ad = base::element(selecteur.memoire.etoiles.ad, k, "lbEtoiles");
    const entier32 dec = base::element(selecteur.memoire.etoiles.dec, k, "lbEtoiles");
    pointing::reticulead = ad.reel();
    pointing::reticuledec = dec.reel();
    choix.tADpos.legende(catalogue::texte_ad(catalogue::partage(ad)));
    choix.tdcpos.legende(catalogue::texte_dec_etoile(dec.reel()));
    pointing::reticulevisible = true;
    choix.lbCatalogue.visible(true);
    choix.lbObjets.visible(true);
}

void enregistre() {
    pointing::enregistre_vitesses(reglages, fichier);
    pointing::invpointad = chkpointad.coche();
    pointing::invpointdec = chkpointdec.coche();
    valeurs::ecrivain f;
    f.booleen(pointing::invpointad);
    f.booleen(pointing::invpointdec);
    f.enregistre(plateforme::fichier_donnees(fichier_inversion));
}

void quitte() {
    pointing::panneaualtaz = true;
    fiche.decharge();
}

// A click on the label is one on the picture, also where a scenario names the label.
void branche_dessine(const bouton_dessine& b) {
    b.image.a_l_appui([&b] { b.image.image(imagesboutons[b.appui]); });
    b.image.au_relachement([&b] {
        b.image.image(imagesboutons[b.repos]);
        pointing::ouvre_carte(b.operation, false);
    });
    b.etiquette.a_l_appui([&b] { b.image.appuie(); });
    b.etiquette.au_relachement([&b] { b.image.relache(); });
}

} // namespace

void branche() {
    fiche.au_chargement(charge);
    fiche.remise_a_zero([] { selecteur.memoire = {}; });
    catalogue::branche(selecteur);
    lbEtoiles.au_double_clic(aligne_sur_etoile);
    lbEtoiles.au_clic_droit([] { catalogue::ouvre_menu_etoile(selecteur, lbEtoiles); });
    choix.lbObjets.au_double_clic(pointe_objet);
    choix.bOK.au_clic(pointe_entree);
    branche_dessine(initialisation);
    branche_dessine(pointage);
    reglages.cmdsave.au_clic(enregistre);
    reglages.Cmdquit.au_clic(quitte);
}

} // namespace frmequapointage
