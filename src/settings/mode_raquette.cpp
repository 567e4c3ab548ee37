#include "settings/mode_raquette.h"

#include "drive/cmd_moteur.h"
#include "shell/frminterface_champs.h"

namespace reglages {

void prend_raquette() {
    cmd_moteur::port_a_la_raquette();
    frminterface::Timer.marche(true);
}

void mesure_jeu() { prend_raquette(); }

} // namespace reglages
