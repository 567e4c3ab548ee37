#include "slewing/pointealtaz.h"

#include "base/nombre.h"
#include "catalogue/catalogue.h"
#include "drive/cmd_moteur.h"
#include "drive/position.h"
#include "fields/frmDepl_champs.h"
#include "fields/frmaltazpointage_champs.h"
#include "seam/plateforme.h"
#include "sky/affichage.h"
#include "sky/temps_sideral.h"
#include "slewing/etat_pointage.h"
#include "slewing/impulsions.h"
#include "store/vue.h"

#include <cmath>

namespace pointing {

using base::entier16;
using base::entier32;
using general::posalt;
using general::posaz;

namespace {

constexpr double ecart_tolere = 120; // arcseconds
constexpr double barre_pleine = 99;  // percent
constexpr entier16 aucun_sens = 0;
constexpr entier16 pas_azimut = plateforme::ligne_pas_az;
constexpr entier16 pas_altitude = plateforme::ligne_pas_alt;

// Rounded down, so that a small way back counts 2 and a small way forth 0.
double compte(double distance, double angle_par_pas, const char* quoi) {
    return base::fini(2 * std::abs(std::floor(base::divise(distance, angle_par_pas, quoi))), quoi);
}

void rapproche(double& position, double cible, double angle_par_pas, double impulsions) {
    const double chemin = (impulsions / 2) * angle_par_pas;
    position = position < cible ? position + chemin : position - chemin;
}

// An axis has arrived if its bar says so: a count of 0 never wrote it.
void avance_position(double impulsions) {
    if (frmDepl::ProgressBaraz.valeur() < barre_pleine) {
        rapproche(posaz, cibleaz, general::angpasaz, impulsions);
        return;
    }
    posaz = cibleaz;
    if (frmDepl::ProgressBaralt.valeur() >= barre_pleine)
        posalt = ciblealt;
    else
        rapproche(posalt, ciblealt, general::angpasalt, impulsions);
}

} // namespace

void calchoriz(const general::objet& o) { general::vers_horizon(general::lit_tsl(), o); }

void affichecible() {
    using namespace frmaltazpointage;
    general::ecritdms(cibleaz, txtcoordaz1, txtcoordaz2, txtcoordaz3);
    general::ecritdms(ciblealt, txtcoordalt1, txtcoordalt2, txtcoordalt3);
}

void pointealtaz() {
    general::ecartalt = 0;
    general::ecartaz = 0;
    calchoriz({.heures = ciblehr,
               .minutes = ciblemin,
               .degres = std::abs(cibledeg.reel()),
               .minutesarc = std::abs(cibledegmin),
               .positive = cibledeg > 0});
    ciblealt = general::hautdeg * 3600;
    cibleaz = general::azdeg * 3600;
    affichecible();
    if (ciblealt < 0) {
        shell::vue_courante->message("déplacement impossible : altitude négative !", shell::titre::aucun);
        distaz = 0;
        distalt = 0;
        return;
    }
    distaz = base::fini(cibleaz - posaz, "distaz");
    distalt = base::fini(ciblealt - posalt, "distalt");
    frmaltazpointage::txtdistaz.ecrit(distaz);
    frmaltazpointage::txtdistalt.ecrit(distalt);
    cmd_moteur::classevitaz = {frmaltazpointage::reglages.cbpointaz.position(), "cbpointaz"};
    cmd_moteur::classevitalt = {frmaltazpointage::reglages.cbpointalt.position(), "cbpointalt"};
    const double nbaz = compte(distaz, general::angpasaz, "nbaz");
    const entier32 nbalt{compte(distalt, general::angpasalt, "nbalt"), "nbalt"};
    cmd_moteur::cmdsens = 1;
    cmd_moteur::tempoaltaz();
    frmDepl::fiche.montre();
    double i = 0;
    envoie(nbaz, aucun_sens, pas_azimut, frmDepl::ProgressBaraz, i);
    if (!stoppointage) {
        cmd_moteur::cmdsens = 3;
        cmd_moteur::tempoaltaz();
        envoie(nbalt.reel(), aucun_sens, pas_altitude, frmDepl::ProgressBaralt, i);
    }
    avance_position(i);
}

void pointe_objet() {
    const auto ad = catalogue::partage(ciblead);
    ciblehr = ad.entiers;
    ciblemin = ad.minutes;
    const auto dec = catalogue::partage(cibledec);
    cibledeg = {dec.entiers, "cibledeg"};
    cibledegmin = cibledeg < 0 ? std::abs(dec.minutes) : dec.minutes;
    frmaltazpointage::choix.tADpos.legende(catalogue::texte_ad(ad));
    frmaltazpointage::choix.tdcpos.legende(catalogue::texte_dec({dec.entiers, cibledegmin}));
    distaz = ecart_tolere + 1;
    distalt = ecart_tolere + 1;
    base::booleen16 arrete;
    // A stop asked for before the pass leaves it without a pulse, and its differences as they are.
    while (!arrete && (std::abs(distalt) >= ecart_tolere || std::abs(distaz) >= ecart_tolere)) {
        pointealtaz();
        arrete = stoppointage;
    }
    frmDepl::fiche.decharge();
    stoppointage = false;
}

} // namespace pointing
