#include "frame/frminterface.h"

#include "base/nombre.h"
#include "base/valeurs.h"
#include "drive/cmd_moteur.h"
#include "drive/raquette.h"
#include "drive/vitesses.h"
#include "fields/Frmnotes_champs.h"
#include "fields/frmCercle_champs.h"
#include "fields/frmLegend_champs.h"
#include "fields/frmaide_champs.h"
#include "fields/frmaltazpilot_champs.h"
#include "fields/frmaltazpointage_champs.h"
#include "fields/frmaltazsuivi_champs.h"
#include "fields/frmconfig_champs.h"
#include "fields/frmcoord_champs.h"
#include "fields/frmcopyright_champs.h"
#include "fields/frmequaconfig_champs.h"
#include "fields/frmequapilot_champs.h"
#include "fields/frmequapointage_champs.h"
#include "fields/frminterface_champs.h"
#include "fields/frmintro_champs.h"
#include "fields/frmraquette_champs.h"
#include "piloting/jeu.h"
#include "seam/image.h"
#include "seam/plateforme.h"
#include "slewing/etat_pointage.h"
#include "store/vue.h"
#include "tracking/etat_suivi.h"

namespace frminterface {

using plateforme::Out32;
using plateforme::registre_controle;
using plateforme::registre_donnees;

namespace {

// ---- start-up

// Keeps the splash on screen for as long as the processor takes to count.
void compte_a_vide() {
    volatile int i = 0;
    while (i <= 5'000'000)
        i = i + 1;
}

void charge_images() {
    valeurs::lecteur f{plateforme::fichier_donnees("img/liste.txt")};
    for (int i = 0; !f.fini(); ++i) {
        const auto chemin = plateforme::fichier_donnees("img/" + f.texte_entre_guillemets() + ".gif");
        // A list cut short ends in half a name: what is to be mended is the list.
        if (!std::filesystem::exists(chemin))
            base::fatale(base::cause::fichier_introuvable,
                         "img/liste.txt, valeur " + std::to_string(f.lues()) + " : " + chemin.string());
        const auto image = shell::vue_courante->charge_image(chemin);
        base::element(plateforme::imagesboutons, i, "img/liste.txt, imagesboutons") = image;
    }
}

void charge() {
    frmintro::fiche.montre();
    shell::vue_courante->repeint(frmintro::fiche);
    frmintro::Label.legende(" chargement des bibliothèques d'objets");
    vitesses::litvitesses();
    compte_a_vide();
    plateforme::cede();
    charge_images();
    mnusuivi.actif(false);
    frmintro::fiche.decharge();
    valeurs::lecteur f{plateforme::fichier_donnees("backlash.ini")};
    const double az = f.nombre();
    const double alt = f.nombre();
    piloting::backlashaz = az;
    piloting::backlashalt = alt;
}

// ---- modes

void mode_ordinateur() {
    Out32(registre_controle, plateforme::controle_ordinateur);
    Out32(registre_donnees, 0);
    Timer.marche(false);
    frmraquette::fiche.decharge();
}

// Every working panel, in the order in which paddle mode closes them.
void decharge_panneaux() {
    frmaltazpilot::fiche.decharge();
    frmaltazpointage::fiche.decharge();
    frmaltazsuivi::fiche.decharge();
    frmconfig::fiche.decharge();
    frmequapilot::fiche.decharge();
    frmequapointage::fiche.decharge();
    frmequaconfig::fiche.decharge();
    frmCercle::fiche.decharge();
    frmLegend::fiche.decharge();
}

void mode_raquette() {
    cmd_moteur::port_a_la_raquette();
    decharge_panneaux();
    frmraquette::fiche.montre();
    cmd_moteur::demarre_scrutation();
}

void mode_equatorial() {
    barequa.visible(true);
    baraltaz.visible(false);
    frmaltazpilot::fiche.decharge();
    frmaltazpointage::fiche.decharge();
    frmaltazsuivi::fiche.decharge();
    frmconfig::fiche.decharge();
    frmcoord::fiche.decharge();
    heuretimer.marche(false);
}

void montre_barre_altaz() {
    baraltaz.visible(true);
    barequa.visible(false);
}

void decharge_equatorial() {
    frmequapilot::fiche.decharge();
    frmequapointage::fiche.decharge();
    frmequaconfig::fiche.decharge();
}

// The menu's way in starts the clock itself and leaves the choice bar and `panneaualtaz` alone.
void mode_altazimutal_par_menu() {
    montre_barre_altaz();
    frmcoord::fiche.montre();
    heuretimer.marche(true);
    decharge_equatorial();
}

void mode_altazimutal_par_barre() {
    montre_barre_altaz();
    pointing::panneaualtaz = true;
    frmcoord::fiche.montre();
    decharge_equatorial();
}

// Hidden, the panel stays loaded: clock and position go on.
void bascule_coordonnees() {
    if (coordvisible) {
        frmcoord::fiche.cache();
        coordvisible = false;
    } else {
        frmcoord::fiche.montre();
        coordvisible = true;
    }
}

void pilote(shell::panneau& panneau) {
    panneau.montre();
    Timer.marche(false);
    frmraquette::fiche.decharge();
}

// ---- the hidden general bar

void general_ordinateur() {
    mode_ordinateur();
    bargeneral_boutons(3).actif(true);
    bargeneral_boutons(4).actif(true);
    mnutelescope.actif(true);
    fiche.maximise(true);
}

void general_raquette() {
    cmd_moteur::port_a_la_raquette();
    bargeneral_boutons(3).actif(false);
    bargeneral_boutons(4).actif(false);
    baraltaz.visible(false);
    barequa.visible(false);
    decharge_panneaux();
    mnutelescope.actif(false);
    fiche.maximise(false);
    fiche.hauteur(8000);
    fiche.largeur(11000);
    frmraquette::fiche.montre();
    cmd_moteur::demarre_scrutation();
}

void general_altazimutal() {
    barequa.visible(false);
    baraltaz.visible(true);
    frmcoord::fiche.montre();
    decharge_equatorial();
    pointing::panneaualtaz = true;
}

void quitte() {
    Out32(registre_controle, plateforme::controle_libre);
    plateforme::termine(0);
}

void branche_barres() {
    barchoix_boutons(1).au_clic([] {
        mode_equatorial();
        barchoix.visible(false);
    });
    barchoix_boutons(2).au_clic([] {
        mode_altazimutal_par_barre();
        barchoix.visible(false);
        tracking::suiviouvert = false;
    });

    barequa_boutons(1).au_clic(mode_ordinateur);
    barequa_boutons(2).au_clic(mode_raquette);
    barequa_boutons(3).au_clic([] { pilote(frmequapilot::fiche); });
    barequa_boutons(4).au_clic([] { frmequapointage::fiche.montre(); });
    barequa_boutons(5).au_clic([] { frmequaconfig::fiche.montre(); });

    baraltaz_boutons(1).au_clic(mode_ordinateur);
    baraltaz_boutons(2).au_clic(mode_raquette);
    baraltaz_boutons(3).au_clic([] { pilote(frmaltazpilot::fiche); });
    baraltaz_boutons(4).au_clic([] { frmaltazpointage::fiche.montre(); });
    baraltaz_boutons(5).au_clic([] { frmaltazsuivi::fiche.montre(); });
    baraltaz_boutons(6).au_clic([] { frmconfig::fiche.montre(); });
    baraltaz_boutons(7).au_clic(bascule_coordonnees);

    bargeneral_boutons(1).au_clic(general_ordinateur);
    bargeneral_boutons(2).au_clic(general_raquette);
    bargeneral_boutons(3).au_clic(mode_equatorial);
    bargeneral_boutons(4).au_clic(general_altazimutal);
    bargeneral_boutons(5).au_clic([] { Frmnotes::fiche.montre(); });
    bargeneral_boutons(6).au_clic([] { shell::vue_courante->message("not available yet"); });
    bargeneral_boutons(7).au_clic([] { frmcopyright::fiche.montre(); });
}

void branche_menu() {
    Quitter.au_clic(quitte);
    Equatorial.au_clic(mode_equatorial);
    mnupilotageequa.au_clic([] { frmequapilot::fiche.montre(); });
    mnupointequa.au_clic([] { frmequapointage::fiche.montre(); });
    mnuparaequa.au_clic([] { frmequaconfig::fiche.montre(); });
    altazimutal.au_clic(mode_altazimutal_par_menu);
    mnupilotagealtaz.au_clic([] { frmaltazpilot::fiche.montre(); });
    mnupointaltaz.au_clic([] { frmaltazpointage::fiche.montre(); });
    mnusuivi.au_clic([] { frmaltazsuivi::fiche.montre(); });
    mnuparaaltaz.au_clic([] {
        frmconfig::fiche.montre();
        mnusuivi.actif(true);
    });
    Observations.au_clic([] { Frmnotes::fiche.montre(); });
    Aide.au_clic([] { frmaide::fiche.montre(); });
    propos.au_clic([] { frmcopyright::fiche.montre(); });
}

} // namespace

void branche() {
    fiche.au_chargement(charge);
    Timer.au_tic(cmd_moteur::scruteraquette);
    branche_barres();
    branche_menu();
}

} // namespace frminterface
