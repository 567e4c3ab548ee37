#include "tracking/frmaltazsuivi.h"

#include "base/valeurs.h"
#include "drive/etat_moteur.h"
#include "drive/mode_raquette.h"
#include "drive/position.h"
#include "fields/frmaltazsuivi_champs.h"
#include "fields/frmconfig_champs.h"
#include "fields/frmcoord_champs.h"
#include "fields/frminterface_champs.h"
#include "seam/plateforme.h"
#include "sky/affichage.h"
#include "sky/almanach.h"
#include "sky/conversion.h"
#include "sky/heure.h"
#include "tracking/affichage_suivi.h"
#include "tracking/etat_suivi.h"
#include "tracking/tic_suivi.h"

namespace frmaltazsuivi {

using base::entier32;

namespace {

constexpr int largeur_frheure = 6375; // twips, while tracking
const char* const fichier = "suivialtaz.ini";
const char* const en_marche = "Pause"; // captions of `cmdstop`
const char* const en_pause = "reprise";

void lit_reglages() {
    valeurs::lecteur f{plateforme::fichier_donnees(fichier)};
    const auto increment = f.champ();
    const auto az = f.nombre32();
    const auto alt = f.nombre32();
    const bool inverse_az = f.vrai();
    const bool inverse_alt = f.vrai();
    cmd_moteur::tempoaz = az;
    cmd_moteur::tempoalt = alt;
    txtincrement.ecrit(increment);
    txttempoa.ecrit(az);
    txttempoh.ecrit(alt);
    chksuiviaz.coche(inverse_az);
    chksuivialt.coche(inverse_alt);
}

void charge() {
    cmdraquette.actif(true);
    tracking::suiviouvert = true;
    lit_reglages();
    general::lit_almanach();
    plateforme::Out32(plateforme::registre_controle, plateforme::controle_ordinateur);
}

// By whatever road the panel closes, `frmconfig` takes this size, and is loaded if it was not.
void decharge() {
    frmconfig::fiche.largeur(7035);
    frmconfig::fiche.hauteur(6075);
}

// The telescope is assumed to be on the object: only what the sky moves from here on is followed.
void commence() {
    frminterface::Timer.marche(false);
    frminterface::heuretimer.marche(false);
    cmdraquette.actif(false);
    frmcoord::frheure.largeur(largeur_frheure);
    if (cmdstop.legende() == en_pause)
        cmdstop.legende(en_marche);
    if (!tracking::objetchoisi) {
        general::calcul_equa();
        general::affiche_equa();
    }
    tracking::efface_sommes();
    general::synchro_heure();
    general::calcul_altaz();
    tracking::part_d_ici();
    tracking::affiche();
    timcompteur.intervalle(txtincrement.nombre32());
    timcompteur.marche(true);
}

void suspend_ou_reprend() {
    const bool suspend = cmdstop.legende() == en_marche;
    timcompteur.marche(!suspend);
    cmdstop.legende(suspend ? en_pause : en_marche);
    cmdraquette.actif(suspend);
}

// The clock's milliseconds go to 0, so that the next tick takes the computer's time over.
void change_increment(double ms) {
    txtincrement.ecrit(ms);
    frmcoord::txtms.ecrit("0");
}

void augmente() {
    const double ms = txtincrement.nombre();
    change_increment(ms + (ms < 1000 ? 100 : 1000));
}

void diminue() {
    const double ms = txtincrement.nombre();
    if (ms > 100)
        change_increment(ms - (ms <= 1000 ? 100 : 1000));
}

void enregistre() {
    const bool invsuiviaz = chksuiviaz.coche(); // no motion looks at them
    const bool invsuivialt = chksuivialt.coche();
    valeurs::ecrivain f;
    f.texte(txtincrement.lit());
    f.texte(txttempoa.lit());
    f.texte(txttempoh.lit());
    f.booleen(invsuiviaz);
    f.booleen(invsuivialt);
    f.enregistre(plateforme::fichier_donnees(fichier));
}

// Inside a burst, the tick that waits below goes on: its second burst then finds a change of 0, which is the
// minus sense, and its last step loads the panel again.
void quitte() {
    timcompteur.marche(false);
    general::ecartaz = 0;
    general::ecartalt = 0;
    fiche.decharge();
    frmcoord::txtms.ecrit("0");
    frminterface::heuretimer.marche(true);
    tracking::objetchoisi = false;
    tracking::suiviouvert = false;
}

} // namespace

void branche() {
    fiche.au_chargement(charge);
    fiche.au_dechargement(decharge);
    fiche.remise_a_zero(tracking::oublie_position);
    cmdcalcul.au_clic(commence);
    cmdstop.au_clic(suspend_ou_reprend);
    cmdraquette.au_clic(reglages::prend_raquette);
    cmdsave.au_clic(enregistre);
    Cmdquit.au_clic(quitte);
    updowntaux.au_plus(augmente);
    updowntaux.au_moins(diminue);
    timcompteur.au_tic(tracking::tic);
}

} // namespace frmaltazsuivi
