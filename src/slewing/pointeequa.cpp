#include "slewing/pointeequa.h"

#include "base/nombre.h"
#include "base/valeurs.h"
#include "drive/cmd_moteur.h"
#include "fields/frmDepl_champs.h"
#include "fields/frmequapointage_champs.h"
#include "seam/plateforme.h"
#include "slewing/etat_pointage.h"
#include "slewing/impulsions.h"

#include <cmath>

namespace pointing {

using base::divise;
using base::entier16;
using base::entier32;
using cmd_moteur::classevitalt;
using cmd_moteur::classevitaz;

namespace {

const char* const fichier = "config_equa.ini";

struct mecanique {
    double pasad, pasdec; // motor steps a turn
    double Rad, Rdec;     // reduction ratios
};

mecanique lit_mecanique() {
    valeurs::lecteur f{plateforme::fichier_donnees(fichier)};
    const double pasad = f.nombre();
    const double pasdec = f.nombre();
    const double Rad = f.nombre();
    return {pasad, pasdec, Rad, f.nombre()};
}

// Rounded down. Only a way back has its sign taken off: mechanics below 0 make a way forth no pulse at all.
double compte(double chemin, double unite) {
    const double n = base::fini(std::floor(divise(chemin, unite, fichier)), fichier);
    return chemin < 0 ? std::abs(n) : n;
}

void dirige(entier16 commande) {
    cmd_moteur::cmdsens = commande;
    cmd_moteur::fixesensdirect();
    cmd_moteur::tempoequa();
}

} // namespace

void pointeequa() {
    const auto m = lit_mecanique();
    const entier16 az_avant = classevitaz;
    const entier16 alt_avant = classevitalt;
    classevitaz = {frmequapointage::reglages.cbpointaz.position(), "cbpointaz"};
    classevitalt = {frmequapointage::reglages.cbpointalt.position(), "cbpointalt"};

    // Tenths of a minute of time a pulse: a turn is 360 degrees of 600, and 15 of arc to one of time. Only
    // this axis has its half steps rounded to a whole number.
    const double tour_ad = m.Rad * entier32{2 * m.pasad, fichier}.reel();
    const double unite_ad = divise(360, tour_ad, "config_equa.ini, A.D") * 600 / 15;
    const double da = ciblead.reel() - reticulead;
    const double nbad = compte(da, unite_ad);
    dirige({invpointad == (da < 0) ? 2 : 1, "cmdsens"});
    cheminad.unite = da < 0 ? -unite_ad : unite_ad;
    frmDepl::fiche.montre();
    envoie(nbad, cmd_moteur::bitsens, cmd_moteur::bitpas, frmDepl::ProgressBaraz, cheminad.impulsions);

    const double tour_dec = m.Rdec * (2 * m.pasdec);
    const double unite_dec = divise(360, tour_dec, "config_equa.ini, Déc.") * 600;
    const double dd = cibledec.reel() - reticuledec;
    const double nbdec = compte(dd, unite_dec);
    dirige({invpointdec == (dd < 0) ? 3 : 4, "cmdsens"});
    chemindec.unite = dd < 0 ? -unite_dec : unite_dec;
    envoie(nbdec, cmd_moteur::bitsens, cmd_moteur::bitpas, frmDepl::ProgressBaralt, chemindec.impulsions);

    classevitaz = az_avant;
    classevitalt = alt_avant;
    cheminad = {};
    chemindec = {};
    frmDepl::fiche.decharge();
    stoppointage = false;
}

} // namespace pointing
