#include "piloting/frmequapilot.h"

#include "drive/cmd_moteur.h"
#include "piloting/frmequapilot_champs.h"
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
    .barres = {&HScroll1, &HScroll2, &HScroll3, &HScroll4, &HScroll5, &HScroll6, &HScroll7, &HScroll8,
               &HScroll9, &HScroll10},
    .champs = {&tAD(0), &tAD(1), &tAD(2), &tAD(3), &tAD(4), &tDc(0), &tDc(1), &tDc(2), &tDc(3), &tDc(4)},
    .table = cmd_moteur::vitesseequa,
    .fichier = "vitesseequa.ini",
};

} // namespace

void branche() {
    piloting::branche(pilote);
    suivi_equatorial::branche();
}

} // namespace frmequapilot
