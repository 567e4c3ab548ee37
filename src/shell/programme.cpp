#include "shell/programme.h"

#include "drive/etat_moteur.h"
#include "piloting/frmaltazpilot.h"
#include "piloting/frmaltazpilot_champs.h"
#include "piloting/frmequapilot.h"
#include "piloting/frmequapilot_champs.h"
#include "piloting/jeu.h"
#include "pointing/etat_pointage.h"
#include "shell/frminterface.h"
#include "shell/frminterface_champs.h"
#include "shell/frmintro_champs.h"
#include "sky/position.h"
#include "tracking/etat_suivi.h"

namespace programme {

namespace {

shell::registre tout;

std::vector<shell::panneau*> panneaux() {
    frminterface::fiche.construit(frminterface::controles());
    frmintro::fiche.construit(frmintro::controles());
    frmaltazpilot::fiche.construit(frmaltazpilot::controles());
    frmequapilot::fiche.construit(frmequapilot::controles());

    frminterface::branche();
    frmaltazpilot::branche();
    frmequapilot::branche();

    return {&frminterface::fiche, &frmintro::fiche, &frmaltazpilot::fiche, &frmequapilot::fiche};
}

#define VARIABLE(module, nom) shell::nomme(#nom, module::nom)

std::vector<shell::variable> variables() {
    return {
        VARIABLE(cmd_moteur, cmdsens),      VARIABLE(cmd_moteur, bitpas),
        VARIABLE(cmd_moteur, bitsens),      VARIABLE(cmd_moteur, sensplus),
        VARIABLE(cmd_moteur, azplus),       VARIABLE(cmd_moteur, azmoins),
        VARIABLE(cmd_moteur, altplus),      VARIABLE(cmd_moteur, altmoins),
        VARIABLE(cmd_moteur, invaz),        VARIABLE(cmd_moteur, invalt),
        VARIABLE(cmd_moteur, classevitaz),  VARIABLE(cmd_moteur, classevitalt),
        VARIABLE(cmd_moteur, tempopas),     VARIABLE(cmd_moteur, tempopaddle),
        VARIABLE(cmd_moteur, vitchange),    VARIABLE(cmd_moteur, compteaz),
        VARIABLE(cmd_moteur, comptealt),    VARIABLE(cmd_moteur, baselinepaddle),
        VARIABLE(cmd_moteur, vitessealtaz), VARIABLE(cmd_moteur, vitesseequa),
        VARIABLE(cmd_moteur, vitessemanu),  VARIABLE(cmd_moteur, nbpasaz),
        VARIABLE(cmd_moteur, nbpasalt),     VARIABLE(cmd_moteur, tempoaz),
        VARIABLE(cmd_moteur, tempoalt),     VARIABLE(cmd_moteur, nbpassuivi),
        VARIABLE(general, posaz),           VARIABLE(general, posalt),
        VARIABLE(general, angpasaz),        VARIABLE(general, angpasalt),
        VARIABLE(general, ecartaz),         VARIABLE(general, ecartalt),
        VARIABLE(piloting, backlashaz),     VARIABLE(piloting, backlashalt),
        VARIABLE(pointing, panneaualtaz),   VARIABLE(pointing, stoppointage),
        VARIABLE(tracking, suiviouvert),    VARIABLE(frminterface, coordvisible),
    };
}

#undef VARIABLE

} // namespace

void construit() { tout = {panneaux(), variables()}; }

const shell::registre& registre() { return tout; }

void demarre() { frminterface::fiche.montre(); }

} // namespace programme
