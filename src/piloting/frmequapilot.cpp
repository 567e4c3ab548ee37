#include "piloting/frmequapilot.h"

#include "drive/cmd_moteur.h"
#include "fields/frmequapilot_champs.h"
#include "piloting/pilotage.h"
#include "tracking/suivi_equatorial.h"

namespace frmequapilot {

namespace {

const piloting::pilote pilote{
    .fiche = fiche,
    .directions = {{{&cmdag, 2, cmd_moteur::jogequa_az},
                    {&cmdad, 1, cmd_moteur::jogequa_az},
                    {&cmdhb, 4, cmd_moteur::jogequa_alt},
                    {&cmdhh, 3, cmd_moteur::jogequa_alt}}},
    .arret = cmddstop,
    .quitte = Cmdquit,
    .valide = cmdvalid,
    .section = lblvit,
    .largeur_fermee = largeur_fermee,
    .largeur_ouverte = largeur_ouverte,
    .classe_az = slaz,
    .classe_alt = slalt,
    .numero_az = txtnumaz,
    .numero_alt = txtnumalt,
    .jauge_az = txtv_az,
    .jauge_alt = txtv_alt,
    .jauge_az_0 = "Sid.",
    .reglage = reglage,
    .table = cmd_moteur::vitesseequa,
    .fichier = "vitesseequa.ini",
};

} // namespace

void branche() {
    piloting::branche(pilote);
    suivi_equatorial::branche();
}

} // namespace frmequapilot
