#include "piloting/frmaltazpilot.h"

#include "drive/cmd_moteur.h"
#include "piloting/frmaltazpilot_champs.h"
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
    .barres = {&HScroll1, &HScroll2, &HScroll3, &HScroll4, &HScroll5, &HScroll6, &HScroll7, &HScroll8,
               &HScroll9, &HScroll10},
    .champs = {&tAZ(0), &tAZ(1), &tAZ(2), &tAZ(3), &tAZ(4), &tAlt(0), &tAlt(1), &tAlt(2), &tAlt(3), &tAlt(4)},
    .table = cmd_moteur::vitessealtaz,
    .fichier = "vitessealtaz.ini",
};

} // namespace

void branche() { piloting::branche(pilote); }

} // namespace frmaltazpilot
