#include "piloting/frmequapilot.h"

#include "drive/cmd_moteur.h"
#include "fields/frmequapilot_champs.h"
#include "piloting/pilotage.h"
#include "tracking/suivi_equatorial.h"

namespace frmequapilot {

namespace {

const piloting::pilote pilote{
    .fiche = fiche,
    .deplacement = deplacement,
    .azimut = ascension,
    .altitude = declinaison,
    .pied = pied,
    .largeur_fermee = largeur_fermee,
    .largeur_ouverte = largeur_ouverte,
    .jog_az = cmd_moteur::jogequa_az,
    .jog_alt = cmd_moteur::jogequa_alt,
    .jauge_az_0 = "Sid.",
    .table = cmd_moteur::vitesseequa,
    .fichier = "vitesseequa.ini",
};

} // namespace

void branche() {
    piloting::branche(pilote);
    suivi_equatorial::branche();
}

} // namespace frmequapilot
