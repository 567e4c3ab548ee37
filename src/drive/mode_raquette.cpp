#include "drive/mode_raquette.h"

#include "drive/cmd_moteur.h"
#include "fields/frminterface_champs.h"
#include "fields/frmraquette_champs.h"

namespace reglages {

void prend_raquette() {
    cmd_moteur::port_a_la_raquette();
    frmraquette::fiche.montre();
    frminterface::Timer.marche(true);
}

void mesure_jeu() {
    cmd_moteur::port_a_la_raquette();
    frmraquette::fiche.montre();
    frmraquette::fiche.largeur(frmraquette::largeur_ouverte);
    frmraquette::lblbacklash.legende(fleches::referme);
    frminterface::Timer.marche(true);
}

} // namespace reglages
