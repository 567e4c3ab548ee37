#include "piloting/frmaltazpilot.h"

#include "drive/cmd_moteur.h"
#include "fields/frmaltazpilot_champs.h"
#include "piloting/pilotage.h"

namespace frmaltazpilot {

namespace {

const piloting::pilote pilote{
    .fiche = fiche,
    .directions = {{{&cmdag, 2, cmd_moteur::jogaltaz_az},
                    {&cmdad, 1, cmd_moteur::jogaltaz_az},
                    {&cmdhb, 4, cmd_moteur::jogaltaz_alt},
                    {&cmdhh, 3, cmd_moteur::jogaltaz_alt}}},
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
    .jauge_az_0 = "I",
    .reglage = reglage,
    .table = cmd_moteur::vitessealtaz,
    .fichier = "vitessealtaz.ini",
};

} // namespace

void branche() { piloting::branche(pilote); }

} // namespace frmaltazpilot
