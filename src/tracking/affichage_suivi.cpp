#include "tracking/affichage_suivi.h"

#include "drive/etat_moteur.h"
#include "drive/position.h"
#include "fields/frmaltazsuivi_champs.h"
#include "fields/frmcoord_champs.h"
#include "sky/affichage.h"
#include "sky/temps_sideral.h"
#include "tracking/etat_suivi.h"

#include <cmath>

namespace tracking {

using namespace frmaltazsuivi;
using general::posalt;
using general::posaz;

namespace {

double degres_entiers(double arcsec) { return std::floor(arcsec / 3600); }

// Minutes of arc above the whole degrees, with their decimals.
double minutes(double arcsec) { return (arcsec - degres_entiers(arcsec) * 3600) / 60; }

void affiche_temps_sideral() {
    const double t = general::tslsec.reel();
    const double h = std::floor(t / 3600);
    const double min = std::floor((t - 3600 * h) / 60);
    txth2.ecrit(h);
    txtmin2.ecrit(min);
    txts2.ecrit(t - 3600 * h - 60 * min);
}

void affiche_sur_frmcoord() {
    general::ecritdms(posaz, frmcoord::txtcoordaz1, frmcoord::txtcoordaz2, frmcoord::txtcoordaz3);
    if (posalt > 0) {
        general::ecritdms(posalt, frmcoord::txtcoordalt1, frmcoord::txtcoordalt2, frmcoord::txtcoordalt3);
        return;
    }
    const double x = 60 - minutes(posalt);
    frmcoord::txtcoordalt1.ecrit(degres_entiers(posalt));
    frmcoord::txtcoordalt2.ecrit(std::floor(x));
    frmcoord::txtcoordalt3.ecrit(std::floor(60 * x - 60 * std::floor(x)));
}

} // namespace

void affiche() {
    affiche_temps_sideral();
    txtna.ecrit(cmd_moteur::nbpasaz);
    txtnh.ecrit(cmd_moteur::nbpasalt);
    txtah.ecrit(degres_entiers(posaz));
    txthh.ecrit(degres_entiers(posalt));
    txtamin.ecrit(minutes(posaz));
    txthmin.ecrit(posalt > 0 ? minutes(posalt) : 60 - minutes(posalt));
    affiche_sur_frmcoord();
    txtsommea.ecrit(sommeaz);
    txtsommeh.ecrit(sommealt);
}

} // namespace tracking
