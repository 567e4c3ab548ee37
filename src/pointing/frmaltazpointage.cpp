#include "pointing/frmaltazpointage.h"

#include "base/nombre.h"
#include "catalogue/selecteur.h"
#include "drive/position.h"
#include "fields/frmaltazpointage_champs.h"
#include "pointing/carte.h"
#include "pointing/pointage.h"
#include "slewing/etat_pointage.h"
#include "slewing/pointealtaz.h"

#include <cmath>

namespace frmaltazpointage {

namespace {

const char* const fichier = "pointagealtaz.ini";

catalogue::selecteur selecteur{.champs = choix, .premiere = 0};

void charge() {
    pointing::reticulevisible = false;
    pointing::stoppointage = false;
    reglages.optsscodeur.coche(true);
    catalogue::charge_etoiles(selecteur);
    catalogue::remplit_catalogues(selecteur);
    choix.Frame4.visible(false);
    pointing::charge_reglages(reglages, fichier);
}

// The telescope points there now, above the horizon or below. The sign is that of the whole degrees: without
// any the declination counts as negative.
void aligne() {
    const double heures = pointing::entiers(choix.tAD(0));
    const double minutes = pointing::entiers(choix.tAD(1));
    pointing::ciblead = {heures * 600 + minutes * 10, choix.tAD(0).lieu()};
    pointing::affiche_ad(choix, heures, minutes);
    const auto degres = pointing::entre_declinaison(choix);
    general::ecartalt = 0;
    general::ecartaz = 0;
    pointing::calchoriz({.heures = choix.tAD(0).nombre(),
                         .minutes = choix.tAD(1).nombre(),
                         .degres = std::abs(choix.tDec(0).nombre()),
                         .minutesarc = std::abs(choix.tDec(1).nombre()),
                         .positive = degres > 0});
    general::posalt = general::hautdeg * 3600;
    general::posaz = general::azdeg * 3600;
}

void pointe() {
    const auto objet = catalogue::position_choisie(selecteur);
    pointing::ciblead = objet.ad;
    pointing::cibledec = objet.dec;
    pointing::pointe_objet();
}

} // namespace

void branche() {
    fiche.au_chargement(charge);
    fiche.remise_a_zero([] { selecteur.memoire = {}; });
    catalogue::branche(selecteur);
    choix.lbObjets.au_double_clic(pointe);
    choix.bOK.au_clic(aligne);
    cmdpointage_graph.au_clic([] { pointing::ouvre_carte(pointing::operation::pointage, true); });
    reglages.cmdsave.au_clic([] { pointing::enregistre_vitesses(reglages, fichier); });
    reglages.Cmdquit.au_clic([] { fiche.decharge(); });
}

} // namespace frmaltazpointage
