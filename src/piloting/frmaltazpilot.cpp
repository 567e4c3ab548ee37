#include "piloting/frmaltazpilot.h"

#include "drive/cmd_moteur.h"
#include "fields/frmaltazpilot_champs.h"
#include "piloting/pilotage.h"

namespace frmaltazpilot {

namespace {

const piloting::pilote pilote{
    .fiche = fiche,
    .deplacement = deplacement,
    .azimut = azimut,
    .altitude = altitude,
    .pied = pied,
    .largeur_fermee = largeur_fermee,
    .largeur_ouverte = largeur_ouverte,
    .jog_az = cmd_moteur::jogaltaz_az,
    .jog_alt = cmd_moteur::jogaltaz_alt,
    .jauge_az_0 = "I",
    .table = cmd_moteur::vitessealtaz,
    .fichier = "vitessealtaz.ini",
};

} // namespace

void branche() { piloting::branche(pilote); }

} // namespace frmaltazpilot
