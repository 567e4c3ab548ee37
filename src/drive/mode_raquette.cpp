#include "drive/mode_raquette.h"

#include "drive/cmd_moteur.h"
#include "drive/raquette.h"
#include "fields/frmraquette_champs.h"

namespace reglages {

void prend_raquette() {
    cmd_moteur::port_a_la_raquette();
    frmraquette::fiche.montre();
    cmd_moteur::demarre_scrutation();
}

void mesure_jeu() {
    cmd_moteur::port_a_la_raquette();
    frmraquette::fiche.montre();
    frmraquette::fiche.largeur(frmraquette::largeur_ouverte);
    frmraquette::lblbacklash.legende(fleches::referme);
    cmd_moteur::demarre_scrutation();
}

} // namespace reglages
