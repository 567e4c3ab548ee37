#include "slewing/frmDepl.h"

#include "fields/frmDepl_champs.h"
#include "slewing/etat_pointage.h"

namespace frmDepl {

namespace {

// The captions follow the panel that opened the chart last, not the slew that runs.
void charge() {
    ProgressBaraz.valeur(0);
    ProgressBaralt.valeur(0);
    Lblaz.legende(pointing::panneaualtaz ? "Azimut" : "A.D");
    lblalt.legende(pointing::panneaualtaz ? "Altitude" : "Déc.");
}

// The loops see the flag before their next pulse; without a way left, no further pass begins.
void arrete() {
    pointing::stoppointage = true;
    pointing::distaz = 0;
    pointing::distalt = 0;
}

} // namespace

void branche() {
    fiche.au_chargement(charge);
    cmstoppointage.au_clic(arrete);
}

} // namespace frmDepl
