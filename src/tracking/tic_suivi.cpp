#include "tracking/tic_suivi.h"

#include "base/nombre.h"
#include "drive/cmd_moteur.h"
#include "drive/position.h"
#include "fields/frmaltazsuivi_champs.h"
#include "sky/conversion.h"
#include "tracking/affichage_suivi.h"
#include "tracking/etat_suivi.h"
#include "tracking/fraction.h"
#include "tracking/horloge_suivi.h"

#include <cmath>

namespace tracking {

using cmd_moteur::nbpasalt;
using cmd_moteur::nbpasaz;
using general::ecartalt;
using general::ecartaz;

namespace {

constexpr double tour = 1296000;        // arcseconds
constexpr double passage_zero = 360000; // no object moves so far in a tick: it crossed azimuth 0

double pas_exacts(double ecart, double angle_par_pas, const char* quoi) {
    return base::fini(std::abs(base::divise(ecart, angle_par_pas, quoi)), quoi);
}

void lit_reglages() {
    incrementms = frmaltazsuivi::txtincrement.nombre16();
    frmaltazsuivi::timcompteur.intervalle(incrementms);
    cmd_moteur::tempoaz = frmaltazsuivi::txttempoa.nombre32();
    cmd_moteur::tempoalt = frmaltazsuivi::txttempoh.nombre32();
}

// The count of altitude is checked for 16 bits by its burst, after that of azimuth has gone out.
void compte_altitude(double altnew) {
    ecartalt = altnew - altold;
    const double pasexactalt = pas_exacts(ecartalt, general::angpasalt, "pas en altitude");
    nbpasalt = base::arrondi(pasexactalt);
    const double resteazalt = pasexactalt - nbpasalt;
    sommealt += resteazalt;
    nbpasalt += paie(sommealt);
}

void compte_azimut(double aznew) {
    const char* quoi = "pas en azimut";
    ecartaz = aznew - azold;
    if (std::abs(ecartaz) > passage_zero)
        ecartaz += ecartaz < 0 ? tour : -tour;
    const double pasexactaz = pas_exacts(ecartaz, general::angpasaz, quoi);
    nbpasaz = {pasexactaz, quoi};
    const double resteaz = pasexactaz - nbpasaz.reel();
    sommeaz += resteaz;
    nbpasaz = {nbpasaz + paie(sommeaz), quoi};
}

} // namespace

void tic() {
    lit_reglages();
    recale_horloge();
    avance_horloge();
    general::calcul_altaz();
    const double altnew = general::posalt;
    const double aznew = general::posaz;
    compte_altitude(altnew);
    compte_azimut(aznew);
    affiche();
    altold = altnew;
    azold = aznew;
    cmd_moteur::rafaleaz();
    cmd_moteur::rafalealt();
    frmaltazsuivi::timcompteur.marche(true);
}

void efface_sommes() {
    nbpasaz = 0;
    nbpasalt = 0;
    sommeaz = 0;
    sommealt = 0;
}

void part_d_ici() {
    altold = general::posalt;
    azold = general::posaz;
}

void oublie_position() {
    altold = 0;
    azold = 0;
}

} // namespace tracking
