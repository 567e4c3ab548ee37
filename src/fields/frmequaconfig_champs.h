// The panel of the equatorial mount's mechanics, as designed.
#pragma once

#include "store/controles.h"

namespace frmequaconfig {

using namespace shell;

inline constinit panneau fiche{"frmequaconfig", "Paramètres", 3960, 3525};

inline constinit champ_cadre frmeca{
    fiche, "frmeca", {60, 30, 3690, 1395}, {.legende = "Paramètres mécaniques"}};
inline constinit champ_etiquette lblad{
    fiche, "lblad", {2340, 240, 690, 270}, {.legende = "A.D", .cadre = &frmeca}};
inline constinit champ_etiquette lbldec{
    fiche, "lbldec", {2955, 240, 690, 270}, {.legende = "Déc.", .cadre = &frmeca}};
inline constinit champ_etiquette lblpas{
    fiche, "lblpas", {60, 570, 2250, 270}, {.legende = "Nombre de pas moteur", .cadre = &frmeca}};
inline constinit champ_texte txtpasad{fiche, "txtpasad", {2340, 525, 600, 345}, {.cadre = &frmeca}};
inline constinit champ_texte txtpasdec{fiche, "txtpasdec", {3000, 525, 645, 345}, {.cadre = &frmeca}};
inline constinit champ_etiquette lblrapport{
    fiche, "lblrapport", {90, 960, 2100, 270}, {.legende = "Rapports de réduction", .cadre = &frmeca}};
inline constinit champ_texte txtRad{fiche, "txtRad", {2340, 915, 600, 345}, {.cadre = &frmeca}};
inline constinit champ_texte txtRdec{fiche, "txtRdec", {3000, 915, 645, 345}, {.cadre = &frmeca}};

inline constinit champ_cadre framecodeur{
    fiche, "framecodeur", {60, 1485, 3690, 795}, {.legende = "Paramètres codeurs"}};
inline constinit champ_bouton cmdbacklash{
    fiche, "cmdbacklash", {2220, 270, 1425, 405}, {.legende = "backlash", .cadre = &framecodeur}};

inline constinit champ_bouton bFin{fiche, "bFin", {2430, 2415, 1320, 495}, {.image = "fin"}};

inline std::vector<controle*> controles() {
    return liste(frmeca, lblad, lbldec, lblpas, txtpasad, txtpasdec, lblrapport, txtRad, txtRdec, framecodeur,
                 cmdbacklash, bFin);
}

} // namespace frmequaconfig
