#include "settings/frmequaconfig.h"

#include "drive/mode_raquette.h"
#include "fields/frmequaconfig_champs.h"
#include "seam/plateforme.h"
#include "store/champs_fichier.h"

namespace frmequaconfig {

namespace {

const char* const fichier = "config_equa.ini";
const std::array<shell::champ_texte*, 4> champs = {&txtpasad, &txtpasdec, &txtRad, &txtRdec};

void charge() {
    fiche.largeur(3960);
    fiche.hauteur(3525);
    reglages::lit(fichier, champs);
}

void enregistre_et_ferme() {
    reglages::ecrit(fichier, champs);
    fiche.decharge();
}

} // namespace

void branche() {
    fiche.au_chargement(charge);
    cmdbacklash.au_clic(reglages::mesure_jeu);
    bFin.au_clic(enregistre_et_ferme);
}

} // namespace frmequaconfig
