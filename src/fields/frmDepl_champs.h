// The progress of a slew, as designed: a bar for each axis, and the stop, which has the focus.
#pragma once

#include "store/controles.h"

namespace frmDepl {

using namespace shell;

inline constinit panneau fiche{
    "frmDepl", "Déplacement en cours...", 4200, 2700, {.boite_de_fermeture = fermeture::aucune}};

inline constinit champ_etiquette Label3{
    fiche, "Label3", {120, 90, 3810, 270}, {.legende = "Veuillez patienter..."}};
inline constinit champ_etiquette Lblaz{fiche, "Lblaz", {120, 465, 960, 270}, {.legende = "Azimut"}};
inline constinit champ_progression ProgressBaraz{
    fiche, "ProgressBaraz", {1140, 450, 2790, 300}, {.max = 100}};
inline constinit champ_etiquette lblalt{fiche, "lblalt", {120, 885, 960, 270}, {.legende = "Altitude"}};
inline constinit champ_progression ProgressBaralt{
    fiche, "ProgressBaralt", {1140, 870, 2790, 300}, {.max = 100}};
inline constinit champ_bouton cmstoppointage{
    fiche, "cmstoppointage", {1665, 1335, 720, 720}, {.image = "stop", .traits = arret | echap}};

inline std::vector<controle*> controles() {
    return liste(Label3, Lblaz, ProgressBaraz, lblalt, ProgressBaralt, cmstoppointage);
}

} // namespace frmDepl
